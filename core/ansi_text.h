// Conversion between the program's UTF-8 text and the one-byte Windows-1252 text of its files.
#pragma once

#include <string>
#include <string_view>

namespace griglione {

// Windows-1252 bytes to UTF-8. Bytes that code page leaves undefined map to the same code point.
std::string fromAnsi(std::string_view bytes);

// UTF-8 to Windows-1252 bytes; a character the code page cannot hold becomes '?'.
std::string toAnsi(std::string_view utf8);

// True when every character of the UTF-8 text has a Windows-1252 byte, so that it is stored as
// it is shown.
bool fitsAnsi(std::string_view utf8);

// Upper case of UTF-8 text by the Windows-1252 rule below, the one used on reading a file, so a
// name typed and a name read come out alike (ß and µ stay as they are).
std::string upperAnsiText(std::string_view utf8);

// Upper case of Windows-1252 text, accented letters included (à → À, œ → Œ, ÿ → Ÿ).
std::string upperAnsi(std::string_view bytes);

// The same text with lower-case A–Z only changed; words on the board are plain ASCII.
std::string lowerAscii(std::string_view text);
std::string upperAscii(std::string_view text);

// The text without the given characters at either end.
std::string trimmed(std::string_view text, std::string_view blanks = " ");

} // namespace griglione
