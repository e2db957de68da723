#include "platform/event_yield.h"

#include <QCoreApplication>

namespace griglione {

void yieldToWindow() {
    QCoreApplication::processEvents(QEventLoop::AllEvents);
}

} // namespace griglione
