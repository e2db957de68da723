#include "platform/system_clock.h"

#include <QTime>

namespace griglione {

double SystemClock::secondsSinceMidnight() const {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

} // namespace griglione
