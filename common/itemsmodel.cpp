#include "itemsmodel.h"

#include "commondata.h"
#include "photofiles.h"

#include <QPainter>

namespace {
// Thumbnails are decoded at a twentieth of the photo's size: plenty for 48 x 48, and fast.
constexpr int thumbnailDivisor = 20;
} // namespace

ItemsModel::ItemsModel(QObject* parent)
    : QAbstractListModel(parent)
{
}

void ItemsModel::setPhotos(const QList<QUrl>& newUrls)
{
    beginResetModel();
    urls = newUrls;
    cache.clear();
    results.clear();
    endResetModel();
}

int ItemsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : urls.size();
}

QVariant ItemsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() < 0 || index.column() < 0 || index.row() >= urls.size())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return CommonData::displayNameOf(urls.at(index.row()).toLocalFile());
    case Qt::SizeHintRole:
        return showResults ? QSize(resultSide, resultSide) : QSize(thumbnailSide, thumbnailSide);
    case Qt::DecorationRole: {
        if (showResults)
            return results.value(index.row());
        auto cached = cache.constFind(index.row());
        if (cached != cache.constEnd())
            return *cached;
        const QImage thumbnail = thumbnailOf(urls.at(index.row()).toLocalFile());
        cache.insert(index.row(), thumbnail);
        return thumbnail;
    }
    default:
        return {};
    }
}

bool ItemsModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    Q_UNUSED(role)
    if (!index.isValid() || index.row() >= urls.size() || !value.canConvert<QUrl>())
        return false;
    urls[index.row()] = value.toUrl();
    cache.remove(index.row());
    results.remove(index.row());
    emit dataChanged(index, index);
    return true;
}

QImage ItemsModel::thumbnailOf(const QString& path)
{
    return fitIntoThumbnail(PhotoFiles::read(path, thumbnailDivisor));
}

QImage ItemsModel::fitIntoThumbnail(const QImage& image, int side)
{
    if (image.isNull())
        return image;
    const QImage scaled = image.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    // An opaque format could not hold the transparent border.
    const QImage::Format format =
        scaled.hasAlphaChannel() ? scaled.format() : QImage::Format_ARGB32_Premultiplied;
    QImage result(side, side, format);
    result.fill(QColor(100, 100, 100, 0));
    QPainter painter(&result);
    if (scaled.width() >= side) {
        const int y = scaled.height() < side ? (side - scaled.height()) / 2 : 0;
        painter.drawImage(0, y, scaled);
    } else {
        painter.drawImage((side - scaled.width()) / 2, 0, scaled);
    }
    return result;
}

void ItemsModel::setShowResults(bool show)
{
    if (show == showResults)
        return;
    emit layoutAboutToBeChanged();
    showResults = show;
    emit layoutChanged();
}

void ItemsModel::setResultThumbnail(int row, const QImage& thumbnail)
{
    if (row < 0 || row >= urls.size())
        return;
    results.insert(row, thumbnail);
    if (showResults)
        emit dataChanged(index(row), index(row), {Qt::DecorationRole});
}
