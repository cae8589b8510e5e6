#pragma once

#include <string>
#include <string_view>

namespace calvento {

/// Whether the bytes are valid UTF-8.
bool esUtf8(std::string_view bytes);

/// Text of a project file as UTF-8: kept where it is valid UTF-8 already, else read as Windows-1252.
std::string aUtf8(std::string_view bytes);

/// UTF-8 as Windows-1252; a character that the code page does not have becomes "?".
std::string aWindows1252(std::string_view utf8);

/// The text as one line that a terminal may be shown: control characters, and bytes that are no UTF-8, are written out
/// as "\n", "\x1B", "\u009B".
std::string visible(std::string_view texto);

}  // namespace calvento
