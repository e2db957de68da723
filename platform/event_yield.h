// The yield of long operations: lets pending window events and timer ticks run, at most once a
// millisecond.
#pragma once

namespace griglione {

void yieldToWindow();

} // namespace griglione
