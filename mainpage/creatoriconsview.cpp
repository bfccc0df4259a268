#include "creatoriconsview.h"

#include "commondata.h"
#include "itemsmodel.h"

#include <QApplication>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

// A cell holds the thumbnail above the photo's name; the model's size hint is the thumbnail's.
class IconCellDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    // 84 x 76 around a 48 x 48 thumbnail; larger thumbnails leave less room at the sides, so
    // that three results' cells fit across the list.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        Q_UNUSED(option)
        const QSize thumbnail = index.data(Qt::SizeHintRole).toSize();
        return QSize(std::max(84, thumbnail.width() + 12), thumbnail.height() + 28);
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        cell.text.clear();
        cell.icon = {};
        cell.features &= ~QStyleOptionViewItem::HasDecoration;
        const QWidget* widget = option.widget;
        QStyle* style = widget ? widget->style() : QApplication::style();
        style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, widget);

        const QSize thumbnailSize = index.data(Qt::SizeHintRole).toSize();
        const QImage thumbnail = index.data(Qt::DecorationRole).value<QImage>();
        const QRect area = option.rect.adjusted(2, 4, -2, -2);
        const QRect thumbnailRect(area.left() + (area.width() - thumbnailSize.width()) / 2,
                                  area.top(), thumbnailSize.width(), thumbnailSize.height());
        if (!thumbnail.isNull())
            painter->drawImage(thumbnailRect, thumbnail);

        const QRect textRect(area.left(), thumbnailRect.bottom() + 3, area.width(),
                             area.bottom() - thumbnailRect.bottom() - 3);
        const QString name = index.data(Qt::DisplayRole).toString();
        painter->setPen(option.palette.color(
            option.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text));
        painter->drawText(textRect, Qt::AlignHCenter | Qt::AlignTop,
                          option.fontMetrics.elidedText(name, Qt::ElideMiddle, textRect.width()));
    }
};

} // namespace

CreatorIconsView::CreatorIconsView(QWidget* parent)
    : QListView(parent)
{
    setObjectName("CreatorIconsView");
    setViewMode(QListView::IconMode);
    setMovement(QListView::Static);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    setSpacing(2);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setItemDelegate(new IconCellDelegate(this));
    // The page adds the photo list's commands; a right click first makes its photo current.
    setContextMenuPolicy(Qt::ActionsContextMenu);
    setModel(CommonData::instance()->itemsModel());
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
            &CreatorIconsView::slotCurrentItem);
}

void CreatorIconsView::slotUpdateItems(const QList<QUrl>& urls)
{
    quiet = true;
    CommonData* data = CommonData::instance();
    data->itemsModel()->setPhotos(urls);
    // The drop area has stored its current photo already, and has loaded it.
    slotSetCurrentIndex(data->currentIndex);
    quiet = false;
}

void CreatorIconsView::slotSetCurrentIndex(int row)
{
    setCurrentIndex(model()->index(row, 0));
}

void CreatorIconsView::slotCurrentItem(const QModelIndex& current, const QModelIndex& previous)
{
    Q_UNUSED(previous)
    // While hidden the list only follows the drop area, which loads the photo itself.
    if (!quiet && current.isValid() && !isHidden())
        emit itemClicked(current.row());
}
