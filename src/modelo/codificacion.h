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

}  // namespace calvento
