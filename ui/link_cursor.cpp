// The hand pointer shown over the program's links.
#include "ui/link_cursor.h"

namespace griglione {

QCursor linkCursor() { return QCursor(Qt::PointingHandCursor); }

} // namespace griglione
