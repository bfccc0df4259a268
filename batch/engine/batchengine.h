// A batch run, shared by the window's batch and pelodine-batch: read each photo, run the
// operations over it, write the result. No widgets; one thread drives a run, others help it.
#pragma once

#include "batchoperations.h"
#include "imagebuffers.h"
#include "operationcatalogue.h"
#include "outputsettings.h"
#include "photometadata.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFuture>
#include <QHash>
#include <QImage>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>

// How BatchEngine::load may decode a photo.
struct PhotoDecoding
{
    // Memory for the pixels, reused from photo to photo.
    ImageBuffers* buffers = nullptr;
    // The size an upright photo of the given size is shrunk to first. A JPEG is then shrunk
    // exactly, as the whole photo turned upright would be, a row at a time as it is decoded.
    std::function<QSize(const QSize&)> shrinksTo = {};
    // Fast reading: a JPEG is instead decoded at the smallest of 1/8, 1/4 and 1/2 of its size
    // that is still at least as large as shrinksTo gives, by its decoder's DCT scaling.
    bool fast = false;
    // The pixels converted from the photo's colour profile to sRGB (ColorProfiles).
    bool toSrgb = false;
};

class BatchEngine
{
    Q_DECLARE_TR_FUNCTIONS(BatchEngine)

public:
    // A photo, or a null image and the reason there is none.
    struct Photo
    {
        QImage image;
        QString error;
        PhotoMetadata metadata = {};
        // Decoded reduced: the size the shrinking first operation gives the whole photo, which
        // the image is brought to instead of running it (shrunk while read, it is there already).
        QSize shrinkTo = {};
        // Encoded on the thread that made it, when no size budget searches a quality.
        QByteArray encodedPixels = {};
    };

    // The outcome of one write; error is empty when the file was written.
    struct WriteResult
    {
        bool written = false;
        QString error;
        // Said of a file written all the same (it is larger than the budget).
        QString note = {};
    };

    // What became of one photo: written to target, or the reason in error.
    struct Result
    {
        QImage image;
        QString target;
        QString error;
        QString note = {};
        bool written() const { return error.isEmpty(); }
    };

    // How a run treats files already in its folder, and how large a photo may be.
    struct Options
    {
        // Two photos that map to one name both survive: the later gets " (2)", " (3)", ...
        // before the extension. Off, the later replaces the earlier.
        bool keepEveryResult = false;
        // A file this run did not write is replaced; off, it stays and the photo fails.
        bool replaceExisting = true;
        // The most pixels a photo may have, checked before it is decoded.
        qint64 pixelBudget = 100'000'000;
        // How many photos are read and run through the operations at once, each on a thread of
        // its own, while the one before them is written.
        int jobs = 1;
        // Reading shrunk where the flow begins by shrinking the photo (see PhotoDecoding).
        bool fastReading = false;
        // A file this run did not write stays, and the photo takes the next free name: " (2)",
        // " (3)", ... before the extension.
        bool besideExisting = false;
    };

    // Asked before each photo of a run is started.
    enum class Next { Go, Pause, Stop };
    // How a run asks whether to go on and tells what became of each photo, both on the thread
    // that drives it. finished comes in the order of the positions run, once a photo is written
    // or has failed.
    struct Listener
    {
        std::function<Next()> next;
        std::function<void(int index, const Result& result)> finished;
    };

    // sources: local file paths in run order; destination: the folder, ending in "/".
    BatchEngine(const QStringList& sources, const BatchOperations& operations,
                const OutputSettings& settings, const QString& destination, const Options& options);
    BatchEngine(const BatchEngine&) = delete;
    BatchEngine& operator=(const BatchEngine&) = delete;

    int count() const { return sources.size(); }

    // The folder given as input that a source was found in, by the source's path. With the
    // settings' keepFolders, such a source is written into the same subfolder below the
    // destination, which is made as needed; never through a link.
    void setInputFolders(const QHash<QString, QString>& folderOfSource);

    // The numbers the odd and even naming schemes give the first photo; the photo at index i
    // gets 2 * i more, whatever became of the photos before it.
    void setCounters(int odd, int even);
    // After a run: the numbers the photo after the last one started would have had.
    int oddCounter() const { return odd; }
    int evenCounter() const { return even; }

    // The file the photo at index is written to: destination (and with keepFolders the subfolder
    // its source was found in) + its name + extension; with keepEveryResult a later photo of a
    // name already given gets " (2)", " (3)", ... before the extension, as does one whose file is
    // there already with besideExisting. Empty when the name would leave the folder.
    QString target(int index) const { return targets.value(index); }

