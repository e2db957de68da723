// The hand pointer shown over the program's links.
#pragma once

#include <QCursor>

namespace griglione {

QCursor linkCursor();

} // namespace griglione
