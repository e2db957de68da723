// What screen readers are told beyond the widgets' own: the dice as buttons named by their
// letters, the time bar as a value, and the game's messages read out as they come.
#pragma once

#include <QString>

class QWidget;

namespace griglione {

// Makes the dice, the time bar and the announcements known to the accessibility framework; the
// windows call it as they make them, and only the first call counts.
void installAccessibility();

// Has a screen reader read `text` out now, as a notification of `window`. It speaks over
// whatever is being said and never moves the focus.
void announce(QWidget* window, const QString& text);

// Has a screen reader offer `widget` as one text, `text`, read with its window: not the lines
// of a text field one at a time from the focus, not the letters of a title one by one.
void readWhole(QWidget* widget, const QString& text);

// Has a screen reader offer `label` as a link.
void presentAsLink(QWidget* label);

// Keeps a drawing that only frames others (the board's frame and shadow) out of what a screen
// reader presents.
void markDecoration(QWidget* widget);

} // namespace griglione
