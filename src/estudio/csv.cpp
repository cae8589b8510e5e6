#include "estudio/csv.h"

#include <algorithm>
#include <cmath>

#include "comun/fallo.h"
#include "comun/numeros.h"

namespace calvento {

void TextoCsv::separar() {
  if (!primera_) contenido_ += coma_ ? ';' : ',';
  primera_ = false;
}

TextoCsv& TextoCsv::texto(std::string_view celda) {
  separar();
  std::string s(celda);
  if (!s.empty() && std::string_view("=+-@\t\r").find(s.front()) != std::string_view::npos) s.insert(0, "'");
  if (s.find_first_of(",;\"\r\n") == std::string::npos) {
    contenido_ += s;
    return *this;
  }
  contenido_ += '"';
  for (const char c : s) contenido_ += c == '"' ? std::string("\"\"") : std::string(1, c);
  contenido_ += '"';
  return *this;
}

TextoCsv& TextoCsv::numero(double celda) {
  std::string s;
  if (std::isfinite(celda)) pasandoFallos([&] { s = calvento::texto(Single(Real(celda))); });
  separar();
  if (coma_) std::ranges::replace(s, '.', ',');
  contenido_ += s;
  return *this;
}

TextoCsv& TextoCsv::valor(std::string_view celda) {
  if (!esNumero(celda)) return texto(celda);
  std::string s(celda);
  if (coma_) std::ranges::replace(s, '.', ',');
  separar();
  contenido_ += s;
  return *this;
}

void TextoCsv::finDeLinea() {
  contenido_ += finDeLinea_;
  primera_ = true;
}

}  // namespace calvento
