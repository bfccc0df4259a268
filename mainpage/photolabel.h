// The square picture of either side of the main page: a photo drawn fitted into the area, with
// previous and next buttons and an info line that show while the pointer is over several photos.
#pragma once

#include <QLabel>
#include <QPixmap>

class QPushButton;
class QVBoxLayout;

class PhotoLabel : public QLabel
{
    Q_OBJECT

public:
    explicit PhotoLabel(QWidget* parent = nullptr);

    // Drawn fitted into the area and centred, so a picture of twice the area's size stays
    // sharp on a high-density screen. A null picture shows nothing.
    void setPicture(const QPixmap& picture);
    QPixmap picture() const { return shownPicture; }

    // "<H1>n of m</H1>" for the 0-based index of count photos.
    static QString positionText(int index, int count);

    // A line at the foot of the area, under the info line, shown while it is not empty.
    void setCaption(const QString& caption);
    QString caption() const;
    // "IMG_0001.jpg · 4000 × 3000"; without a name only the size, for an empty size only the
    // name.
    static QString captionText(const QString& fileName, const QSize& size);

protected:
    // Drawn fitted under the text while there is no picture.
    void setBackground(const QPixmap& background);
    void setStepControlsVisible(bool visible);
    void paintEvent(QPaintEvent* event) override;

    QPushButton* previousButton = nullptr;
    QPushButton* nextButton = nullptr;
    QLabel* infoLabel = nullptr;
    // The middle column: a stretch, the info label, the caption, then what a subclass appends.
    QVBoxLayout* column = nullptr;

private:
    QLabel* captionLabel = nullptr;
    QPixmap shownPicture;
    QPixmap backgroundPicture;
};
