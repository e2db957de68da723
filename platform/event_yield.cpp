#include "platform/event_yield.h"

#include <QCoreApplication>

#include <chrono>

namespace griglione {

void yieldToWindow() {
    // Running the event loop costs microseconds even when nothing waits, and a scan yields
    // before every one of tens of thousands of records. Once a millisecond is often enough for
    // the window to repaint and both timers to fire on time. The first yield after a pause
    // always runs, so a press already waiting is handled inside the lookup that follows it.
    using Clock = std::chrono::steady_clock;
    static Clock::time_point lastRun;
    if (Clock::now() - lastRun < std::chrono::milliseconds(1)) return;
    QCoreApplication::processEvents(QEventLoop::AllEvents);
    // Taken after the events ran, so that slow repaints still leave the scan a millisecond.
    lastRun = Clock::now();
}

} // namespace griglione
