// The yield of long operations: lets pending window events and timer ticks run.
#pragma once

namespace griglione {

void yieldToWindow();

} // namespace griglione
