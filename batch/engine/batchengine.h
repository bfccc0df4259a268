// The per-photo work of a batch run, shared by the window's batch and pelodine-batch: read a
// photo, run the operations over it, write the result. No widgets; one thread drives it.
#pragma once

#include "batchoperations.h"
#include "outputsettings.h"

#include <QCoreApplication>
#include <QFuture>
#include <QImage>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QThreadPool>

class BatchEngine
{
    Q_DECLARE_TR_FUNCTIONS(BatchEngine)

public:
    // A photo, or a null image and the reason there is none.
    struct Photo
    {
        QImage image;
        QString error;
    };

    // The outcome of one write; error is empty when the file was written.
    struct WriteResult
    {
        bool written = false;
        QString error;
    };

    // What became of one photo: written to target, or the reason in error.
    struct Result
    {
        QImage image;
        QString target;
        QString error;
        bool written() const { return error.isEmpty(); }
    };

    // sources: local file paths in run order; destination: the folder, ending in "/".
    BatchEngine(const QStringList& sources, const BatchOperations& operations,
                const OutputSettings& settings, const QString& destination);
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
    // A path that is one of the run's sources is refused: a source photo is never replaced.
    WriteResult write(const QImage& image, const QString& path) const;

    // The photo with its EXIF orientation applied, in 32-bit ARGB. A photo its decoder
    // complains about (truncated, corrupt data) is damaged and not taken, whatever it decoded.
    static Photo load(const QString& path);
    // The operations in order through their headless forms. An image an operation leaves
    // empty is reported instead of being handed to the next one.
    static Photo apply(QImage image, const BatchOperations& operations);

private:
    QStringList sources;
    OutputSettings settings;
    QString destination;
    QString extension;
    int odd = 1;
    int even = 2;
    QSet<QString> sourcePaths;
    BatchOperations operations;
    QThreadPool readerPool;
    int readAheadIndex = -1;
    QFuture<Photo> readAhead;
};
