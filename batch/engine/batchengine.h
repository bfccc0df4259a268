// The per-photo work of a batch run, shared by the window's batch and pelodine-batch: read a
// photo, run the operations over it, write the result. No widgets; one thread drives it.
#pragma once

#include "batchoperations.h"
#include "imagebuffers.h"
#include "operationcatalogue.h"
#include "outputsettings.h"
#include "photometadata.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFuture>
#include <QImage>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QThreadPool>
#include <QVector>

// How BatchEngine::load may decode a photo.
struct PhotoDecoding
{
    // Memory for the pixels, reused from photo to photo.
    ImageBuffers* buffers = nullptr;
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
    };

    // sources: local file paths in run order; destination: the folder, ending in "/".
    BatchEngine(const QStringList& sources, const BatchOperations& operations,
                const OutputSettings& settings, const QString& destination, const Options& options);
    // Waits for a read that is still running.
    ~BatchEngine();

    BatchEngine(const BatchEngine&) = delete;
    BatchEngine& operator=(const BatchEngine&) = delete;

    int count() const { return sources.size(); }

    // The numbers the odd and even naming schemes give next; a run continues from them.
    void setCounters(int odd, int even);
    int oddCounter() const { return odd; }
    int evenCounter() const { return even; }

    // The photo at index read, run through the operations, named as the settings say and
    // written into the destination.
    Result step(int index);

    // The source at index read and run through the operations. Reading the next source starts
    // on a second thread at once, so it overlaps this photo's operations and writing; at most
    // one photo is read ahead.
    Photo process(int index);

    // Writes through a temporary file, so a failed write leaves no half-written file behind.
    // Refused: a source photo, a link (nothing is written through one), anything but a
    // regular file, and a file this run did not write unless the options allow replacing it.
    // The metadata goes in as the settings choose; a file that cannot take it is written
    // without it.
    WriteResult write(const QImage& image, const QString& path, const PhotoMetadata& metadata = {});
    // The photo with its EXIF orientation applied, in 32-bit ARGB, and its metadata. Only a regular
    // file is read; its size is read from its header first and a photo above pixelBudget is refused
    // undecoded. A photo its decoder complains about (truncated, corrupt data) is damaged and
    // not taken, whatever it decoded. SVG drawings are not photos: they may read local files.
    static Photo load(const QString& path, qint64 pixelBudget, const PhotoDecoding& decoding = {});
    // The operations in order through their headless forms. An image an operation leaves
    // empty is reported instead of being handed to the next one, and one that would grow past
    // pixelBudget is refused before it is made.
    static Photo apply(QImage image, const QVector<PreparedOperation>& operations,
                       qint64 pixelBudget);
    // The operations with their parameters read once (a logo is decoded once per run).
    static QVector<PreparedOperation> prepare(const BatchOperations& operations);

    // The folder of a run started at start under base: base + "yyyy-MM-dd_hh-mm-ss/", created
    // with its parents. With exclusive, a folder of that name that exists already is not
    // shared: the run takes "...-2/", "...-3/" and so on. Empty when it cannot be created.
    static QString createRunFolder(const QString& base, const QDateTime& start, bool exclusive);

private:
    QStringList sources;
    OutputSettings settings;
    QString destination;
    QString extension;
    int odd = 1;
    int even = 2;
    Options options;
    QSet<QString> sourcePaths;
    QSet<QString> writtenPaths;
    QVector<PreparedOperation> operations;
    QThreadPool readerPool;
    int readAheadIndex = -1;
    QFuture<Photo> readAhead;
    std::shared_ptr<ImageBuffers> buffers;
};
