#include "watermark.h"

#include "pixelwords.h"
#include "watermarkchoice.h"

#include <QFontMetrics>
#include <QGlyphRun>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <QTextLayout>
#include <QTransform>

#include <cmath>
#include <functional>

namespace OrkGraphX {

using namespace PixelWords;

namespace {

// Beyond this pixel size the search stops, so that a text without advance (only zero-width
// characters) cannot double the size forever.
constexpr int LargestPixelSize = 1 << 15;

// Room around a turned or outlined mark for the antialiased edge.
constexpr int EdgeRoom = 2;

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

// Qt's FreeType engines on one thread share a face per font file, and a glyph rendered into the
// glyph cache (text of up to 64 pixels) leaves its sub-pixel offset set on that face; outlines
// (larger text, the outlined letters) are then loaded shifted by it. A new engine on the face
// sets the offset back to none, so that the letters do not depend on what the thread drew before.
void clearGlyphOffsets(const QFont& font, const QString& text)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    for (const QGlyphRun& run : layout.glyphRuns()) {
        QRawFont face = run.rawFont();
        face.setPixelSize(face.pixelSize() + 1);
    }
}

// The length "Size" is a percentage of: the width, the long edge or the short edge.
int sizeBase(const QSize& image, int sizeOf)
{
    if (sizeOf == 1)
        return std::max(image.width(), image.height());
    if (sizeOf == 2)
        return std::min(image.width(), image.height());
    return image.width();
}

// A percentage of the text height in whole pixels, the percentage held in 0..maximum.
int ofHeight(int height, int percent, int maximum)
{
    return int(qint64(height) * qBound(0, percent, maximum) / 100);
}

// A mark drawn once into a picture of its own, which lies at `at` on the image.
struct Mark
{
    QImage picture;
    QPoint at;
};

// The mark of a drawing rectangle, turned by angle about its centre, over the pixels of area
// (image coordinates) or, when area is null, over all of it. draw paints the unturned mark into
// its rectangle at the origin.
Mark drawnMark(const QRect& rect, int angle, int margin, const QRect& area,
               const std::function<void(QPainter&, const QRectF&)>& draw)
{
    const QRectF local(QPointF(0, 0), QSizeF(rect.size()));
    QTransform turn;
    turn.rotate(-angle);
    // The centre moved by under a pixel so that the turned rectangle starts on whole pixels:
    // a quarter turn then keeps its edges sharp.
    QPointF centre = QRectF(rect).center();
    const QPointF corner = centre + turn.mapRect(local.translated(-local.center())).topLeft();
    centre += QPointF(std::round(corner.x()), std::round(corner.y())) - corner;
    const QRect bounds =
        turn.mapRect(local.adjusted(-margin, -margin, margin, margin).translated(-local.center()))
            .translated(centre)
            .toAlignedRect();
    const QRect covered = area.isNull() ? bounds : bounds & area;
    Mark mark{QImage(covered.size(), QImage::Format_ARGB32_Premultiplied), covered.topLeft()};
    if (covered.isEmpty())
        return mark;
    mark.picture.fill(Qt::transparent);
    QPainter painter(&mark.picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(centre - QPointF(covered.topLeft()));
    painter.rotate(-angle);
    painter.translate(-local.center());
    draw(painter, local);
    return mark;
}

// Three passes of a running box of the given radius over each row and then each column: close
// to a Gaussian, in time independent of the radius.
void blurAlpha(QImage& alpha, int radius)
{
    const int width = alpha.width();
    const int height = alpha.height();
    const int span = 2 * radius + 1;
    QVector<uchar> line(std::max(width, height));
    const auto pass = [&](uchar* first, int count, int stride) {
        for (int i = 0; i < count; ++i)
            line[i] = first[i * stride];
        int sum = 0;
        for (int i = -radius; i < radius; ++i)
            sum += i >= 0 && i < count ? line[i] : 0;
        for (int i = 0; i < count; ++i) {
            sum += i + radius < count ? line[i + radius] : 0;
            first[i * stride] = uchar(sum / span);
            sum -= i - radius >= 0 ? line[i - radius] : 0;
        }
    };
    for (int round = 0; round < 3; ++round) {
        for (int y = 0; y < height; ++y)
            pass(alpha.scanLine(y), width, 1);
        for (int x = 0; x < width; ++x)
            pass(alpha.bits() + x, height, int(alpha.bytesPerLine()));
    }
}

// The mark over its shadow: its shape in the shadow colour, moved right and down by distance
// and blurred by radius.
Mark withShadow(const Mark& mark, const QColor& color, int distance, int radius)
{
    const int passRadius = (radius + 2) / 3;
    const int spread = 3 * passRadius;
    QImage alpha(mark.picture.size() + QSize(2 * spread, 2 * spread), QImage::Format_Alpha8);
    alpha.fill(0);
    for (int y = 0; y < mark.picture.height(); ++y) {
        const auto* source = reinterpret_cast<const QRgb*>(mark.picture.constScanLine(y));
        uchar* target = alpha.scanLine(y + spread) + spread;
        for (int x = 0; x < mark.picture.width(); ++x)
            target[x] = uchar(qAlpha(source[x]));
    }
    if (passRadius > 0)
        blurAlpha(alpha, passRadius);
    QImage shadow(alpha.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < alpha.height(); ++y) {
        const uchar* source = alpha.constScanLine(y);
        auto* target = reinterpret_cast<QRgb*>(shadow.scanLine(y));
        for (int x = 0; x < alpha.width(); ++x)
            target[x] = qPremultiply(qRgba(color.red(), color.green(), color.blue(), source[x]));
    }
    const int grow = distance + 2 * spread;
    Mark result{
        QImage(mark.picture.size() + QSize(grow, grow), QImage::Format_ARGB32_Premultiplied),
        mark.at - QPoint(spread, spread)};
    result.picture.fill(Qt::transparent);
    QPainter painter(&result.picture);
    painter.drawImage(QPoint(distance, distance), shadow);
    painter.drawImage(QPoint(spread, spread), mark.picture);
    return result;
}

// The mark where it lies or, tiled, in a grid from there over the whole image: each step is
// the turned rectangle's size plus the gap, every other row shifted by half a step.
void layMark(QImage& image, const Mark& mark, const QRect& turned, const WMRParams& params)
{
    QPainter painter(&image);
    painter.setOpacity(1 - params.Transparency / 100.0);
    if (!params.Tile) {
        painter.drawImage(mark.at, mark.picture);
        return;
    }
    const int gap = qBound(0, params.TileGap, 200);
    const int stepX = std::max(1, int(qint64(turned.width()) * (100 + gap) / 100));
    const int stepY = std::max(1, int(qint64(turned.height()) * (100 + gap) / 100));
    const QSize size = mark.picture.size();
    // The rows and columns that can reach into the image, the shifted rows included.
    const auto first = [](int at, int length, int step) {
        return -int((qint64(at) + length + step - 1) / step) - 1;
    };
    const int lastRow = int((image.height() - qint64(mark.at.y())) / stepY) + 1;
    const int lastColumn = int((image.width() - qint64(mark.at.x())) / stepX) + 1;
    for (int row = first(mark.at.y(), size.height(), stepY); row <= lastRow; ++row) {
        const int y = int(mark.at.y() + qint64(row) * stepY);
        if (y >= image.height() || y + size.height() <= 0)
            continue;
        const int shift = (row & 1) ? stepX / 2 : 0;
        for (int column = first(mark.at.x() + shift, size.width(), stepX); column <= lastColumn;
             ++column) {
            const int x = int(mark.at.x() + shift + qint64(column) * stepX);
            if (x < image.width() && x + size.width() > 0)
                painter.drawImage(QPoint(x, y), mark.picture);
        }
    }
}

// Whether the mark is drawn into a picture of its own first; a mark without the later settings
// is painted straight onto the image, as it always was.
bool drawnApart(const WMRParams& params)
{
    return params.Tile || params.Angle != 0 ||
           (params.Mode == 0 && (params.Shadow || params.Outline));
}

// The pixels of the image a mark in the drawing rectangle can change: only those, and what may
// cast a shadow into them, are drawn when the mark is not tiled.
QRect drawnArea(const QImage& image, const WMRParams& params, int shadowReach)
{
    return params.Tile ? QRect() : image.rect().adjusted(-shadowReach, -shadowReach, 0, 0);
}

void drawText(QImage& image, const WMRParams& params)
{
    QFont font = params.Font;
    font.setWeight(params.Bold ? 75 : 50);
    font.setStyle(params.Italic ? QFont::StyleItalic : QFont::StyleNormal);
    font.setUnderline(params.Underlined);
    const int target = int(qint64(sizeBase(image.size(), params.SizeOf)) * params.Size / 100);
    font.setPixelSize(watermarkPixelSize(font, params.Text, target));
    clearGlyphOffsets(font, params.Text);
    const QFontMetrics metrics(font);
    const int w = metrics.horizontalAdvance(params.Text);
    const int h = metrics.height();
    const int angle = qBound(-90, params.Angle, 90);
    const WatermarkChoice choice = chooseWatermark(image, QSize(w + 4, h + 4), angle, params);
    const auto colored = [&choice](const QColor& color) {
        return choice.opposite ? oppositeColor(color) : color;
    };
    const QRect rect = watermarkRect(image.size(), QSize(w + 4, h + 4), choice.position, params);

    if (!drawnApart(params)) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setOpacity(1 - params.Transparency / 100.0);
        painter.setFont(font);
        if (params.BackgroundEnabled)
            painter.fillRect(rect, QBrush(params.Background, Qt::SolidPattern));
        painter.setPen(colored(params.Color));
        painter.drawText(rect, Qt::AlignCenter, params.Text);
        return;
    }

    const int outline = params.Outline ? ofHeight(h, params.OutlineWidth, 20) : 0;
    const int distance = params.Shadow ? ofHeight(h, params.ShadowDistance, 50) : 0;
    const int blur = params.Shadow ? ofHeight(h, params.ShadowBlur, 50) : 0;
    const auto paint = [&](QPainter& painter, const QRectF& box) {
        if (params.BackgroundEnabled)
            painter.fillRect(box, QBrush(params.Background, Qt::SolidPattern));
        painter.setFont(font);
        if (!params.Outline) {
            painter.setPen(colored(params.Color));
            painter.drawText(box, Qt::AlignCenter, params.Text);
            return;
        }
        // Outline and letters from one path, so that the outline lies evenly around them.
        QPainterPath letters;
        letters.addText(box.left() + (box.width() - w) / 2,
                        box.top() + (box.height() - h) / 2 + metrics.ascent(), font, params.Text);
        if (outline > 0)
            painter.strokePath(letters, QPen(colored(params.OutlineColor), 2 * outline,
                                             Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.fillPath(letters, colored(params.Color));
    };
    const int reach = distance + blur + EdgeRoom;
    Mark mark = drawnMark(rect, angle, outline + EdgeRoom, drawnArea(image, params, reach), paint);
    if (params.Shadow && !mark.picture.isNull())
        mark = withShadow(mark, colored(params.ShadowColor), distance, blur);
    layMark(image, mark, turnedBounds(rect, angle), params);
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
    const float logoWidth =
        float(qint64(sizeBase(image.size(), params.SizeOf)) * params.Size / 100.0);
    const int w = truncToInt(logoWidth);
    const int h = truncToInt(double(logo.height()) / logo.width() * logoWidth);
    const int angle = qBound(-90, params.Angle, 90);
    const WatermarkChoice choice = chooseWatermark(image, QSize(w + 4, h + 4), angle, params);
    const QRect rect = watermarkRect(image.size(), QSize(w + 4, h + 4), choice.position, params);
    // The 2-pixel margin is part of the logo, not left empty.
    const QImage scaled = logo.scaled(rect.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (!drawnApart(params)) {
        painter.drawImage(rect.topLeft(), scaled);
        return;
    }
    painter.end();
    const Mark mark = drawnMark(
        rect, angle, EdgeRoom, drawnArea(image, params, 0),
        [&scaled](QPainter& on, const QRectF& box) { on.drawImage(box.topLeft(), scaled); });
    layMark(image, mark, turnedBounds(rect, angle), params);
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
