// Colours of labels and fields, set through the palette so that the fonts set on them stay. A
// fixed background always comes with its text colour; a fixed text colour on the theme's
// background is made readable on it.
#pragma once

#include "core/contrast.h"

#include <QColor>
#include <QWidget>

namespace griglione {

// The program's palette: the board's green, the classic blue, red and grey of the panels, and the
// pale yellow of the links.
inline const QColor kDarkGreen(0, 64, 0);
inline const QColor kBlue(0, 0, 128);
inline const QColor kRed(128, 0, 0);
inline const QColor kDarkGrey(64, 64, 64);
inline const QColor kLinkYellow(255, 255, 128);

inline void setColours(QWidget* widget, const QColor& foreground, const QColor& background) {
    widget->setAutoFillBackground(true);
    QPalette palette = widget->palette();
    palette.setColor(QPalette::WindowText, foreground);
    palette.setColor(QPalette::Text, foreground);
    palette.setColor(QPalette::Window, background);
    palette.setColor(QPalette::Base, background);
    widget->setPalette(palette);
}

// What is drawn behind `widget`: the ground of the nearest of it and its parents that fills its
// own, as every window does.
inline QColor backgroundBehind(const QWidget* widget) {
    while (!widget->isWindow() && !widget->autoFillBackground() && widget->parentWidget())
        widget = widget->parentWidget();
    return widget->palette().color(widget->backgroundRole());
}

// `foreground` where it reads well on `background`, else the nearest variant of it that does
// (a dark theme's ground under the program's dark blue, say).
inline QColor readableColour(const QColor& foreground, const QColor& background) {
    const Rgb c = readableOn({foreground.red(), foreground.green(), foreground.blue()},
                             {background.red(), background.green(), background.blue()});
    return {c.r, c.g, c.b};
}

// The colour a label was given, kept so that a theme change can work out its readable variant
// again (see ReadableColours).
inline constexpr const char* kWantedTextColour = "griglioneWantedTextColour";

inline void setTextColour(QWidget* widget, const QColor& foreground) {
    widget->setProperty(kWantedTextColour, foreground);
    QPalette palette = widget->palette();
    palette.setColor(QPalette::WindowText, readableColour(foreground, backgroundBehind(widget)));
    widget->setPalette(palette);
}

inline void refreshTextColour(QWidget* widget) {
    const QVariant wanted = widget->property(kWantedTextColour);
    if (wanted.isValid()) setTextColour(widget, wanted.value<QColor>());
}

// The theme's selection colours, with the ground of the selection moved just far enough from
// its text for the text to read well (some themes pair white with a middle blue).
inline QPalette withReadableSelection(QPalette palette) {
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        palette.setColor(group, QPalette::Highlight,
                         readableColour(palette.color(group, QPalette::Highlight),
                                        palette.color(group, QPalette::HighlightedText)));
    return palette;
}

// The hint in an empty field, which themes draw half transparent: made solid and readable on
// the field's ground, disabled fields included.
inline QPalette withReadablePlaceholder(QPalette palette) {
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor ground = palette.color(group, QPalette::Base);
        const QColor hint = palette.color(group, QPalette::PlaceholderText);
        const auto mix = [a = hint.alphaF()](int over, int under) {
            return static_cast<int>(over * a + under * (1 - a) + 0.5);
        };
        const QColor seen(mix(hint.red(), ground.red()), mix(hint.green(), ground.green()),
                          mix(hint.blue(), ground.blue()));
        palette.setColor(group, QPalette::PlaceholderText, readableColour(seen, ground));
    }
    return palette;
}

// A fixed ground, such as the light grey of the windows the game paints itself, with the text
// colour that goes with it; controls that draw their own ground keep the theme's.
inline void setGround(QWidget* widget, const QColor& background, const QColor& text) {
    widget->setAutoFillBackground(true);
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Window, background);
    palette.setColor(QPalette::WindowText, text);
    widget->setPalette(palette);
}

} // namespace griglione
