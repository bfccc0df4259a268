#include "wmrnode.h"

#include "colorbutton.h"
#include "ui/comboslider.h"
#include "ui/directionswidget.h"
#include "watermark.h"

#include <QBuffer>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {
const int textMode = 0;
const int logoMode = 1;
const int bothModes = -1;
const int columnSpacing = 8;
const int formSpacing = 5;
const int rowSpacing = 3;
const bool captionsAbove = true;
const bool captionsBeside = false;
const bool packed = true;
const int fontComboLetters = 6;

// Logos are kept as ARGB32 whatever file or text they came from, so that the preview and the
// headless form draw the very same pixels.
QImage asLogo(const QImage& picture)
{
    return picture.isNull() ? picture : picture.convertToFormat(QImage::Format_ARGB32);
}

// A form whose captions go above or beside its fields, appended to parent.
QFormLayout* newForm(QBoxLayout* parent, bool above)
{
    auto* form = new QFormLayout;
    form->setSpacing(formSpacing);
    if (above)
        form->setRowWrapPolicy(QFormLayout::WrapAllRows);
    // Buttons keep their own width instead of filling what the widest row leaves them.
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    parent->addLayout(form);
    return form;
}

// The widgets side by side; with keepWidths they keep their own widths and leave the rest empty.
QHBoxLayout* newRowFields(std::initializer_list<QWidget*> widgets, bool keepWidths)
{
    auto* fields = new QHBoxLayout;
    fields->setSpacing(rowSpacing);
    for (QWidget* widget : widgets)
        fields->addWidget(widget);
    if (keepWidths)
        fields->addStretch(1);
    return fields;
}

// Every widget of the layout and of the layouts inside it.
void collectWidgets(const QLayout* layout, QVector<QWidget*>& widgets)
{
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem* item = layout->itemAt(i);
        if (QWidget* widget = item->widget())
            widgets.append(widget);
        else if (const QLayout* inner = item->layout())
            collectWidgets(inner, widgets);
    }
}

QSpinBox* newOffsetBox(const QString& prefix, const QString& toolTip, QWidget* parent)
{
    auto* box = new QSpinBox(parent);
    box->setRange(-33, 33);
    box->setPrefix(prefix);
    box->setSuffix("%");
    box->setToolTip(toolTip);
    // Only as narrow as its widest value needs; its preferred width keeps room to spare.
    box->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return box;
}
} // namespace

WMRValues::WMRValues()
{
    ImageData = WMRNode::builtInLogo();
}

