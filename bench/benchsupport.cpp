#include "benchsupport.h"

#include <QElapsedTimer>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>
#include <QVector>

#include <algorithm>

namespace BenchSupport {

void useOffscreenUnlessPlatformSet()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

double median(QVector<double> values)
{
    if (values.isEmpty())
        return 0;
    std::sort(values.begin(), values.end());
    const int middle = values.size() / 2;
    return values.size() % 2 ? values.at(middle) : (values.at(middle - 1) + values.at(middle)) / 2;
}

double milliseconds(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return timer.nsecsElapsed() / 1e6;
}

QImage photoLikeImage(int width, int height, quint32 seed)
{
    // Painted opaque, so the conversion to ARGB32 afterwards only relabels the pixels.
    QImage picture(width, height, QImage::Format_RGB32);
    QPainter painter(&picture);
    QLinearGradient sky(0, 0, 0, height);
    sky.setColorAt(0, QColor(60, 110, 190));
    sky.setColorAt(0.55, QColor(200, 210, 225));
    sky.setColorAt(0.56, QColor(70, 110, 50));
    sky.setColorAt(1, QColor(40, 60, 25));
    painter.fillRect(picture.rect(), sky);
    QRadialGradient sun(width * (900.0 + seed % 500) / 4000, height * 7.0 / 30, width * 0.15);
    sun.setColorAt(0, QColor(255, 240, 200, 220));
    sun.setColorAt(1, QColor(255, 240, 200, 0));
    painter.fillRect(picture.rect(), sun);
    painter.end();
    picture = std::move(picture).convertToFormat(QImage::Format_ARGB32);

    quint32 state = seed;
    for (int y = 0; y < height; ++y) {
        auto* row = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < width; ++x) {
            state = state * 1664525u + 1013904223u;
            const int grain = int(state >> 28) - 8;
            const QRgb p = row[x];
            row[x] = qRgb(qBound(0, qRed(p) + grain, 255), qBound(0, qGreen(p) + grain, 255),
                          qBound(0, qBlue(p) + grain, 255));
        }
    }
    return picture;
}

} // namespace BenchSupport
