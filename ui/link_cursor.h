// The pointers shown over the program's links: the hand picture over web links, and the old
// "icon" pointer (a small square in a square) over the picture and the mail address.
#pragma once

#include <QCursor>

namespace griglione {

// The hand pointer picture kept beside the program.
inline constexpr const char* kHandPicture = "manina.gif";

// Made from kHandPicture; Qt's own pointing hand when the picture is missing or unreadable.
QCursor linkCursor();

QCursor iconCursor();

} // namespace griglione
