// The per-photo work of a batch run, shared by the window's batch and pelodine-batch: read a
// photo, run the operations over it, write the result. No widgets; one thread drives it.
#pragma once

#include "batchoperations.h"

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

    // sources: local file paths in run order. format: the writer's format name ("JPEG", ...);
    // quality: 1..100, or -1 for the format's default.
    BatchEngine(const QStringList& sources, const BatchOperations& operations,
                const QString& format, int quality);
    // Waits for a read that is still running.
    ~BatchEngine();

    BatchEngine(const BatchEngine&) = delete;
    BatchEngine& operator=(const BatchEngine&) = delete;

    int count() const { return sources.size(); }

    // The source at index read and run through the operations. Reading the next source starts
    // on a second thread at once, so it overlaps this photo's operations and writing; at most
    // one photo is read ahead.
    Photo process(int index);

    // Writes through a temporary file, so a failed write leaves no half-written file behind.
    // A path that is one of the run's sources is refused: a source photo is never replaced.
    WriteResult write(const QImage& image, const QString& path) const;

    // The photo with its EXIF orientation applied, in 32-bit ARGB.
    static Photo load(const QString& path);
    // The operations in order through their headless forms. An image an operation leaves
    // empty is reported instead of being handed to the next one.
    static Photo apply(QImage image, const BatchOperations& operations);

private:
    QStringList sources;
    QSet<QString> sourcePaths;
    BatchOperations operations;
    QString format;
    int quality = -1;
    QThreadPool readerPool;
    int readAheadIndex = -1;
    QFuture<Photo> readAhead;
};
