#pragma once

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <set>

#include "apoyo/azar.h"
#include "apoyo/mesa.h"
#include "modelo/archivo_proyecto.h"

namespace calvento {

/// The lines of an example project whose file name begins so, under their names: larger or smaller by the similarity of
/// Froude, somewhere else between the coast and the mountains, each number a little different.
inline Datos disenoAlAzar(Azar& azar, const FormatoProyecto& formato, const std::string& ejemplo = {}) {
  static std::set<std::filesystem::path> todos;
  if (todos.empty())
    for (const auto& e : std::filesystem::directory_iterator(RAIZ_PROYECTO "/ejemplos")) todos.insert(e.path());
  std::vector<std::filesystem::path> suyos;
  for (const auto& e : todos)
    if (e.extension() == "." + std::string(formato.extension) && e.filename().string().starts_with(ejemplo))
      suyos.push_back(e);
  const std::vector<std::string> textos = leerLineas(suyos.at(azar() % suyos.size()), formato.lineas.size());
  const std::string_view cotasRapida[] = {"Text1", "Text3", "Text27", "Text2", "Text4"},
                         cotasCaida[] = {"Text2", "Text4"}, anchos[] = {"Text6", "Text10", "Text16", "Text23"},
                         libres[] = {"Text7",  "Text8",  "Text12", "Text19", "Text9",
                                     "Text20", "Text13", "Text15", "Text14"};
  const bool rapida = formato.extension == "cvr";
  const auto esta = [](const auto& lista, std::string_view n) {
    return std::ranges::find(lista, n) != std::end(lista);
  };
  const auto salida = std::ranges::find(formato.lineas, "Text4") - formato.lineas.begin();
  const double fondo = std::stod(textos.at(static_cast<std::size_t>(salida))), otroFondo = entre(azar, 20, 900);
  const double L = std::exp(entre(azar, std::log(rapida ? 0.6 : 0.8), std::log(rapida ? 1.7 : 1.1)));
  Datos datos;
  for (std::size_t i = 0; i < textos.size(); ++i) {
    const std::string_view n = formato.lineas[i];
    const bool esCota = rapida ? esta(cotasRapida, n) : esta(cotasCaida, n);
    const double x = Val(textos[i]).valor(), poco = entre(azar, 0.9, 1.1);
    double otro = x;
    if (n == "Text5") otro = x * std::pow(L, 2.5) * poco;
    if (esta(anchos, n)) otro = x * L * (n == "Text23" ? poco + 0.1 : poco);  // a basin wide enough
    if (esta(libres, n)) otro = x * poco;
    if (esCota) otro = otroFondo + (x - fondo) * L * (n == "Text1" || !rapida ? poco : 1);
    if (n == (rapida ? "Text26" : "Text3")) otro = entre(azar, 0, 15);
    datos.emplace_back(n, otro == x || textos[i].empty() ? textos[i] : texto(Round(Real(otro), 4)));
  }
  return datos;
}

/// The text of a line.
inline std::string& linea(Datos& datos, std::string_view nombre) {
  return std::ranges::find(datos, nombre, [](const auto& d) { return d.first; })->second;
}

inline std::string comoTexto(const Datos& datos) {
  std::string s;
  for (const auto& [nombre, texto] : datos) s.append(nombre).append("=" + texto + " ");
  return s;
}

/// Those of the data window alone.
inline Datos camposDe(Datos datos) {
  std::erase_if(datos, [](const auto& d) { return !d.first.starts_with("Text"); });
  return datos;
}

}  // namespace calvento
