#include "startup.h"

#include "flowfile.h"
#include "flowpanel.h"
#include "mainpage.h"
#include "pelodineconfig.h"

#include <QFileInfo>

namespace Startup {

QStringList fileArguments(const QStringList& arguments)
{
    QStringList files;
    for (int i = 1; i < arguments.size(); ++i) {
        const QFileInfo info(arguments.at(i));
        if (info.exists())
            files << info.absoluteFilePath();
    }
    return files;
}

QString commandLineReply(const QStringList& arguments)
{
    for (int i = 1; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        if (argument == QLatin1String("--version") || argument == QLatin1String("-v"))
            return QStringLiteral("Pelodine " PELODINE_VERSION "\n");
        if (argument == QLatin1String("--help") || argument == QLatin1String("-h"))
            return QStringLiteral(
                "Usage: pelodine [photo | folder | flow.flow]...\n"
                "Puts watermarks on photos, resizes, crops and more, in a flow that runs over\n"
                "all of them in one batch.\n"
                "\n"
                "Photos, and the photos inside folders and their subfolders, are added to the\n"
                "photo list, also of a Pelodine that is running already; a file ending in\n"
                "\".flow\" is loaded into the flow panel.\n"
                "\n"
                "Options:\n"
                "  -h, --help     Shows this help and exits.\n"
                "  -v, --version  Shows the version and exits.\n"
                "\n"
                "To run a flow over photos without the window: pelodine-batch --help\n");
    }
    return {};
}

QStringList helpSlides(const QString& language)
{
    const bool hasSlides = language == QLatin1String("en") || language == QLatin1String("de") ||
                           language == QLatin1String("ru");
    QStringList slides;
    for (int i = 1; i <= 11; ++i)
        slides << QString(":/help/%1/slide%2.png").arg(hasSlides ? language : "en").arg(i);
    return slides;
}

OpenRequest splitPaths(const QString& lines)
{
    OpenRequest request;
    const QStringList paths = lines.split('\n', Qt::SkipEmptyParts);
    for (const QString& path : paths) {
        if (path.endsWith(QLatin1String(".flow"), Qt::CaseInsensitive))
            request.flows << path;
        else
            request.photos << QUrl::fromLocalFile(path);
    }
    return request;
}

bool openPaths(MainPage* page, const QString& lines)
{
    const OpenRequest request = splitPaths(lines);
    bool flowLoaded = false;
    // Flows replace each other, so only the last one that can be read counts.
    for (auto flow = request.flows.crbegin(); flow != request.flows.crend() && !flowLoaded;
         ++flow) {
        QString text;
        if (FlowFile::readFlowFile(*flow, &text)) {
            page->flowPanel()->loadFlow(text);
            flowLoaded = true;
        }
    }
    if (!request.photos.isEmpty())
        page->slotFilesAdded(request.photos);
    else if (flowLoaded)
        page->show();
    return flowLoaded || !request.photos.isEmpty();
}

} // namespace Startup
