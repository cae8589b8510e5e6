#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "modelo/fallo_archivo.h"

namespace calvento {

/// One of the three project formats: plain text, one value per line, the meaning of a line is its number.
/// A line is named by the control whose text it holds ("Text5", "Form2.Text1") or by the field of the design record.
struct FormatoProyecto {
  std::string_view ventana;    ///< data window
  std::string_view extension;  ///< without the point
  std::string_view filtro;     ///< of the file dialogs
  std::string_view titulo;     ///< caption of the window without a file
  std::span<const std::string_view> lineas;
};

extern const FormatoProyecto formatoRapida;
extern const FormatoProyecto formatoCaidaInclinada;
extern const FormatoProyecto formatoCaidaVertical;

/// Reads up to `cuantas` lines as UTF-8 texts. Lines end with CRLF or LF; the text is Windows-1252, or UTF-8 where it
/// is valid as such or begins with a byte-order mark. A file with fewer lines gives those it has: the caller tells by
/// the count. Fails (FalloArchivo) for a folder, an unreadable file, and for what is no project at all: binary content
/// or a line longer than any field.
std::vector<std::string> leerLineas(const std::filesystem::path& archivo, std::size_t cuantas);

/// Writes the lines in Windows-1252 with CRLF (a line with other characters in UTF-8; control characters as blanks), as
/// guardarEntero does. Fails with FalloArchivo.
void escribirLineas(const std::filesystem::path& archivo, const std::vector<std::string>& lineas);

}  // namespace calvento
