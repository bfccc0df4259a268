// The pieces of the program's start that tests reach without running main(): the help and
// version texts, the files it is given, the help slides of a language, and opening photos and
// flows in the main page.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

class MainPage;

namespace Startup {

// What "--help" (or "-h") and "--version" (or "-v") among the arguments print before the
// program leaves, without a window or a word to a running instance; empty for other arguments.
QString commandLineReply(const QStringList& arguments);

// The existing files among the program's arguments (the first is the program), as absolute paths.
QStringList fileArguments(const QStringList& arguments);

// The eleven compiled-in help slides of language, slide 1 first; a language other than "en",
// "de" or "ru" gets the English ones.
QStringList helpSlides(const QString& language);

// Paths one per line, as the command line and a second instance hand them over: lines ending
// in ".flow" name flows, every other line a photo.
struct OpenRequest
{
    QList<QUrl> photos;
    QStringList flows;
};
OpenRequest splitPaths(const QString& lines);

// Loads the last readable flow of the request into the flow panel and appends the photos to the
// photo list; the page is shown when anything was opened. False when nothing was.
bool openPaths(MainPage* page, const QString& lines);

} // namespace Startup
