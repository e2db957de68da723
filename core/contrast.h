// How readable a text colour is on its background: the WCAG contrast ratio, and the nearest colour
// of the same hue that is readable where the wanted one is not.
#pragma once

#include "core/letter_flash.h"

namespace griglione {

// The WCAG level AA for ordinary text.
inline constexpr double kReadableContrast = 4.5;

// WCAG's relative luminance: 0 for black, 1 for white.
double relativeLuminance(Rgb colour);

// The lighter colour's luminance + 0.05 over the darker one's + 0.05: from 1 to 21.
double contrastRatio(Rgb a, Rgb b);

// `text` itself when it reaches `minimum` on `background`; otherwise `text` mixed with white or
// black, whichever stands out more from the background, just enough to reach it (or as far as
// the pure colour goes).
Rgb readableOn(Rgb text, Rgb background, double minimum = kReadableContrast);

} // namespace griglione
