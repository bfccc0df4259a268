#include "textmacros.h"

namespace {

// What the macro between its braces stands for; false for a word that names nothing.
bool valueOf(const QString& macro, const PhotoContext& photo, QString* value)
{
    const QLatin1String datePrefix("date:");
    if (macro.startsWith(datePrefix)) {
        const QString format = macro.mid(datePrefix.size());
        *value = photo.date.toString(format.isEmpty() ? TextMacros::defaultDateFormat : format);
        return true;
    }
    const std::pair<const char*, QString> named[] = {
        {"name", photo.name},
        {"file", photo.file},
        {"date", photo.date.toString(TextMacros::defaultDateFormat)},
        {"year", photo.date.toString("yyyy")},
        {"camera", photo.camera},
        {"lens", photo.lens},
        {"artist", photo.artist},
        {"copyright", photo.copyright},
        {"n", QString::number(photo.number)},
        {"count", QString::number(photo.count)},
    };
    for (const auto& [name, text] : named) {
        if (macro == QLatin1String(name)) {
            *value = text;
            return true;
        }
    }
    return false;
}

} // namespace

namespace TextMacros {

QString expand(const QString& text, const PhotoContext& photo)
{
    QString expanded;
    expanded.reserve(text.size());
    for (int at = 0; at < text.size(); ++at) {
        const QChar brace = text.at(at);
        const bool doubled =
            (brace == '{' || brace == '}') && at + 1 < text.size() && text.at(at + 1) == brace;
        if (doubled) {
            expanded += brace;
            ++at;
            continue;
        }
        const int end = brace == '{' ? text.indexOf('}', at + 1) : -1;
        QString value;
        if (end > 0 && valueOf(text.mid(at + 1, end - at - 1), photo, &value)) {
            expanded += value;
            at = end;
        } else {
            expanded += brace;
        }
    }
    return expanded;
}

} // namespace TextMacros
