// What screen readers are told beyond the widgets' own: the dice as buttons named by their
// letters, the time bar as a value, and the game's messages read out as they come.
#pragma once

#include <QString>

class QWidget;

namespace griglione {

// Makes the dice, the time bar and the announcements known to the accessibility framework; the
// windows call it as they make them, and only the first call counts.
void installAccessibility();

// Has a screen reader read `text` out now, as a notification of `window`.
void announce(QWidget* window, const QString& text);

} // namespace griglione
