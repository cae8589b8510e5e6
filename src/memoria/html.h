#pragma once

#include <functional>
#include <string>

#include "memoria/documento.h"

namespace calvento {

/// How a document becomes HTML.
struct FormaHtml {
  /// The markup of a picture.
  std::function<std::string(const Figura&)> figura;
  /// For a browser: style of its own, a list of chapters with links. Else the simple HTML of a text editor.
  bool navegador = false;
};

/// The whole document as HTML.
std::string comoHtml(const Documento& doc, const FormaHtml& forma);

/// Its parts, for who lays pages out: the cover with the list of chapters and their pages, and one chapter.
std::string portadaHtml(const Documento& doc, const std::function<std::string(std::size_t capitulo)>& pagina);
std::string capituloHtml(const Documento& doc, std::size_t capitulo, const FormaHtml& forma);
/// What stands before and after the parts.
std::string cabezaHtml(const Documento& doc, bool navegador);
inline constexpr std::string_view pieHtml = "</body></html>\n";

}  // namespace calvento
