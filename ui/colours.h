// Colours of labels and fields, set through the palette so that the fonts set on them stay.
#pragma once

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

inline void setTextColour(QWidget* widget, const QColor& foreground) {
    QPalette palette = widget->palette();
    palette.setColor(QPalette::WindowText, foreground);
    widget->setPalette(palette);
}

} // namespace griglione
