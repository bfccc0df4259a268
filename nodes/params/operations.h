// The operations a flow is made of, without their widgets: per operation its display name,
// its value record, its parameter table and the one mapping from values to the kernel call
// that the node's preview and the batch both run.
#pragma once

#include "paramtable.h"

#include <QCoreApplication>

// An operation with no stored keys.
struct NoValues
{
};

struct BCSValues
{
    int brightness = 0;
    int contrast = 0;
    int saturation = 0;
};
// The saturation reaches the kernel divided by 50.0: 50 keeps the colours, 100 doubles them.
struct BCSOperation
{
    using Values = BCSValues;
    static constexpr const char* Name =
        QT_TRANSLATE_NOOP("NodeName", "Brightness, Contrast, Saturation");
    static const ParamTable<Values>& table();
    static QImage run(QImage image, const Values& values);
};

struct HSTValues
{
    int left = 0;
    int right = 0;
};
// "Left:" clips the bright end and "Right:" the dark end, crossed on purpose.
struct HSTOperation
{
    using Values = HSTValues;
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Histogram optimizer");
    static const ParamTable<Values>& table();
    static QImage run(QImage image, const Values& values);
};

struct CRPValues
{
    int left = 0;
    int right = 0;
    int top = 0;
    int bottom = 0;
};
struct CRPOperation
{
    using Values = CRPValues;
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Crop");
    static const ParamTable<Values>& table();
    static QImage run(QImage image, const Values& values);
};

struct RGBValues
{
    int mode = 0;
};
// Mode 0 swaps red and blue, 1 red and green, 2 green and blue; any other leaves the image.
struct RGBOperation
{
    using Values = RGBValues;
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "RGB-Order");
    static const ParamTable<Values>& table();
    static QImage run(QImage image, const Values& values);
};

struct FRMValues
{
    int width = 0;
    QColor color;
};
struct FRMOperation
{
    using Values = FRMValues;
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Frame");
    static const ParamTable<Values>& table();
    static QImage run(QImage image, const Values& values);
};

struct RTTValues
{
    int angle = 0;
};
// The angle runs through -270 .. 270 in quarter turns; any other value leaves the image.
struct RTTOperation
{
    using Values = RTTValues;
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Rotate");
    static const ParamTable<Values>& table();
    static QImage run(QImage image, const Values& values);
};

struct BLRValues
{
    int radius = 0;
};
struct BLROperation
{
    using Values = BLRValues;
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Blur");
    static const ParamTable<Values>& table();
    static QImage run(QImage image, const Values& values);
};

struct UCSValues
{
    int radius = 0;
    int opacity = 0;
    QColor color;
};
struct UCSOperation
{
    using Values = UCSValues;
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Vignetting");
    static const ParamTable<Values>& table();
    static QImage run(QImage image, const Values& values);
};

struct RSZValues
{
    int mode = 0;
    int width = 0;
    int height = 0;
    // A photo that the resize would make larger, on either side, stays as it is.
    bool noEnlarge = false;
    // Not stored: whether the sizes are in pixels (modes 1 and 2) rather than percent, which
    // sets their range; it follows the mode only when the mode changes to one of the three.
    bool pixelSizes = false;
    // Not stored: the preview's reduced run.
    bool previewMode = false;
};
struct RSZOperation
{
    using Values = RSZValues;
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Resize");
    static const ParamTable<Values>& table();
    static QImage run(QImage image, const Values& values);
    // The full-size result's size; a photo that "Never enlarge" keeps keeps its size.
    static QSize resultSize(const Values& values, const QSize& size);

private:
    // Whether "Never enlarge" leaves a photo of size as it is: the resize would make it
    // larger on either side.
    static bool keepsSize(const Values& values, const QSize& size);
};

namespace ResizeRanges {
extern const ParamRange percent;
extern const ParamRange pixels;
const int percentDefault = 50;
const int pixelsDefault = 300;
} // namespace ResizeRanges

struct MRRValues
{
    bool horizontal = false;
    bool vertical = false;
};
struct MRROperation
{
    using Values = MRRValues;
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Mirror");
    static const ParamTable<Values>& table();
    static QImage run(QImage image, const Values& values);
};

struct BINValues
{
    int threshold = 0;
};
struct BINOperation
{
    using Values = BINValues;
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Binarization");
    static const ParamTable<Values>& table();
    static QImage run(QImage image, const Values& values);
};

struct GRSOperation
{
    using Values = NoValues;
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Grayscale");
    static const ParamTable<Values>& table();
    static QImage run(QImage image, const Values& values);
};
struct INVOperation
{
    using Values = NoValues;
    static constexpr const char* Name = QT_TRANSLATE_NOOP("NodeName", "Invert");
    static const ParamTable<Values>& table();
    static QImage run(QImage image, const Values& values);
};
