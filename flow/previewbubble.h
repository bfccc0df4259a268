// A node's preview enlarged in a floating window that grows out of its thumbnail.
#pragma once

#include <QLabel>

class QPropertyAnimation;

class PreviewBubble : public QLabel
{
    Q_OBJECT

public:
    // origin: the thumbnail's rectangle in global coordinates, where the growth starts.
    PreviewBubble(const QPixmap& picture, const QRect& origin, QWidget* parent = nullptr);

    // Where the grown bubble ends: above origin (below when there is no room), on its screen.
    static QRect targetGeometry(const QSize& pictureSize, const QRect& origin, const QRect& screen);

protected:
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QPropertyAnimation* growth = nullptr;
};