WMRNode::WMRNode(QWidget* parent)
    : KeyedNode(Name, parent)
    , kindCombo(new QComboBox(this))
    , shrinkButton(newFlatButton(this, "WMRShrinkButton", tr("Fewer options")))
    // A stored value, not a label: the same in every language so that flows do not depend on it.
    , textEdit(new QLineEdit(QStringLiteral("Watermark"), this))
    , fontCombo(new QFontComboBox(this))
    , boldButton(newFlatButton(this, "BoldButton", tr("Bold")))
    , italicButton(newFlatButton(this, "ItalicButton", tr("Italic")))
    , underlinedButton(newFlatButton(this, "UnderlinedButton", tr("Underlined")))
    , colorButton(newColorButton(this, Qt::white))
    , backgroundButton(newColorButton(this, Qt::black))
    , backgroundEnabledBox(new QCheckBox(tr("Draw"), this))
    , logoLine(new QLineEdit(BuiltInLogoName, this))
    , browseButton(newFlatButton(this, "WMRBrowseButton", tr("Open a logo picture")))
    , sizeSlider(newSlider(this, {1, 100, 20, 1, 60}))
    , transparencySlider(newSlider(this, {0, 100, 20, 1, 25}))
    , directions(new DirectionsWidget(this))
    , xOffsetBox(newOffsetBox(tr("X: "), tr("Horizontal offset in percent of the height"), this))
    , yOffsetBox(newOffsetBox(tr("Y: "), tr("Vertical offset in percent of the height"), this))
    , expandBox(new QCheckBox(this))
    , logo(builtInLogo())
{
    setNodeIcon(Name);
    kindCombo->addItem(tr("Text"));
    kindCombo->addItem(tr("Image"));
    // The widest family name on the machine would otherwise set the width of the whole node.
    fontCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    fontCombo->setMinimumContentsLength(fontComboLetters);
    browseButton->setCheckable(false);
    logoLine->setReadOnly(true);
    backgroundEnabledBox->setToolTip(tr("Draw the background behind the text"));

    // Three columns of form rows side by side, so that all rows fit the low, wide options area:
    // what is drawn, how strongly, and where and how it is laid on. Captions go above the fields
    // where a caption is wider than its field, so that it does not widen the whole column.
    auto* columns = new QHBoxLayout;
    columns->setSpacing(columnSpacing);
    addFramedLayout(optionsLayout, columns);
    QFormLayout* what = newForm(columns, captionsBeside);
    addRow(what, tr("Kind:"), newRowFields({kindCombo, shrinkButton}, packed), bothModes, true);
    addRow(what, tr("Text:"),
           newRowFields({textEdit, boldButton, italicButton, underlinedButton}, !packed), textMode,
           true);
    addRow(what, tr("Font:"), fontCombo, textMode, false);
    addRow(what, tr("Logo:"), newRowFields({logoLine, browseButton}, !packed), logoMode, true);
    QFormLayout* strength = newForm(columns, captionsAbove);
    addRow(strength, tr("Size:"), sizeSlider, bothModes, false);
    addRow(strength, tr("Transparency:"), transparencySlider, bothModes, false);
    auto* where = new QVBoxLayout;
    where->setSpacing(formSpacing);
    columns->addLayout(where);
    addRow(newForm(where, captionsBeside), tr("Position:"), newPositionFields(), bothModes, false);
    auto* colours = new QHBoxLayout;
    colours->setSpacing(columnSpacing);
    where->addLayout(colours);
    where->addStretch(1);
    addRow(newForm(colours, captionsAbove), tr("Text color:"), colorButton, textMode, false);
    addRow(newForm(colours, captionsAbove), tr("Background:"),
           newRowFields({backgroundButton, backgroundEnabledBox}, packed), textMode, false);
    addRow(newForm(colours, captionsAbove), tr("Expand:"), expandBox, logoMode, false);
    updateRows(textMode);

    connect(kindCombo, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &WMRNode::slotModeChanged);
    connect(shrinkButton, &QPushButton::clicked, this, &WMRNode::slotShrinkClicked);
    connect(browseButton, &QPushButton::clicked, this, &WMRNode::slotWMRBrowse);
    connect(textEdit, &QLineEdit::textChanged, this, &BaseNode::parametersChanged);
    connect(fontCombo, &QFontComboBox::currentFontChanged, this, &BaseNode::parametersChanged);
    for (QPushButton* button : {boldButton, italicButton, underlinedButton})
        connect(button, &QPushButton::clicked, this, &BaseNode::parametersChanged);
    for (QCheckBox* box : {backgroundEnabledBox, expandBox})
        connect(box, &QCheckBox::stateChanged, this, &BaseNode::parametersChanged);
    for (QSpinBox* box : {xOffsetBox, yOffsetBox})
        connect(box, qOverload<int>(&QSpinBox::valueChanged), this, &BaseNode::parametersChanged);
    connect(directions, &DirectionsWidget::directionChanged, this, &BaseNode::parametersChanged);
}

const WMRNode::Keys& WMRNode::keys()
{
    static const Keys table = {
        Keys::bind("Mode", &WMRValues::Mode, &WMRNode::kindCombo),
        Keys::bind("Size", &WMRValues::Size, &WMRNode::sizeSlider),
        Keys::bind("Text", &WMRValues::Text, &WMRNode::textEdit),
        Keys::bind(
            "Position", &WMRValues::Position, &WMRNode::directions,
            [](const WMRValues& values) { return directionName(values.Position); },
            [](const QString& text, WMRValues& values) {
                const int direction = directionFromName(text);
                if (direction < 0)
                    return false;
                values.Position = direction;
                return true;
            }),
        Keys::bind("Expand", &WMRValues::Expand, &WMRNode::expandBox),
        Keys::bind("Bold", &WMRValues::Bold, &WMRNode::boldButton),
        Keys::bind("Italic", &WMRValues::Italic, &WMRNode::italicButton),
        Keys::bind("Underlined", &WMRValues::Underlined, &WMRNode::underlinedButton),
        Keys::bind("XOffset", &WMRValues::XOffset, &WMRNode::xOffsetBox),
        Keys::bind("YOffset", &WMRValues::YOffset, &WMRNode::yOffsetBox),
        Keys::bind("Transparency", &WMRValues::Transparency, &WMRNode::transparencySlider),
        Keys::bind("Color", &WMRValues::Color, &WMRNode::colorButton),
        Keys::bind("Background", &WMRValues::Background, &WMRNode::backgroundButton),
        Keys::bind("BackgroundEnabled", &WMRValues::BackgroundEnabled,
                   &WMRNode::backgroundEnabledBox),
        Keys::bind(
            "Font", &WMRValues::Font, &WMRNode::fontCombo,
            [](const WMRValues& values) { return values.Font.family(); },
            [](const QString& text, WMRValues& values) {
                values.Font = QFont(text);
                return true;
            }),
        // The built-in logo is not copied into the text; an empty or undecodable value keeps
        // the logo there is.
        Keys::bind(
            "ImageData", &WMRValues::ImageData, &WMRNode::logo,
            [](const WMRValues& values) {
                return values.ImageName == QLatin1String(BuiltInLogoName)
                           ? QString()
                           : logoDataUri(values.ImageData);
            },
            [](const QString& text, WMRValues& values) {
                const QImage decoded = logoFromDataUri(text);
                if (decoded.isNull())
                    return false;
                values.ImageData = decoded;
                return true;
            }),
        Keys::bind("ImageName", &WMRValues::ImageName, &WMRNode::logoLine),
    };
    return table;
}

