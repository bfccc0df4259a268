#include "watermark.h"

#include "pixelwords.h"

#include <QFontMetrics>
#include <QPainter>

namespace OrkGraphX {

using namespace PixelWords;

namespace {

// Beyond this pixel size the search stops, so that a text without advance (only zero-width
// characters) cannot double the size forever.
constexpr int LargestPixelSize = 1 << 15;

// The 3 x 3 grid cell of a w x h box on a width x height image, then the offsets (both in
// percent of the height, positive y moving up) and the 2-pixel margin around the content.
QRect watermarkRect(const QSize& image, int w, int h, const WMRParams& params)
{
    const int column = params.Position >= 0 && params.Position <= 8 ? params.Position % 3 : 0;
    const int row = params.Position >= 0 && params.Position <= 8 ? params.Position / 3 : 0;
    const int cellX[] = {0, (image.width() - w) / 2, image.width() - w};
    const int cellY[] = {0, (image.height() - h) / 2, image.height() - h};
    const int offX = int(qint64(params.XOffset) * image.height() / 100);
    const int offY = int(qint64(params.YOffset) * image.height() / 100);
    const int left = cellX[column] + offX - 2;
    const int top = cellY[row] - offY - 2;
    return QRect(QPoint(left, top), QPoint(left + w + 3, top + h + 3));
}

int textWidth(QFont& font, int pixelSize, const QString& text)
{
    font.setPixelSize(pixelSize);
    return QFontMetrics(font).horizontalAdvance(text);
}

// The first pixel size whose text is wider than target: doubling from 2, then counting up
// from half the size reached. It is one size more than fits, which is kept.
int watermarkPixelSize(QFont font, const QString& text, int target)
{
    int size = 2;
    while (textWidth(font, size, text) <= target) {
        if (size >= LargestPixelSize)
            return size;
        size *= 2;
    }
    size /= 2;
    while (textWidth(font, size, text) <= target)
        ++size;
    return size;
}

void drawText(QImage& image, const WMRParams& params)
{
    QFont font = params.Font;
    font.setWeight(params.Bold ? 75 : 50);
    font.setStyle(params.Italic ? QFont::StyleItalic : QFont::StyleNormal);
    font.setUnderline(params.Underlined);
    const int target = int(qint64(image.width()) * params.Size / 100);
    font.setPixelSize(watermarkPixelSize(font, params.Text, target));

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(1 - params.Transparency / 100.0);
    painter.setFont(font);
    const QFontMetrics metrics(font);
    const QRect rect = watermarkRect(image.size(), metrics.horizontalAdvance(params.Text),
                                     metrics.height(), params);
    if (params.BackgroundEnabled)
        painter.fillRect(rect, QBrush(params.Background, Qt::SolidPattern));
    painter.setPen(params.Color);
    painter.drawText(rect, Qt::AlignCenter, params.Text);
}

void drawLogo(QImage& image, const WMRParams& params)
{
    const QImage& logo = params.ImageData;
    // Drawing a null logo paints nothing, and its width of 0 leaves no aspect ratio.
    if (logo.isNull())
        return;
    QPainter painter(&image);
    painter.setOpacity(1 - params.Transparency / 100.0);
    if (params.Expand) {
        painter.drawImage(QRect(QPoint(0, 0), QPoint(image.width() - 1, image.height() - 1)), logo);
        return;
    }
    const float logoWidth = float(qint64(image.width()) * params.Size / 100.0);
    const int w = truncToInt(logoWidth);
    const int h = truncToInt(double(logo.height()) / logo.width() * logoWidth);
    const QRect rect = watermarkRect(image.size(), w, h, params);
    // The 2-pixel margin is part of the logo, not left empty.
    painter.drawImage(rect.topLeft(),
                      logo.scaled(rect.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

} // namespace

QImage drawWatermark(QImage& image, const WMRParams& params)
{
    if (image.isNull())
        return image;
    if (params.Mode == 0 && !params.Text.isEmpty())
        drawText(image, params);
    else if (params.Mode == 1)
        drawLogo(image, params);
    return image;
}

} // namespace OrkGraphX
