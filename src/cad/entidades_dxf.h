#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "cad/aplicacion_cad.h"
#include "cad/medidas_cota.h"

// A drawing as plain records, from which the DXF text is written.

namespace calvento {

struct LineaDxf {
  PuntoCad a, b;
};
struct PolilineaDxf {
  std::vector<PuntoCad> vertices;  ///< at least two
};
struct CirculoDxf {
  PuntoCad centro;
  double radio = 0;
};
struct TextoDxf {
  PuntoCad en;
  std::string texto;
  double altura = 0;
  double giro = 0;        ///< radians
  bool centrado = false;  ///< the point is the middle of the text, else the begin of its base line
};
/// A filled triangle, as arrow heads are.
struct FlechaDxf {
  PuntoCad punta, izquierda, derecha;
};
struct CotaDxf {
  PuntoCad a, b, texto;
  double flecha = medidaCota;
  double extension = medidaCota;
  double separacion = separacionEnSitio;
  double altura = medidaCota;
  int posicion = 0;
};

struct EntidadDxf {
  std::variant<LineaDxf, PolilineaDxf, CirculoDxf, TextoDxf, CotaDxf> forma;
  std::string capa = "0";
};

struct DatosDxf {
  std::vector<std::pair<std::string, int>> capas;  ///< name and colour index, in the order they were made
  std::vector<EntidadDxf> entidades;
};

}  // namespace calvento
