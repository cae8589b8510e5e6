#include "lote/estructuras.h"

#include "modelo/rutas.h"

namespace calvento::lote {

namespace {

/// The reports of a structure with a basin table: the sheet of its basin type comes last.
std::vector<Reporte> conHojaDeBloques(std::vector<Reporte> reportes) {
  reportes.insert(
      reportes.end(),
      {{"mntabla", "Form22", 2}, {"mntabla", "Form5", 3}, {"mntabla", "Form21", 4}, {"mntabla", "Form23", 5}});
  return reportes;
}

Estructura rapida() {
  return {
      "rapida",
      &formatoRapida,
      {"Label27", "Label35", "Label41"},
      {"Label41", "Label35"},
      {"mngrafico", "mntabla", "mntanque", "mnst", "mntperfil", "mntrayectoria", "mnformondas"},
      conHojaDeBloques(
          {{"mntperfil", "Form11"}, {"mnformondas", "Form6"}, {"mntrayectoria", "Form8"}, {"mntanque", "Form13"}}),
      "Form3",
      "Form12",
  };
}

Estructura caidaInclinada() {
  return {
      "caida_inclinada",
      &formatoCaidaInclinada,
      {"Label27", "Label29", "Label41"},
      {"Label41", "Label29"},
      {"mngrafico", "mnst", "mntabla", "mntanque"},
      conHojaDeBloques({{"mntanque", "Form7"}}),
      "Form4",
      "Form9",
  };
}

Estructura caidaVertical() {
  return {
      "caida_vertical",
      &formatoCaidaVertical,
      {"Label41", "Label48"},
      {"Label41"},
      {"mngrafico", "mnseccion", "mntanque"},
      {{"mntanque", "Form26"}},
      "Form17",
      "Form18",
  };
}

}  // namespace

std::span<const Estructura> estructuras() {
  static const std::vector<Estructura> todas = {rapida(), caidaInclinada(), caidaVertical()};
  return todas;
}

const Estructura* estructuraDe(std::string_view archivo) {
  for (const Estructura& e : estructuras())
    if (tieneExtension(archivo, e.formato->extension)) return &e;
  return nullptr;
}

std::string extensiones() {
  std::string todas;
  for (const Estructura& e : estructuras()) todas += (todas.empty() ? "." : ", .") + std::string(e.formato->extension);
  return todas;
}

}  // namespace calvento::lote
