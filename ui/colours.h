// Colours of labels and fields, set through the palette so that the fonts set on them stay.
#pragma once

#include <QColor>
#include <QWidget>

namespace griglione {

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
