// The photo list as a list model: display names and 48 x 48 thumbnails, cached per row.
#pragma once

#include <QAbstractListModel>
#include <QImage>
#include <QList>
#include <QMap>
#include <QUrl>

class ItemsModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit ItemsModel(QObject* parent = nullptr);

    void setPhotos(const QList<QUrl>& urls);
    QList<QUrl> photos() const { return urls; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    // The photo read at a twentieth of its size and fitted into a transparent 48 x 48 square.
    static QImage thumbnailOf(const QString& path);
    // Scales into a 48 x 48 square keeping the aspect ratio, centred on transparent grey.
    static QImage fitIntoThumbnail(const QImage& image);

private:
    QList<QUrl> urls;
    mutable QMap<int, QImage> cache;
};
