// What every benchmark program needs: a display-free start, medians, timing and a test photo.
#pragma once

#include <QtContainerFwd>

#include <functional>

class QImage;

namespace BenchSupport {

// Runs without a display unless QT_QPA_PLATFORM asks for one; call before the application object.
void useOffscreenUnlessPlatformSet();

// The middle value, or the mean of the two middle ones; 0 for no values.
double median(QVector<double> values);

// Milliseconds spent in work.
double milliseconds(const std::function<void()>& work);

// An ARGB32 picture with a photo's smooth areas and grain: sky, ground and a sun whose place
// depends on seed; the same size and seed give the same picture.
QImage photoLikeImage(int width, int height, quint32 seed);

} // namespace BenchSupport
