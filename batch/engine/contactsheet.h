// A look at a whole batch before it is written: every photo run through the flow at the size of
// the window's preview and laid out in a grid, each cell labelled with the photo's file name and
// the size the real run writes, or with the reason the photo fails. No widgets.
#pragma once

#include "batchoperations.h"
#include "operationcatalogue.h"

#include <QCoreApplication>
#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

class ContactSheet
{
    Q_DECLARE_TR_FUNCTIONS(ContactSheet)

public:
    // One photo's cell: its result at the preview's size and the size of the full result, or
    // the reason it fails.
    struct Cell
    {
        QString fileName;
        QImage result;
        QSize fullSize;
        QString error;
    };

    // A sheet of count cells for the flow's operations; a photo above pixelBudget, or one the
    // flow would grow past it, fails as it would in the run.
    ContactSheet(int count, const BatchOperations& operations, qint64 pixelBudget);

    // The photo at path, the index-th of the sheet, read, reduced as the preview reduces it and
    // run. Safe on any thread.
    Cell run(const QString& path, int index = 0) const;
    // Draws the cell at index, in reading order.
    void place(int index, const Cell& cell);
    // Runs and places every photo, one per core at once; done hears of each in order, on this
    // thread.
    void addAll(const QStringList& paths,
                const std::function<void(int index, const Cell& cell)>& done = {});

    const QImage& image() const { return sheet; }
    int columns() const { return columnCount; }
    // What each cell reads: the name, then the size, or the reason told in its tile.
    QStringList labels() const { return cellLabels; }

    // The output format of a file named so, by its extension in either form ("jpg" or "jpeg"
    // give "JPEG"); empty when no output format has it.
    static QString formatFor(const QString& fileName);

private:
    QRect tileRect(int index) const;

    QVector<PreparedOperation> previewOperations;
    QVector<PreparedOperation> fullOperations;
    qint64 pixelBudget;
    int tileSide;
    int columnCount;
    int labelHeight;
    QImage sheet;
    QStringList cellLabels;
};
