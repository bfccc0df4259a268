#include "operations.h"

#include "geometric.h"
#include "neighbourhood.h"
#include "point.h"

namespace ResizeRanges {
const ParamRange percent{1, 100, 1, 1};
const ParamRange pixels{8, 5000, 1, 1};
} // namespace ResizeRanges

namespace {
const ParamRange margins{0, 100, 20, 1};
const ParamRange radii{0, 100, 5, 5};
} // namespace

const ParamTable<BCSValues>& BCSOperation::table()
{
    static const ParamTable<BCSValues> table = {
        param("Brightness", &BCSValues::brightness, ParamKind::Slider, "BCSNode",
              QT_TRANSLATE_NOOP("BCSNode", "Brightness:"), 0, {-127, 128, 20, 1}),
        param("Contrast", &BCSValues::contrast, ParamKind::Slider, "BCSNode",
              QT_TRANSLATE_NOOP("BCSNode", "Contrast:"), 0, {-127, 128, 20, 1}),
        param("Saturation", &BCSValues::saturation, ParamKind::Slider, "BCSNode",
              QT_TRANSLATE_NOOP("BCSNode", "Saturation:"), 100, {0, 100, 20, 1}),
    };
    return table;
}

QImage BCSOperation::run(QImage image, const BCSValues& values)
{
    return OrkGraphX::adjustBrightnessContrastSaturation(image, values.brightness, values.contrast,
                                                         values.saturation / 50.0);
}

const ParamTable<HSTValues>& HSTOperation::table()
{
    static const ParamTable<HSTValues> table = {
        param("Left", &HSTValues::left, ParamKind::Slider, "HSTNode",
              QT_TRANSLATE_NOOP("HSTNode", "Left:"), 0, margins),
        param("Right", &HSTValues::right, ParamKind::Slider, "HSTNode",
              QT_TRANSLATE_NOOP("HSTNode", "Right:"), 0, margins),
    };
    return table;
}

QImage HSTOperation::run(QImage image, const HSTValues& values)
{
    return OrkGraphX::optimizeHistogram(image, values.left, values.right);
}

const ParamTable<CRPValues>& CRPOperation::table()
{
    static const ParamTable<CRPValues> table = {
        param("Left", &CRPValues::left, ParamKind::Slider, "CRPNode",
              QT_TRANSLATE_NOOP("CRPNode", "Left:"), 0, margins, "%"),
        param("Right", &CRPValues::right, ParamKind::Slider, "CRPNode",
              QT_TRANSLATE_NOOP("CRPNode", "Right:"), 0, margins, "%"),
        param("Top", &CRPValues::top, ParamKind::Slider, "CRPNode",
              QT_TRANSLATE_NOOP("CRPNode", "Top:"), 0, margins, "%"),
        param("Bottom", &CRPValues::bottom, ParamKind::Slider, "CRPNode",
              QT_TRANSLATE_NOOP("CRPNode", "Buttom:"), 0, margins, "%"),
    };
    return table;
}

QImage CRPOperation::run(QImage image, const CRPValues& values)
{
    return OrkGraphX::cropImage(image, values.left, values.right, values.top, values.bottom);
}

const ParamTable<RGBValues>& RGBOperation::table()
{
    // The item data equals the index, which is what is stored and what the kernel dispatches on.
    static const ParamTable<RGBValues> table = {
        param("Mode", &RGBValues::mode, ParamKind::Choice, "RGBNode", nullptr, 0, {}, nullptr, 3),
    };
    return table;
}

QImage RGBOperation::run(QImage image, const RGBValues& values)
{
    return OrkGraphX::swapChannels(image, values.mode);
}

const ParamTable<FRMValues>& FRMOperation::table()
{
    static const ParamTable<FRMValues> table = {
        param("Width", &FRMValues::width, ParamKind::Slider, "FRMNode",
              QT_TRANSLATE_NOOP("FRMNode", "Width:"), 2, margins, "%"),
        param("Color", &FRMValues::color, ParamKind::Colour, "FRMNode",
              QT_TRANSLATE_NOOP("FRMNode", "Color:"), QColor(Qt::black)),
    };
    return table;
}

QImage FRMOperation::run(QImage image, const FRMValues& values)
{
    return OrkGraphX::drawFrame(image, values.width, values.color);
}

const ParamTable<RTTValues>& RTTOperation::table()
{
    static const ParamTable<RTTValues> table = {
        param("Angle", &RTTValues::angle, ParamKind::Plain, "RTTNode", nullptr, 0),
    };
    return table;
}

QImage RTTOperation::run(QImage image, const RTTValues& values)
{
    return OrkGraphX::rotateImage(image, values.angle);
}

const ParamTable<BLRValues>& BLROperation::table()
{
    static const ParamTable<BLRValues> table = {
        param("Radius", &BLRValues::radius, ParamKind::Slider, "BLRNode",
              QT_TRANSLATE_NOOP("BLRNode", "Blur:"), 10, {0, 20, 5, 5}),
    };
    return table;
}

QImage BLROperation::run(QImage image, const BLRValues& values)
{
    return OrkGraphX::blurImage(image, values.radius, QRect(0, 0, image.width(), image.height()),
                                false);
}

