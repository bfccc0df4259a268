// The operations by display name, without widgets: what the batch runs, and how a flow's
// parameters become the parameter text a node of the window would write after reading them.
#pragma once

#include "textmacros.h"

#include <QDomDocument>
#include <QDomElement>
#include <QImage>
#include <QString>
#include <QStringList>

#include <functional>

// The fourteen names a flow may hold, in the factory's order.
QStringList operationNames();

// An operation with its parameter text read once, for a run over many images: apply gives the
// image through the operation's headless form, for the photo described (what a watermark's
// text macros name); resultSize says, without touching pixels, how large the full-size result
// is, so that a run can refuse a result too large before it is made and a look at the batch can
// say what the run will write. Both are safe on any thread; an unknown name leaves images and
// sizes as they are. forPreview runs the operation as the live preview runs it on its reduced
// working copy (Resize then caps its pixel sizes and leaves "Maximum pixels" to the full-size run).
struct PreparedOperation
{
    QString name;
    std::function<QImage(QImage, const PhotoContext&)> apply;
    std::function<QSize(const QSize&)> resultSize;
};
PreparedOperation prepareOperation(const QString& name, const QString& parametersText,
                                   bool forPreview = false);

// The named operation applied by its headless form to image with the stored parameter text, for
// no photo in particular (text macros name nothing).
QImage applyOperation(const QString& name, const QImage& image, const QString& parametersText);

// A node of the named operation as the window makes it, after reading parameters: whether it
// is active, and its parameter text (keys in table order, each at its default unless read,
// clamped as its control clamps it), and the keys whose text could not be read (their values
// stay as they were). False for a name that is not an operation.
bool readOperation(const QString& name, const QDomElement& parameters, bool* active,
                   QString* parametersText, QStringList* unread = nullptr);

namespace ParameterText {
// The Active flag after reading parameters: an "Active" child whose text is "yes" in any
// letter case switches on, any other text off; without one the flag stays as it was.
bool active(const QDomElement& parameters, bool current);
// A new "Parameters" element holding "Active" ("yes"/"no"), for the keys to follow.
QDomElement newElement(QDomDocument& document, bool active);
// The element, made by document, as the document's only element, indentation 1.
QString documentText(QDomDocument& document, const QDomElement& parameters);
} // namespace ParameterText
