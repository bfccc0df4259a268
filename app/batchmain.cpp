// pelodine-batch: runs a flow over photos from the command line and writes what the window's
// batch writes for the same flow, photos and settings. Needs no display.
#include "appdata.h"
#include "batchengine.h"
#include "contactsheet.h"
#include "flowfile.h"
#include "flowoperations.h"
#include "outputnaming.h"
#include "outputsettings.h"
#include "pelodineconfig.h"
#include "photofiles.h"
#include "runclock.h"

#include <QCommandLineParser>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTextStream>

#include <climits>
#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

namespace {

// Exit codes.
const int allWritten = 0;
const int someFailed = 1;
const int badUsage = 2;

struct Job
{
    BatchOperations operations;
    OutputSettings settings;
    QString destination;
    QStringList photos;
    // The folder given that a photo was found in, by the photo's path.
    QHash<QString, QString> inputFolders;
    QString flowPath;
    // What the flow held that could not be taken.
    QStringList dropped;
    bool quiet = false;
    bool overwrite = false;
    bool lenient = false;
    // The sheet to write instead of the results, when asked for.
    QString contactSheet;
    bool resume = false;
    // This copy's share of the photos: the positions that leave shard when divided by shards.
    int shard = 0;
    int shards = 1;
};

// The tool's own words go to the standard error as it was at start; what the libraries
// print there themselves (libpng's "Read Error") goes nowhere, so the terminal shows only ours.
// A sanitizer build keeps the libraries' standard error for its reports.
QTextStream& err()
{
    static QFile own;
    static QTextStream stream(&own);
    if (!own.isOpen()) {
        const int ownFd = dup(STDERR_FILENO);
        own.open(ownFd, QIODevice::WriteOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle);
#if !defined(__SANITIZE_ADDRESS__)
        const int nowhere = open("/dev/null", O_WRONLY);
        dup2(nowhere, STDERR_FILENO);
        close(nowhere);
#endif
    }
    return stream;
}

void addOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(QCoreApplication::translate(
        "main",
        "Runs a Pelodine flow over photos and writes the results, as the window's \"Save "
        "Results\" does.\n"
        "Options that are not given take their defaults: JPEG at quality 90, the photos' own "
        "names, numbers all; with --use-window-settings they come from the settings of the "
        "Pelodine window.\n"
        "Progress and a summary go to the standard error; every photo that failed is named "
        "with the reason.\n"
        "Exit status: 0 when every photo was written, 1 when some failed or the flow holds "
        "something that cannot be taken (see --lenient), 2 for bad usage or a flow that cannot "
        "be read.\n"
        "A source photo is never written over; nothing is written through a link, outside the "
        "output folder, or over a file this run did not write (see --overwrite)."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({
        {"flow",
         QCoreApplication::translate("main", "The flow: a .flow file, or the name of a flow in "
                                             "the flows folder (%1). Default: the built-in "
                                             "sample flow.")
             .arg(OrkTools::AppData::flowsFolder()),
         "FILE|NAME"},
        {"output",
         QCoreApplication::translate("main", "The folder to write into. Default: a new folder "
                                             "named by the start time under %1.")
             .arg(OrkTools::AppData::outputBaseFolder()),
         "DIR"},
        {"format",
         QCoreApplication::translate("main", "The output format; the file extension is its name "
                                             "in lower case."),
         OutputSettings::formats().join('|')},
        {"quality",
         QCoreApplication::translate("main", "The quality of JPEG, WEBP, AVIF, JXL and HEIC."),
         "1-100"},
        {"rename",
         QCoreApplication::translate("main", "Name the files NAME followed by a number instead "
                                             "of the photo's name."),
         "NAME"},
        {"no-rename",
         QCoreApplication::translate("main", "Keep the photos' own names, also where the "
                                             "window's settings rename.")},
        {"numbers",
         QCoreApplication::translate("main", "The numbers when renaming: all 0, 1, 2, ...; odd "
                                             "1, 3, 5, ...; even 2, 4, 6, ..."),
         "all|odd|even"},
        {"use-window-settings",
         QCoreApplication::translate("main", "Take the options that are not given from the "
                                             "settings of the Pelodine window.")},
        {"overwrite",
         QCoreApplication::translate("main", "Replace files in the output folder that this run "
                                             "did not write.")},
        {"max-megapixels",
         QCoreApplication::translate("main", "The largest photo to read, in megapixels, checked "
                                             "before decoding; a flow may not grow a photo past "
                                             "it either. Default: %1.")
             .arg(OutputSettings().maxMegapixels),
         "N"},
        {"metadata",
         QCoreApplication::translate("main", "What the results keep of the photos' EXIF, IPTC "
                                             "and XMP: all of it, all but where the photo was "
                                             "taken (GPS and location fields), or none. "
                                             "Default: keep."),
         "keep|strip-location|strip"},
        {"max-kb",
         QCoreApplication::translate("main", "Keep every JPEG, WEBP, AVIF or JXL file at most N "
                                             "kilobytes: the highest quality up to --quality "
                                             "that fits; a photo that fits not even at quality "
                                             "1 is written at 1 and named."),
         "N"},
        {"background",
         QCoreApplication::translate("main", "The colour transparent pixels are laid on in JPEG, "
                                             "BMP and PPM, as a name or #rrggbb. Default: "
                                             "white."),
         "COLOR"},
        {"extension",
         QCoreApplication::translate("main", "The file extension: the format's name in lower "
                                             "case (jpeg, tiff) or the short one (jpg, tif). "
                                             "Default: format."),
         "format|short"},
        {"artist",
         QCoreApplication::translate("main", "Write TEXT as the artist into every result's "
                                             "EXIF, IPTC and XMP."),
         "TEXT"},
        {"copyright",
         QCoreApplication::translate("main", "Write TEXT as the copyright into every result's "
                                             "EXIF, IPTC and XMP."),
         "TEXT"},
        {"srgb",
         QCoreApplication::translate("main", "Convert each photo from its colour profile to "
                                             "sRGB before the flow and embed sRGB, as the web "
                                             "expects; a photo without a profile is taken as "
                                             "sRGB. Without it the photo's own profile is "
                                             "embedded.")},
        {"keep-folders",
         QCoreApplication::translate("main", "Write a photo found in a subfolder of a FOLDER "
                                             "given into the same subfolder below the output "
                                             "folder. The default, unless "
                                             "--use-window-settings says otherwise.")},
        {"no-keep-folders",
         QCoreApplication::translate("main", "Write every photo straight into the output "
                                             "folder.")},
        {"lenient",
         QCoreApplication::translate("main", "Run a flow that holds something that cannot be "
                                             "taken (an unknown operation, a logo that does not "
                                             "decode) without it, instead of stopping.")},
        {"quiet", QCoreApplication::translate("main", "Print only the photos that failed.")},
        {"contact-sheet",
         QCoreApplication::translate("main", "Write no results: run the flow on every photo at "
                                             "the size of the window's preview and write one "
                                             "sheet of them all into FILE, each labelled with "
                                             "its name and the size the run would write. The "
                                             "format follows FILE's extension."),
         "FILE"},
        {"jobs",
         QCoreApplication::translate("main", "Work on N photos at once. Default: one per core "
                                             "(%1).")
             .arg(OutputSettings().jobCount()),
         "N"},
        {"fast",
         QCoreApplication::translate("main", "Fast reading: when the flow begins by shrinking "
                                             "the photo to half or less, read a JPEG at 1/2, 1/4 "
                                             "or 1/8 of its size and finish the resize from "
                                             "there. The results have the same size, a little "
                                             "less sharp.")},
        {"resume",
         QCoreApplication::translate("main", "Skip every photo whose result is already in the "
                                             "--output folder, as after a run that was stopped.")},
        {"shard",
         QCoreApplication::translate("main", "Take only the photos whose position (from 0) leaves "
                                             "K when divided by N, named and numbered as in the "
                                             "whole list: N copies with K = 0 .. N-1 share the "
                                             "work."),
         "K/N"},
    });
    parser.addPositionalArgument(
        "PHOTO|FOLDER",
        QCoreApplication::translate("main", "Photos, and folders whose image files (subfolders "
                                            "included) are taken in name order."),
        "PHOTO|FOLDER...");
}

// Each step below fills its part of the job and returns an empty text, or the reason the
// command line cannot be run.

QString readFlow(const QCommandLineParser& parser, Job& job)
{
    QString path = ":/sample.flow";
    if (parser.isSet("flow")) {
        const QString flow = parser.value("flow");
        path = QFileInfo(flow).isFile() ? flow : FlowFile::findFlow(flow);
        if (path.isEmpty())
            return QCoreApplication::translate("main", "no flow file or flow named %1").arg(flow);
    }
    QString text;
    if (!FlowFile::readFlowFile(path, &text))
        return QCoreApplication::translate("main", "cannot read the flow %1").arg(path);
    bool ok = false;
    job.operations = batchOperationsFromFlow(text, &ok, &job.dropped);
    if (!ok)
        return QCoreApplication::translate("main", "%1 is not a flow: it is not well-formed XML")
            .arg(path);
    job.flowPath = path;
    return {};
}

// The option's value as a whole number from minimum to maximum; false when it is not one.
bool wholeNumber(const QCommandLineParser& parser, const QString& name, int minimum, int maximum,
                 int& value)
{
    bool ok = false;
    value = parser.value(name).toInt(&ok);
    return ok && value >= minimum && value <= maximum;
}

// --resume and --shard.
QString readShare(const QCommandLineParser& parser, Job& job)
{
    job.resume = parser.isSet("resume");
    if (job.resume && !parser.isSet("output"))
        return QCoreApplication::translate("main", "--resume needs the --output folder to "
                                                   "resume in");
    if (!parser.isSet("shard"))
        return {};
    const QStringList parts = parser.value("shard").split('/');
    bool shardOk = false;
    bool shardsOk = false;
    if (parts.size() == 2) {
        job.shard = parts.at(0).toInt(&shardOk);
        job.shards = parts.at(1).toInt(&shardsOk);
    }
    if (!shardOk || !shardsOk || job.shards < 1 || job.shard < 0 || job.shard >= job.shards)
        return QCoreApplication::translate("main", "the shard must be K/N with N at least 1 "
                                                   "and K from 0 to N-1");
    return {};
}

// The output settings' defaults, or the window's stored settings when asked for, with the
// options given on top.
QString readSettings(const QCommandLineParser& parser, Job& job)
{
    OutputSettings& settings = job.settings;
    settings = parser.isSet("use-window-settings") ? OutputSettings::load() : OutputSettings();
    if (parser.isSet("format")) {
        const QString format = parser.value("format").toUpper();
        if (!OutputSettings::formats().contains(format))
            return QCoreApplication::translate("main", "unknown format %1")
                .arg(parser.value("format"));
        settings.format = format;
    }
    if (parser.isSet("quality") && !wholeNumber(parser, "quality", 1, 100, settings.quality))
        return QCoreApplication::translate("main", "the quality must be 1 to 100");
    if (parser.isSet("rename") && parser.isSet("no-rename"))
        return QCoreApplication::translate("main", "--rename and --no-rename exclude each other");
    if (parser.isSet("rename")) {
        settings.rename = true;
        settings.newName = parser.value("rename");
        if (!OutputNaming::staysInFolder(settings.newName))
            return QCoreApplication::translate("main", "the new name must not hold \"/\" or be "
                                                       "\".\" or \"..\"");
    }
    if (parser.isSet("no-rename"))
        settings.rename = false;
    if (parser.isSet("numbers")) {
        settings.numbers = QStringList{"all", "odd", "even"}.indexOf(parser.value("numbers"));
        if (settings.numbers < 0)
            return QCoreApplication::translate("main", "the numbers must be all, odd or even");
    }
    if (parser.isSet("max-megapixels") &&
        !wholeNumber(parser, "max-megapixels", 1, INT_MAX, settings.maxMegapixels))
        return QCoreApplication::translate("main", "the megapixels must be a whole number "
                                                   "of at least 1");
    if (parser.isSet("metadata")) {
        settings.metadata =
            QStringList{"keep", "strip-location", "strip"}.indexOf(parser.value("metadata"));
        if (settings.metadata < 0)
            return QCoreApplication::translate("main", "the metadata must be keep, "
                                                       "strip-location or strip");
    }
    if (parser.isSet("max-kb") && !wholeNumber(parser, "max-kb", 1, INT_MAX, settings.maxKilobytes))
        return QCoreApplication::translate("main", "the kilobytes must be a whole number of "
                                                   "at least 1");
    if (parser.isSet("background")) {
        settings.background = QColor(parser.value("background"));
        if (!settings.background.isValid())
            return QCoreApplication::translate("main", "unknown colour %1")
                .arg(parser.value("background"));
    }
    if (parser.isSet("extension")) {
        const int form = QStringList{"format", "short"}.indexOf(parser.value("extension"));
        if (form < 0)
            return QCoreApplication::translate("main", "the extension must be format or short");
        settings.shortExtensions = form == 1;
    }
    if (parser.isSet("srgb"))
        settings.convertToSrgb = true;
    if (parser.isSet("keep-folders") && parser.isSet("no-keep-folders"))
        return QCoreApplication::translate("main", "--keep-folders and --no-keep-folders "
                                                   "exclude each other");
    // A folder's tree is kept unless the window's setting or --no-keep-folders says otherwise.
    if (parser.isSet("keep-folders") || !parser.isSet("use-window-settings"))
        settings.keepFolders = true;
    if (parser.isSet("no-keep-folders"))
        settings.keepFolders = false;
    if (parser.isSet("artist"))
        settings.artist = parser.value("artist");
    if (parser.isSet("copyright"))
        settings.copyright = parser.value("copyright");
    if (parser.isSet("jobs") &&
        !wholeNumber(parser, "jobs", 1, OutputSettings::maxJobs, settings.jobs))
        return QCoreApplication::translate("main", "the jobs must be a whole number from 1 to %1")
            .arg(OutputSettings::maxJobs);
    if (parser.isSet("fast"))
        settings.fastReading = true;
    job.overwrite = parser.isSet("overwrite");
    job.lenient = parser.isSet("lenient");
    if (parser.isSet("contact-sheet")) {
        if (parser.isSet("output"))
            return QCoreApplication::translate("main", "--contact-sheet writes no results: it "
                                                       "does not go with --output");
        job.contactSheet = QFileInfo(parser.value("contact-sheet")).absoluteFilePath();
        if (ContactSheet::formatFor(job.contactSheet).isEmpty())
            return QCoreApplication::translate("main", "the contact sheet's file must end in "
                                                       "the extension of an output format: %1")
                .arg(OutputSettings::formats().join(", ").toLower());
    }
    return readShare(parser, job);
}

QString findPhotos(const QStringList& arguments, Job& job)
{
    QList<QUrl> urls;
    for (const QString& argument : arguments)
        urls << QUrl::fromLocalFile(QFileInfo(argument).absoluteFilePath());
    const QList<QUrl> photos = PhotoFiles::expandFolders(urls, &job.inputFolders);
    for (const QUrl& photo : photos)
        job.photos << photo.toLocalFile();
    if (job.photos.isEmpty())
        return QCoreApplication::translate("main", "no photos in the folders given");
    return {};
}

QString makeDestination(const QCommandLineParser& parser, Job& job)
{
    // A time-stamped folder is this run's alone, not shared with a run of the same second.
    // The window's folder to save into, when its settings are used, stands for --output.
    const QString chosen = parser.isSet("output") ? parser.value("output") : job.settings.saveInto;
    if (!chosen.isEmpty()) {
        job.destination = QDir(chosen).absolutePath() + "/";
        if (QDir().mkpath(job.destination))
            return {};
    } else {
        job.destination = BatchEngine::createRunFolder(OrkTools::AppData::outputBaseFolder(),
                                                       QDateTime::currentDateTime(), true);
        if (!job.destination.isEmpty())
            return {};
    }
    return QCoreApplication::translate("main", "cannot create the folder %1")
        .arg(!chosen.isEmpty() ? job.destination : OrkTools::AppData::outputBaseFolder());
}

// The mistakes in the command line's own words, which --help sets right.
QString readCommandLine(QCommandLineParser& parser, Job& job)
{
    if (!parser.parse(QCoreApplication::arguments()))
        return parser.errorText();
    if (parser.isSet("help"))
        parser.showHelp(allWritten);
    if (parser.isSet("version"))
        parser.showVersion();
    job.quiet = parser.isSet("quiet");
    const QString error = readSettings(parser, job);
    if (error.isEmpty() && parser.positionalArguments().isEmpty())
        return QCoreApplication::translate("main", "no photos given");
    return error;
}

// What the command line names but cannot be had: the flow, the photos, the output folder.
QString prepareJob(const QCommandLineParser& parser, Job& job)
{
    QString error = readFlow(parser, job);
    if (error.isEmpty())
        error = findPhotos(parser.positionalArguments(), job);
    if (error.isEmpty() && job.contactSheet.isEmpty())
        error = makeDestination(parser, job);
    return error;
}

// What the flow held that could not be taken is named; without --lenient nothing is written.
bool acceptFlow(const Job& job)
{
    for (const QString& note : job.dropped)
        err() << "pelodine-batch: " << job.flowPath << ": " << note << Qt::endl;
    if (job.dropped.isEmpty() || job.lenient)
        return true;
    err() << QCoreApplication::translate("main", "pelodine-batch: nothing written; --lenient runs "
                                                 "the flow without what was left out")
          << Qt::endl;
    return false;
}

// The positions this copy takes; with --resume those whose result is there are left out and
// counted in skipped.
// A heading, then each line indented below it.
void printList(const QString& heading, const QStringList& lines)
{
    err() << heading << Qt::endl;
    for (const QString& line : lines)
        err() << "  " << line << Qt::endl;
}

QVector<int> positionsToRun(const Job& job, const BatchEngine& engine, int& skipped)
{
    QVector<int> positions;
    skipped = 0;
    for (int index = job.shard; index < engine.count(); index += job.shards) {
        if (job.resume && QFileInfo::exists(engine.target(index)))
            ++skipped;
        else
            positions << index;
    }
    return positions;
}

int run(const Job& job)
{
    if (!acceptFlow(job))
        return someFailed;
    BatchEngine engine(job.photos, job.operations, job.settings, job.destination,
                       {true, job.overwrite, job.settings.pixelBudget(), job.settings.jobCount(),
                        job.settings.fastReading});
    engine.setInputFolders(job.inputFolders);
    int skipped = 0;
    const QVector<int> positions = positionsToRun(job, engine, skipped);
    if (skipped > 0 && !job.quiet)
        err() << QCoreApplication::translate("main",
                                             "%n photo(s) skipped: their results are "
                                             "already in %1",
                                             nullptr, skipped)
                     .arg(job.destination)
              << Qt::endl;
    QStringList failures;
    QStringList notes;
    const int count = positions.size();
    RunClock clock(count);
    const auto report = [&](int index, const BatchEngine::Result& result) {
        clock.photoFinished();
        const QString& source = job.photos.at(index);
        if (!job.quiet)
            err() << clock.finished() << " of " << count << ": " << source << " ("
                  << clock.timeLeftText() << ", "
                  << QCoreApplication::translate("main", "%1 photos/s")
                         .arg(clock.photosPerSecond(), 0, 'f', 1)
                  << ")" << Qt::endl;
        if (!result.written())
            failures << source + ": " + result.error;
        else if (!result.note.isEmpty())
            notes << source + ": " + result.note;
    };
    engine.run({[] { return BatchEngine::Next::Go; }, report}, positions);
    if (!job.quiet)
        err() << QCoreApplication::translate("main", "%1 of %2 photos written into %3")
                     .arg(count - failures.size())
                     .arg(count)
                     .arg(job.destination)
              << Qt::endl;
    if (!failures.isEmpty())
        printList(
            QCoreApplication::translate("main", "%n photo(s) failed:", nullptr, failures.size()),
            failures);
    for (const QString& note : qAsConst(notes))
        err() << "  " << note << Qt::endl;
    return failures.isEmpty() ? allWritten : someFailed;
}

// The sheet of every photo's result at the preview's size, and no results.
int writeContactSheet(const Job& job)
{
    if (!acceptFlow(job))
        return someFailed;
    const int count = job.photos.size();
    ContactSheet sheet(count, job.operations, job.settings.pixelBudget());
    QStringList failures;
    sheet.addAll(job.photos, [&](int i, const ContactSheet::Cell& cell) {
        if (!job.quiet)
            err() << i + 1 << " of " << count << ": " << job.photos.at(i) << Qt::endl;
        if (!cell.error.isEmpty())
            failures << job.photos.at(i) + ": " + cell.error;
    });
    OutputSettings settings;
    settings.format = ContactSheet::formatFor(job.contactSheet);
    const QString folder = QFileInfo(job.contactSheet).absolutePath();
    if (!QDir().mkpath(folder)) {
        err() << "pelodine-batch: "
              << QCoreApplication::translate("main", "cannot create the folder %1").arg(folder)
              << Qt::endl;
        return someFailed;
    }
    BatchEngine writer(job.photos, {}, settings, folder + "/",
                       {false, job.overwrite, job.settings.pixelBudget()});
    const BatchEngine::WriteResult written = writer.write(sheet.image(), job.contactSheet);
    if (!written.written) {
        err() << "pelodine-batch: " << job.contactSheet << ": " << written.error << Qt::endl;
        return someFailed;
    }
    if (!job.quiet)
        err() << QCoreApplication::translate("main", "contact sheet of %1 photos written into %2")
                     .arg(count)
                     .arg(job.contactSheet)
              << Qt::endl;
    if (!failures.isEmpty())
        printList(QCoreApplication::translate("main", "%n photo(s) would fail:", nullptr,
                                              failures.size()),
                  failures);
    return failures.isEmpty() ? allWritten : someFailed;
}

} // namespace

int main(int argc, char* argv[])
{
    // One heap for every thread: the helpers' large images, freed, are taken up again by the
    // next photo on whichever thread instead of each thread keeping its own.
    mallopt(M_ARENA_MAX, 1);
    // Only this tool's own words reach the terminal: Qt's notes about the environment are not
    // for the user, and a decoder's complaint is part of its photo's report.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    err();
    // The watermark needs an application object with fonts, never a screen.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QGuiApplication::setOrganizationName("Qubrast");
    QGuiApplication::setApplicationName("Pelodine");
    QGuiApplication::setApplicationVersion(PELODINE_VERSION);

    QCommandLineParser parser;
    addOptions(parser);
    Job job;
    QString error = readCommandLine(parser, job);
    const bool badWords = !error.isEmpty();
    if (!badWords)
        error = prepareJob(parser, job);
    if (!error.isEmpty()) {
        err() << "pelodine-batch: " << error << Qt::endl;
        if (badWords)
            err() << QCoreApplication::translate("main", "see pelodine-batch --help") << Qt::endl;
        return badUsage;
    }
    return job.contactSheet.isEmpty() ? run(job) : writeContactSheet(job);
}
