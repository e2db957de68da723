// Time and chance, injected so that every deal and every walk can be replayed.
#pragma once

namespace griglione {

class Clock {
public:
    virtual ~Clock() = default;
    // Seconds since midnight, fraction included.
    virtual double secondsSinceMidnight() const = 0;
};

class Random {
public:
    virtual ~Random() = default;
    // Mixes a clock reading into the generator's state (it does not restart the sequence).
    virtual void reseed(double seconds) = 0;
    // Uniform in [0, 1).
    virtual double next() = 0;
};

} // namespace griglione