QImage WMRNode::run(QImage image, const WMRValues& values)
{
    return OrkGraphX::drawWatermark(image, values);
}

QImage WMRNode::builtInLogo()
{
    static const QImage picture = asLogo(QImage(":/qubrast.png"));
    return picture;
}

QString WMRNode::logoDataUri(const QImage& logo)
{
    const QByteArray format = "PNG";
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    logo.save(&buffer, format);
    return "data:image/" + QString::fromLatin1(format).toLower() + ";base64," +
           QString::fromLatin1(bytes.toBase64());
}

QImage WMRNode::logoFromDataUri(const QString& text)
{
    const QLatin1String marker(";base64,");
    const int at = text.indexOf(marker);
    if (!text.startsWith(QLatin1String("data:")) || at < 0)
        return QImage();
    // The declared type is not trusted: the reader recognises the picture by its content.
    return asLogo(
        QImage::fromData(QByteArray::fromBase64(text.mid(at + marker.size()).toLatin1())));
}

bool WMRNode::openLogoFile(const QString& fileName)
{
    const QImage picture = asLogo(QImage(fileName));
    if (picture.isNull()) {
        QMessageBox::warning(this, tr("Warning"), tr("Can not open the image file:") + fileName,
                             QMessageBox::Ok);
        return false;
    }
    logo = picture;
    logoLine->setText(QFileInfo(fileName).fileName());
    emit parametersChanged();
    return true;
}

void WMRNode::slotModeChanged(int mode)
{
    updateRows(mode);
    emit parametersChanged();
}

void WMRNode::slotWMRBrowse()
{
    QStringList patterns;
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    for (const QByteArray& format : formats)
        patterns << "*." + QString::fromLatin1(format);
    const QString fileName =
        QFileDialog::getOpenFileName(this, tr("Open the watermark file"), QString(),
                                     tr("Images (%1);;All files (*)").arg(patterns.join(' ')));
    if (!fileName.isEmpty())
        openLogoFile(fileName);
}

void WMRNode::slotShrinkClicked(bool checked)
{
    compact = checked;
    updateRows(kindCombo->currentIndex());
    emit parametersChanged();
}

void WMRNode::addRow(QFormLayout* form, const QString& label, QWidget* field, int mode,
                     bool essential)
{
    form->addRow(label, field);
    rows.append({form->labelForField(field), {field}, mode, essential});
}

void WMRNode::addRow(QFormLayout* form, const QString& label, QLayout* fields, int mode,
                     bool essential)
{
    form->addRow(label, fields);
    Row row{form->labelForField(fields), {}, mode, essential};
    collectWidgets(fields, row.fields);
    rows.append(row);
}

QLayout* WMRNode::newPositionFields()
{
    auto* offsets = new QVBoxLayout;
    offsets->setSpacing(0);
    offsets->addWidget(xOffsetBox);
    offsets->addWidget(yOffsetBox);
    auto* fields = new QHBoxLayout;
    fields->setSpacing(rowSpacing);
    fields->addWidget(directions);
    fields->addLayout(offsets);
    return fields;
}

void WMRNode::updateRows(int mode)
{
    for (const Row& row : qAsConst(rows)) {
        const bool visible =
            (row.mode == bothModes || row.mode == mode) && (!compact || row.essential);
        for (QWidget* field : row.fields)
            field->setVisible(visible);
        row.label->setVisible(visible);
    }
}
