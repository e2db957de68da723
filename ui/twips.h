// Window geometry is designed in twips: 15 to a pixel on a standard display.
#pragma once

#include <QRect>

namespace griglione {

inline constexpr int kTwipsPerPixel = 15;

constexpr int px(int twips) {
    return (twips + kTwipsPerPixel / 2) / kTwipsPerPixel;
}

inline QRect twipsRect(int left, int top, int width, int height) {
    return {px(left), px(top), px(width), px(height)};
}

} // namespace griglione
