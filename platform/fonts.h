// The fonts the windows are drawn in: Tahoma, and a Courier-like fixed font for tables.
#pragma once

#include <QFont>

namespace griglione {

// Registers Tahoma from Wine's fonts when the system lacks it; harmless when absent.
void registerFonts();

// Tahoma at `points` (8.25 is the windows' usual size).
QFont tahoma(double points, bool bold = false);

// The fixed-width font of history and record tables.
QFont courier(double points);

} // namespace griglione