const ParamTable<UCSValues>& UCSOperation::table()
{
    static const ParamTable<UCSValues> table = {
        param("Radius", &UCSValues::radius, ParamKind::Slider, "UCSNode",
              QT_TRANSLATE_NOOP("UCSNode", "Radius:"), 65, radii),
        param("Opacity", &UCSValues::opacity, ParamKind::Slider, "UCSNode",
              QT_TRANSLATE_NOOP("UCSNode", "Opacity:"), 80, radii),
        param("Color", &UCSValues::color, ParamKind::Colour, "UCSNode",
              QT_TRANSLATE_NOOP("UCSNode", "Color:"), QColor(Qt::black)),
    };
    return table;
}

QImage UCSOperation::run(QImage image, const UCSValues& values)
{
    return OrkGraphX::vignetteImage(image, values.radius, values.opacity, values.color);
}

const ParamTable<RSZValues>& RSZOperation::table()
{
    const auto sizeRange = [](const RSZValues& values) {
        return values.pixelSizes ? ResizeRanges::pixels : ResizeRanges::percent;
    };
    auto mode = param("Mode", &RSZValues::mode, ParamKind::Choice, "RSZNode",
                      QT_TRANSLATE_NOOP("RSZNode", "Scale by:"), 0, {}, nullptr, 3);
    // A new mode resets both sizes to its range and default, so the mode is loaded first.
    mode.afterLoad = [](RSZValues& values, const QVariant& before) {
        if (values.mode == before.toInt() || values.mode < 0)
            return;
        values.pixelSizes = values.mode != 0;
        values.width = values.height =
            values.pixelSizes ? ResizeRanges::pixelsDefault : ResizeRanges::percentDefault;
    };
    auto width = param("Width", &RSZValues::width, ParamKind::Slider, "RSZNode",
                       QT_TRANSLATE_NOOP("RSZNode", "Width:"), ResizeRanges::percentDefault,
                       ResizeRanges::percent, "%");
    auto height = param("Height", &RSZValues::height, ParamKind::Slider, "RSZNode",
                        QT_TRANSLATE_NOOP("RSZNode", "Height:"), ResizeRanges::percentDefault,
                        ResizeRanges::percent, "%");
    width.rangeFor = height.rangeFor = sizeRange;
    // Written only when checked: flows made before it existed stay byte for byte the same.
    auto noEnlarge = param("NoEnlarge", &RSZValues::noEnlarge, ParamKind::Toggle, "RSZNode",
                           QT_TRANSLATE_NOOP("RSZNode", "Never enlarge"), false);
    noEnlarge.writtenOnlyWhenChanged = true;
    static const ParamTable<RSZValues> table = {mode, width, height, noEnlarge};
    return table;
}

QImage RSZOperation::run(QImage image, const RSZValues& values)
{
    if (!image.isNull() && keepsSize(values, image.size()))
        return image;
    return OrkGraphX::resizeImage(image, values.width, values.height, values.mode,
                                  values.previewMode);
}

bool RSZOperation::keepsSize(const RSZValues& values, const QSize& size)
{
    if (!values.noEnlarge)
        return false;
    const QSize resized = OrkGraphX::resizedSize(size, values.width, values.height, values.mode);
    return resized.width() > size.width() || resized.height() > size.height();
}

QSize RSZOperation::resultSize(const RSZValues& values, const QSize& size)
{
    return keepsSize(values, size)
               ? size
               : OrkGraphX::resizedSize(size, values.width, values.height, values.mode);
}

const ParamTable<MRRValues>& MRROperation::table()
{
    static const ParamTable<MRRValues> table = {
        param("Horizontal", &MRRValues::horizontal, ParamKind::Toggle, "MRRNode",
              QT_TRANSLATE_NOOP("MRRNode", "Mirror left to right"), true),
        param("Vertical", &MRRValues::vertical, ParamKind::Toggle, "MRRNode",
              QT_TRANSLATE_NOOP("MRRNode", "Mirror top to bottom"), false),
    };
    return table;
}

QImage MRROperation::run(QImage image, const MRRValues& values)
{
    return OrkGraphX::mirrorImage(image, values.horizontal, values.vertical);
}

const ParamTable<BINValues>& BINOperation::table()
{
    static const ParamTable<BINValues> table = {
        param("Threshold", &BINValues::threshold, ParamKind::Slider, "BINNode",
              QT_TRANSLATE_NOOP("BINNode", "Threshold:"), 127, {0, 255, 5, 1}),
    };
    return table;
}

QImage BINOperation::run(QImage image, const BINValues& values)
{
    return OrkGraphX::binarizeImage(image, values.threshold);
}

const ParamTable<NoValues>& GRSOperation::table()
{
    static const ParamTable<NoValues> table = {};
    return table;
}

QImage GRSOperation::run(QImage image, const NoValues& /*values*/)
{
    return OrkGraphX::grayscaleImage(image);
}

const ParamTable<NoValues>& INVOperation::table()
{
    static const ParamTable<NoValues> table = {};
    return table;
}

QImage INVOperation::run(QImage image, const NoValues& /*values*/)
{
    return OrkGraphX::invertImage(image);
}
