// The time of day from the system clock.
#pragma once

#include "core/random.h"

namespace griglione {

class SystemClock final : public Clock {
public:
    double secondsSinceMidnight() const override;
};

} // namespace griglione
