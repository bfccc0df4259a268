// "Watermark" without its widgets: a text or a logo placed on the image. The logo travels
// inside the parameter text as a data URI, so a flow never refers to the file it came from.
#pragma once

#include "operations.h"
#include "textmacros.h"
#include "wmrparams.h"

// The kernel's record plus the logo's file name, which is stored but not drawn.
struct WMRValues : OrkGraphX::WMRParams
{
    // Every other value starts at zero; the logo starts as the built-in one.
    WMRValues();
    QString ImageName;
};

struct WMROperation
{
    using Values = WMRValues;
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Watermark");
    static const ParamTable<Values>& table();
    static QImage run(QImage image, const Values& values);
    // The values for one photo: the text's macros replaced by what they name of it.
    static Values forPhoto(Values values, const PhotoContext& photo);
};

namespace WatermarkLogo {
// The "Logo:" text of the built-in logo; with it "ImageData" is stored empty.
constexpr const char* BuiltInName = "qubrast.png";
// The built-in logo ":/qubrast.png", loaded once.
QImage builtIn();
// Logos are kept as ARGB32 whatever file or text they came from, so that the preview and the
// headless form draw the very same pixels.
QImage fromPicture(const QImage& picture);
// "data:image/png;base64,..." whatever format the logo came from.
QString toDataUri(const QImage& logo);
// The largest logo taken, in pixels, read from the picture's header before it is decoded.
constexpr qint64 maxPixels = 100'000'000;
// Any picture format Qt reads, behind "data:...;base64,"; a null image when it does not decode
// or is larger than maxPixels.
QImage fromDataUri(const QString& text);
// The picture in a file, by the same rules.
QImage fromFile(const QString& path);
// The picture in bytes, by the same rules. An SVG drawing is drawn without anything it names
// outside itself, so that a flow cannot pull a local file into a photo.
QImage fromBytes(QByteArray bytes);
// The SVG with every reference to something outside it (an href that is neither "#..." nor a
// "data:" URI) taken out; empty when it is not XML.
QByteArray withoutOutsideReferences(const QByteArray& svg);
} // namespace WatermarkLogo
