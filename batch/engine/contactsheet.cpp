#include "contactsheet.h"

#include "batchengine.h"
#include "outputsettings.h"
#include "previewcopy.h"

#include <QFileInfo>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>
#include <QThread>
#include <QtConcurrent>

#include <algorithm>
#include <cmath>

namespace {

const int gap = 8;
const int fontPixels = 14;
// Up to this many photos each result gets the preview's own width; more share a sheet of
// about the same area, so that a large batch still makes a sheet that opens.
const int fullSizeCells = 100;
const int smallestTile = 120;
const QColor sheetColour(0x2b, 0x2b, 0x2b);
const QColor tileColour(0x1c, 0x1c, 0x1c);
const QColor nameColour(0xe6, 0xe6, 0xe6);
const QColor sizeColour(0xa8, 0xa8, 0xa8);
const QColor errorColour(0xff, 0x6b, 0x6b);

QFont labelFont()
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(fontPixels);
    return font;
}

QString sizeText(const QSize& size)
{
    return QString("%1 × %2").arg(size.width()).arg(size.height());
}

} // namespace

ContactSheet::ContactSheet(int count, const BatchOperations& operations, qint64 pixelBudget)
    : previewOperations(BatchEngine::prepare(operations, true))
    , fullOperations(BatchEngine::prepare(operations))
    , pixelBudget(pixelBudget)
{
    count = std::max(count, 1);
    tileSide = count <= fullSizeCells
                   ? PreviewCopy::baseLimit
                   : std::max(smallestTile, int(PreviewCopy::baseLimit *
                                                std::sqrt(double(fullSizeCells) / count)));
    columnCount = int(std::ceil(std::sqrt(double(count))));
    const int rows = (count + columnCount - 1) / columnCount;
    labelHeight = 2 * QFontMetrics(labelFont()).height() + gap / 2;
    sheet = QImage(columnCount * (tileSide + gap) + gap,
                   rows * (tileSide + labelHeight + gap) + gap, QImage::Format_RGB32);
    sheet.fill(sheetColour);
    for (int i = 0; i < count; ++i)
        cellLabels << QString();
}

ContactSheet::Cell ContactSheet::run(const QString& path, int index) const
{
    Cell cell{QFileInfo(path).fileName(), {}, {}, {}};
    BatchEngine::Photo photo = BatchEngine::load(path, pixelBudget);
    if (photo.image.isNull()) {
        cell.error = photo.error;
        return cell;
    }
    cell.fullSize =
        BatchEngine::resultSize(photo.image.size(), fullOperations, pixelBudget, &cell.error);
    if (!cell.error.isEmpty())
        return cell;
    photo = BatchEngine::apply(PreviewCopy::reduced(photo.image), previewOperations, pixelBudget,
                               PhotoMetadata::read(path).describe(path, index, cellLabels.size()));
    cell.result = photo.image;
    cell.error = photo.error;
    return cell;
}

QRect ContactSheet::tileRect(int index) const
{
    const int column = index % columnCount;
    const int row = index / columnCount;
    return QRect(gap + column * (tileSide + gap), gap + row * (tileSide + labelHeight + gap),
                 tileSide, tileSide);
}

void ContactSheet::place(int index, const Cell& cell)
{
    if (index < 0 || index >= cellLabels.size())
        return;
    const QRect tile = tileRect(index);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(tile, tileColour);
    painter.setFont(labelFont());
    const QFontMetrics metrics(painter.font());
    const QString detail = cell.error.isEmpty() ? sizeText(cell.fullSize) : cell.error;
    if (cell.error.isEmpty()) {
        // As the window's result view shows it: fitted into the square, up or down.
        const QSize shown = cell.result.size().scaled(tile.size(), Qt::KeepAspectRatio);
        const QRect target(tile.left() + (tile.width() - shown.width()) / 2,
                           tile.top() + (tile.height() - shown.height()) / 2, shown.width(),
                           shown.height());
        painter.drawImage(target, cell.result);
    } else {
        painter.setPen(errorColour);
        painter.drawText(tile.adjusted(gap, gap, -gap, -gap), Qt::AlignCenter | Qt::TextWordWrap,
                         cell.error);
    }
    const QRect nameLine(tile.left(), tile.bottom() + 1 + gap / 2, tile.width(), metrics.height());
    painter.setPen(nameColour);
    painter.drawText(nameLine, Qt::AlignHCenter | Qt::AlignTop,
                     metrics.elidedText(cell.fileName, Qt::ElideMiddle, tile.width()));
    // A failure's reason is told in the tile already.
    if (cell.error.isEmpty()) {
        painter.setPen(sizeColour);
        painter.drawText(nameLine.translated(0, metrics.height()), Qt::AlignHCenter | Qt::AlignTop,
                         detail);
    }
    cellLabels[index] = cell.fileName + "\n" + detail;
}

void ContactSheet::addAll(const QStringList& paths,
                          const std::function<void(int index, const Cell& cell)>& done)
{
    // As many photos in hand as there are cores, each on its own; placed in order.
    QVector<QFuture<Cell>> running;
    const int inFlight = std::max(1, QThread::idealThreadCount());
    for (int started = 0, i = 0; i < paths.size(); ++i) {
        for (; started < paths.size() && started < i + inFlight; ++started)
            running << QtConcurrent::run(
                [this, path = paths.at(started), started] { return run(path, started); });
        const Cell cell = running.at(i).result();
        running[i] = {};
        place(i, cell);
        if (done)
            done(i, cell);
    }
}

QString ContactSheet::formatFor(const QString& fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    const QStringList formats = OutputSettings::formats();
    for (const QString& format : formats) {
        OutputSettings settings;
        settings.format = format;
        for (const bool shortForm : {false, true}) {
            settings.shortExtensions = shortForm;
            if (settings.extension() == suffix)
                return format;
        }
    }
    return {};
}
