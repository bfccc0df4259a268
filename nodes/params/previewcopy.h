// The working copy the live preview runs the flow on. The window's preview, the results in the
// photo grid and the contact sheet of a batch all make it by this one rule.
#pragma once

#include <QImage>

namespace PreviewCopy {

// The widest working copy on a screen of device pixel ratio 1.
constexpr int baseLimit = 360;

// The photo reduced smoothly to fit limit x limit, keeping its aspect ratio, when it is wider
// than limit. Only the width is compared: a narrow photo is left as it is, however tall.
QImage reduced(const QImage& photo, int limit = baseLimit);

} // namespace PreviewCopy
