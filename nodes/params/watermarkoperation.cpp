#include "watermarkoperation.h"

#include "direction.h"
#include "watermark.h"

#include <QBuffer>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QVector>

WMRValues::WMRValues()
{
    ImageData = WatermarkLogo::builtIn();
}

const ParamTable<WMRValues>& WMROperation::table()
{
    const char* node = "WMRNode";
    const ParamRange percent{0, 100, 20, 1};
    const ParamRange offsets{-33, 33, 1, 1};
    auto logo = param<WMRValues>("ImageData", &WMRValues::ImageData, ParamKind::Plain, node,
                                 nullptr, WatermarkLogo::builtIn());
    // The built-in logo is not copied into the text; an empty or undecodable value keeps
    // the logo there is.
    logo.textOf = [](const WMRValues& values) {
        return values.ImageName == QLatin1String(WatermarkLogo::BuiltInName)
                   ? QString()
                   : WatermarkLogo::toDataUri(values.ImageData);
    };
    logo.text.read = [](const QString& text, QVariant& value) {
        const QImage decoded = WatermarkLogo::fromDataUri(text);
        if (!decoded.isNull())
            value = decoded;
        return !decoded.isNull();
    };
    static const ParamTable<WMRValues> table = {
        param<WMRValues>("Mode", &WMRValues::Mode, ParamKind::Choice, node,
                         QT_TRANSLATE_NOOP("WMRNode", "Kind:"), 0, {}, nullptr, 2),
        param<WMRValues>("Size", &WMRValues::Size, ParamKind::Slider, node,
                         QT_TRANSLATE_NOOP("WMRNode", "Size:"), 60, {1, 100, 20, 1}),
        // A stored value, not a label: the same in every language so that flows do not
        // depend on it.
        param<WMRValues>("Text", &WMRValues::Text, ParamKind::Text, node,
                         QT_TRANSLATE_NOOP("WMRNode", "Text:"), QStringLiteral("Watermark")),
        param<WMRValues>("Position", &WMRValues::Position, ParamKind::Direction, node,
                         QT_TRANSLATE_NOOP("WMRNode", "Position:"), int(BottomRight)),
        param<WMRValues>("Expand", &WMRValues::Expand, ParamKind::Toggle, node,
                         QT_TRANSLATE_NOOP("WMRNode", "Expand:"), false),
        param<WMRValues>("Bold", &WMRValues::Bold, ParamKind::Toggle, node,
                         QT_TRANSLATE_NOOP("WMRNode", "Bold"), false),
        param<WMRValues>("Italic", &WMRValues::Italic, ParamKind::Toggle, node,
                         QT_TRANSLATE_NOOP("WMRNode", "Italic"), false),
        param<WMRValues>("Underlined", &WMRValues::Underlined, ParamKind::Toggle, node,
                         QT_TRANSLATE_NOOP("WMRNode", "Underlined"), false),
        param<WMRValues>("XOffset", &WMRValues::XOffset, ParamKind::SpinBox, node,
                         QT_TRANSLATE_NOOP("WMRNode", "X: "), 0, offsets),
        param<WMRValues>("YOffset", &WMRValues::YOffset, ParamKind::SpinBox, node,
                         QT_TRANSLATE_NOOP("WMRNode", "Y: "), 0, offsets),
        param<WMRValues>("Transparency", &WMRValues::Transparency, ParamKind::Slider, node,
                         QT_TRANSLATE_NOOP("WMRNode", "Transparency:"), 25, percent),
        param<WMRValues>("Color", &WMRValues::Color, ParamKind::Colour, node,
                         QT_TRANSLATE_NOOP("WMRNode", "Text color:"), QColor(Qt::white)),
        param<WMRValues>("Background", &WMRValues::Background, ParamKind::Colour, node,
                         QT_TRANSLATE_NOOP("WMRNode", "Background:"), QColor(Qt::black)),
        param<WMRValues>("BackgroundEnabled", &WMRValues::BackgroundEnabled, ParamKind::Toggle,
                         node, QT_TRANSLATE_NOOP("WMRNode", "Draw"), false),
        param<WMRValues>("Font", &WMRValues::Font, ParamKind::Font, node,
                         QT_TRANSLATE_NOOP("WMRNode", "Font:"),
                         QFont(ParamRules::defaultFontFamily())),
        logo,
        param("ImageName", &WMRValues::ImageName, ParamKind::Text, node,
              QT_TRANSLATE_NOOP("WMRNode", "Logo:"), QString(WatermarkLogo::BuiltInName)),
    };
    return table;
}

QImage WMROperation::run(QImage image, const WMRValues& values)
{
    return OrkGraphX::drawWatermark(image, values);
}

WMRValues WMROperation::forPhoto(Values values, const PhotoContext& photo)
{
    values.Text = TextMacros::expand(values.Text, photo);
    return values;
}

namespace WatermarkLogo {

QImage builtIn()
{
    static const QImage picture = fromPicture(QImage(":/qubrast.png"));
    return picture;
}

QImage fromPicture(const QImage& picture)
{
    return picture.isNull() ? picture : picture.convertToFormat(QImage::Format_ARGB32);
}

QString toDataUri(const QImage& logo)
{
    const QByteArray format = "PNG";
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    logo.save(&buffer, format);
    return "data:image/" + QString::fromLatin1(format).toLower() + ";base64," +
           QString::fromLatin1(bytes.toBase64());
}

QImage fromDataUri(const QString& text)
{
    const QLatin1String marker(";base64,");
    const int at = text.indexOf(marker);
    if (!text.startsWith(QLatin1String("data:")) || at < 0)
        return QImage();
    // The declared type is not trusted: the reader recognises the picture by its content.
    return fromBytes(QByteArray::fromBase64(text.mid(at + marker.size()).toLatin1()));
}

QImage fromFile(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return QImage();
    return fromBytes(file.readAll());
}

QImage fromBytes(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    if (reader.format().startsWith("svg")) {
        bytes = withoutOutsideReferences(bytes);
        if (bytes.isEmpty())
            return QImage();
        buffer.close();
        buffer.setBuffer(&bytes);
        buffer.open(QIODevice::ReadOnly);
        reader.setDevice(&buffer);
    }
    const QSize size = reader.size();
    if (size.isValid() && qint64(size.width()) * size.height() > maxPixels)
        return QImage();
    return fromPicture(reader.read());
}

QByteArray withoutOutsideReferences(const QByteArray& svg)
{
    QDomDocument document;
    if (!document.setContent(svg, true))
        return {};
    QVector<QDomElement> pending{document.documentElement()};
    while (!pending.isEmpty()) {
        QDomElement element = pending.takeLast();
        const QDomNamedNodeMap attributes = element.attributes();
        QVector<QDomAttr> outside;
        for (int i = 0; i < attributes.count(); ++i) {
            const QDomAttr attribute = attributes.item(i).toAttr();
            const QString value = attribute.value().trimmed();
            if (attribute.localName() == QLatin1String("href") && !value.startsWith('#') &&
                !value.startsWith(QLatin1String("data:")))
                outside << attribute;
        }
        for (const QDomAttr& attribute : qAsConst(outside))
            element.removeAttributeNode(attribute);
        for (QDomElement child = element.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement())
            pending << child;
    }
    return document.toByteArray();
}

} // namespace WatermarkLogo
