// WCAG contrast, and readable variants of the program's fixed text colours.
#include "core/contrast.h"

#include <algorithm>
#include <cmath>

namespace griglione {
namespace {

double linear(int channel) {
    const double c = channel / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

Rgb mix(Rgb from, Rgb to, double t) {
    const auto part = [t](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * t)); };
    return {part(from.r, to.r), part(from.g, to.g), part(from.b, to.b)};
}

} // namespace

double relativeLuminance(Rgb colour) {
    return 0.2126 * linear(colour.r) + 0.7152 * linear(colour.g) + 0.0722 * linear(colour.b);
}

double contrastRatio(Rgb a, Rgb b) {
    const double la = relativeLuminance(a);
    const double lb = relativeLuminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

Rgb readableOn(Rgb text, Rgb background, double minimum) {
    if (contrastRatio(text, background) >= minimum) return text;
    const Rgb white{255, 255, 255};
    const Rgb black{0, 0, 0};
    const Rgb away =
        contrastRatio(white, background) >= contrastRatio(black, background) ? white : black;
    // The least mix that reaches it keeps the most of the colour asked for.
    for (int step = 1; step < 100; ++step) {
        const Rgb candidate = mix(text, away, step / 100.0);
        if (contrastRatio(candidate, background) >= minimum) return candidate;
    }
    return away;
}

} // namespace griglione
