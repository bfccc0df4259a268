// The thumbnail on a node's tab: the node's preview at 70 x 70, enlarged on request.
#pragma once

#include <QLabel>
#include <QPixmap>

class QPushButton;

class TabLabel : public QLabel
{
    Q_OBJECT

public:
    explicit TabLabel(QWidget* parent = nullptr);

    // Keeps preview for the enlarged view and shows it fitted into the label.
    void setPreview(const QPixmap& preview);
    QPixmap preview() const { return fullPreview; }

public slots:
    // Shows the preview enlarged in a bubble that grows out of the label.
    void slotShowPreview();

protected:
    // The "ThumbnailPreviewButton" stays hidden except while the pointer is over a preview.
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void showThumbnail();

    QPixmap fullPreview;
    QPushButton* previewButton = nullptr;
};
