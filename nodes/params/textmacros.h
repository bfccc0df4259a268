// The macros a watermark's text may hold, such as "{file}" or "{date:dd.MM.yyyy}", and the
// facts about one photo that they stand for.
#pragma once

#include <QDateTime>
#include <QString>

// What the text of a photo's watermark may name of it; empty where the photo does not say.
struct PhotoContext
{
    QString name;   // the display name: the file name without its last extension
    QString file;   // the file name
    QDateTime date; // when it was taken, else when its file was last changed
    QString camera; // make and model
    QString lens;
    QString artist;
    QString copyright;
    int number = 0; // 1-based position in the photo list
    int count = 0;  // number of photos in the list
};

namespace TextMacros {
// "{date}" alone.
constexpr const char* defaultDateFormat = "yyyy-MM-dd";
// text with each macro replaced by what it names of photo: {name}, {file}, {date},
// {date:FORMAT} (Qt's date format), {year}, {camera}, {lens}, {artist}, {copyright}, {n},
// {count}; "{{" and "}}" give one brace. Anything else stays as written.
QString expand(const QString& text, const PhotoContext& photo);
} // namespace TextMacros
