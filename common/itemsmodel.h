// The photo list as a list model: display names and 48 x 48 thumbnails, cached per row; or,
// while it shows results, the larger thumbnails of the flow's results that are handed to it.
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
    // Scales into a side x side square keeping the aspect ratio, centred on transparent grey.
    static constexpr int thumbnailSide = 48;
    static QImage fitIntoThumbnail(const QImage& image, int side = thumbnailSide);

    // The side of the results' thumbnails: large enough to see a watermark's edge.
    static constexpr int resultSide = 96;
    // Whether the rows show the flow's results instead of the photos; a row whose result has
    // not come yet shows none. Changes the rows' size.
    void setShowResults(bool show);
    bool showsResults() const { return showResults; }
    // The result of the photo at row, fitted into resultSide; kept until the photos change.
    void setResultThumbnail(int row, const QImage& thumbnail);

private:
    QList<QUrl> urls;
    mutable QMap<int, QImage> cache;
    QMap<int, QImage> results;
    bool showResults = false;
};