    // The photos at positions (indexes, in the order given) read, run through the operations
    // and written. Up to jobs photos are read and run at once on threads of their own while
    // the oldest is written on this one, in position order: at most jobs + 1 photos are
    // decoded at any time. Before each photo is started next() is asked: Pause starts nothing
    // new, finishes the photos under way, then asks again every 500 ms; Stop starts nothing
    // more and returns once the photos under way are finished.
    void run(const Listener& listener, const QVector<int>& positions);
    // Every photo, in list order.
    void run(const Listener& listener);

    // Writes through a temporary file, so a failed write leaves no half-written file behind.
    // Refused: a source photo, a link (nothing is written through one), anything but a
    // regular file, and a file this run did not write unless the options allow replacing it.
    // The metadata goes in as the settings choose; a file that cannot take it is written
    // without it. encodedBefore: the image encoded already at the settings' quality (where no
    // size budget searches one), metadata not yet in.
    WriteResult write(const QImage& image, const QString& path, const PhotoMetadata& metadata = {},
                      const QByteArray& encodedBefore = {});
    // The photo with its EXIF orientation applied, in 32-bit ARGB (metadata is read apart). Only a
    // regular file is read; its size is read from its header first and a photo above pixelBudget is
    // refused undecoded. A photo its decoder complains about (truncated, corrupt data) is damaged
    // and not taken, whatever it decoded. Drawings (SVG, EPS) are not photos. A photo whose reader
    // tells sizes but cannot tell this one's is refused undecoded.
    static Photo load(const QString& path, qint64 pixelBudget, const PhotoDecoding& decoding = {});
    // The operations in order through their headless forms, for the photo described. An image
    // an operation leaves empty is reported instead of being handed to the next one, and one
    // that would grow past pixelBudget is refused before it is made.
    static Photo apply(QImage image, const QVector<PreparedOperation>& operations,
                       qint64 pixelBudget, const PhotoContext& photo = {});
    // The operations with their parameters read once (a logo is decoded once per run);
    // forPreview as the live preview runs them on its reduced working copy.
    static QVector<PreparedOperation> prepare(const BatchOperations& operations,
                                              bool forPreview = false);
    // The size apply makes of a photo of size, worked out without pixels; empty, with the
    // reason in error, when a step would grow past pixelBudget.
    static QSize resultSize(QSize size, const QVector<PreparedOperation>& operations,
                            qint64 pixelBudget, QString* error);

    // The folder of a run started at start under base: base + "yyyy-MM-dd_hh-mm-ss/", created
    // with its parents. With exclusive, a folder of that name that exists already is not
    // shared: the run takes "...-2/", "...-3/" and so on. Empty when it cannot be created.
    static QString createRunFolder(const QString& base, const QDateTime& start, bool exclusive);

private:
    // The photo at index read and run through the operations for the photo described; safe on
    // any thread.
    Photo readAndApply(int index, ImageBuffers& buffers, const PhotoContext& photo) const;
    // The photo at index, read and run, written to its target with its metadata.
    Result writeOut(int index, Photo photo);
    // Every photo's name and target, from the counters.
    void nameAll();
    // Whether a size budget has the quality searched for each photo.
    bool searchesQuality() const;
    // The image as the format takes it: laid on the background where the format has no
    // transparency.
    QImage asFormatTakesIt(const QImage& image) const;
    // An image as the format takes it encoded at quality, without metadata; empty when the
    // writer fails. Both safe on any thread.
    QByteArray encodedPixels(const QImage& written, int quality) const;
    // The subfolder below the destination that source goes into, ending in "/", or empty; error
    // says why a source outside its input folder has none.
    QString subfolderOf(const QString& source, QString& error) const;
    // Makes the destination's subfolder one level at a time, never through a link.
    bool makeSubfolder(const QString& subfolder, QString& error) const;
    // Whether a result must not go to target, given the targets named before it.
    bool isTaken(const QString& target, const QSet<QString>& given) const;

    QStringList sources;
    QHash<QString, QString> inputFolders;
    OutputSettings settings;
    QString destination;
    QString extension;
    int odd = 1;
    int even = 2;
    Options options;
    QSet<QString> sourcePaths;
    QSet<QString> writtenPaths;
    QVector<PreparedOperation> operations;
    QStringList names;
    QStringList targets;
    // Why the photo at an index has no target, where its folder is to blame.
    QStringList targetErrors;
};
