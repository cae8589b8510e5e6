#include "estudio/columnas.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "comun/numeros.h"
#include "dibujo/geometria_inclinada.h"
#include "dibujo/geometria_rapida.h"
#include "dibujo/geometria_vertical.h"
#include "memoria/ecuaciones.h"
#include "poza/tabla_tanques.h"
#include "reportes/verificacion.h"

namespace calvento {

namespace {

using D = DesignState;
using Estado = Comprobacion::Estado;

Celda cifra(Single s) { return {static_cast<double>(s.valor()), {}}; }

/// A field of the record, which holds another design's result where the calculation has not come to its end.
std::function<Celda(const Calculado&)> delRegistro(Single D::*campo) {
  return [campo](const Calculado& c) { return c.completo ? cifra(c.diseno.e.*campo) : Celda{}; };
}

/// The rise as the window foretells it: the chute's record takes none below 0, and a negative one is why a drop is not
/// calculated to its end.
Celda sobreelevacion(const Calculado& c) {
  const auto* rotulo = c.ventana.buscar<Label>(c.diseno.vertical() ? "Label48" : "Label27");
  if (c.diseno.e.frArriba > 1 || rotulo == nullptr || vacio(rotulo->Caption)) return {};
  return {Val(rotulo->Caption).valor(), {}};
}

/// The vertical drop keeps no Froude number.
Celda froude(const Calculado& c) {
  const D& e = c.diseno.e;
  if (!c.completo) return {};
  if (!c.diseno.vertical()) return cifra(e.fr1);
  const double ancho = double{e.bPozaCaida.valor()} + 2 * double{e.longTransVert.valor()};
  return {ecuaciones::Canal{ancho, 0}.froude(double{e.Q.valor()}, double{e.y1.valor()}), {}};
}

/// Without a basin type the record keeps the length of a former design.
bool conLongitud(const Calculado& c) { return c.completo && (c.diseno.vertical() || filaElegida(c.diseno.e) > 0); }

Celda longitudPozaDe(const Calculado& c) { return conLongitud(c) ? cifra(c.diseno.e.longPoza) : Celda{}; }

/// From the start of the inlet transition to the end of that of the outlet, as it is drawn.
Celda longitudTotal(const Calculado& c) {
  if (!conLongitud(c)) return {};
  const auto entre = [](const auto& g) { return g.estaciones().xTrans - g.xCanal() - canalDibujado; };
  const D& e = c.diseno.e;
  return {c.diseno.rapida()      ? entre(GeometriaRapida(e))
          : c.diseno.inclinada() ? entre(GeometriaInclinada(e))
                                 : entre(GeometriaVertical(e)),
          {}};
}

Celda tiposFactibles(const Calculado& c) {
  if (!c.completo) return {};
  Celda celda{0, {}};
  for (int f = 1; f < c.diseno.tanques.filas(); ++f)
    if (esFactible(c.diseno.tanques, f)) {
      celda.numero += 1;
      celda.texto += (celda.texto.empty() ? "" : ", ") + c.diseno.tanques.texto(f, 0);
    }
  if (celda.texto.empty()) celda.texto = "ninguno";
  return celda;
}

Celda verificacion(const Calculado& c) {
  if (!c.completo || c.tablas == nullptr) return {};
  const int bien = caudalesContenidos(c.tablas->verificacion);
  return {static_cast<double>(bien), std::to_string(bien) + " de 10"};
}

/// The discharges with which no roll waves arise, of three.
Celda estabilidad(const Calculado& c) {
  static constexpr std::string_view comienzo = "Estabilidad del flujo con ";
  if (!c.completo || c.comprobaciones == nullptr) return {};
  Celda celda{0, {}};
  for (const Comprobacion& k : *c.comprobaciones) {
    if (!k.nombre.starts_with(comienzo)) continue;
    if (k.estado == Estado::cumple)
      celda.numero += 1;
    else
      celda.texto += (celda.texto.empty() ? "inestable con " : ", ") + std::string(k.nombre.substr(comienzo.size()));
  }
  if (celda.texto.empty()) celda.texto = "estable";
  return celda;
}

Celda noCumplidas(const Calculado& c) {
  if (!c.completo || c.comprobaciones == nullptr) return {};
  Celda celda{0, {}};
  for (const Comprobacion& k : *c.comprobaciones)
    if (k.estado == Estado::noCumple) {
      celda.numero += 1;
      celda.texto += "; " + std::string(k.nombre);
    }
  celda.texto =
      std::to_string(static_cast<int>(celda.numero)) + (celda.texto.empty() ? "" : ": " + celda.texto.substr(2));
  return celda;
}

std::vector<Columna> principales(const Ficha& ficha) {
  const bool vertical = ficha.tipo == TipoEstructura::vertical;
  std::vector<Columna> todas = {
      {"sobreelevacion", "Sobreelevación", "m", 3, true, false, true, sobreelevacion},
      {"y1", "Y1", "m", 3, true, false, true, delRegistro(&D::y1)},
      {"fr1", "Fr1", "", 3, true, false, true, froude},
      {"v1", "V1", "m/s", 3, true, false, true, delRegistro(&D::v1)},
      {"y2", "Y2", "m", 3, true, false, true, delRegistro(&D::y2)},
      {"profPoza", "Profundidad de la poza", "m", 3, true, false, true, delRegistro(&D::profPoza)},
      {"longPoza", "Longitud de la poza", "m", 2, true, false, true, longitudPozaDe},
  };
  if (!vertical)
    todas.push_back({"hPoza", "Altura de muros de la poza", "m", 2, true, false, true, delRegistro(&D::hPoza)});
  todas.push_back({"longTotal", "Longitud total", "m", 2, true, false, true, longitudTotal});
  if (!vertical)
    todas.push_back({"tiposFactibles", "Tipos de tanque factibles", "", 0, true, false, false, tiposFactibles});
  todas.push_back({"verificacion", "Caudales que la poza contiene", "de 10", 0, true, true, true, verificacion});
  if (ficha.tipo == TipoEstructura::rapida)
    todas.push_back({"estabilidad", "Caudales con flujo estable", "de 3", 0, true, true, true, estabilidad});
  todas.push_back({"noCumplidas", "Comprobaciones que no cumplen", "", 0, true, true, true, noCumplidas});
  return todas;
}

std::vector<Columna> listaDe(const Ficha& ficha) {
  std::vector<Columna> todas = principales(ficha);
  for (const Linea<Valor>& linea : ficha.resultados)
    for (const Valor& v : linea.piezas) {
      const std::string clave(nombreDelRegistro(v.campo));
      if (std::ranges::find(todas, clave, &Columna::clave) != todas.end()) continue;
      std::string nombre(linea.lugar);
      if (!v.simbolo.empty()) nombre += ": " + std::string(v.simbolo);
      todas.push_back({clave, nombre, std::string(v.unidad), v.decimales, false, false, true, delRegistro(v.campo)});
    }
  return todas;
}

}  // namespace

std::string_view nombreDelRegistro(Single DesignState::*campo) {
  for (const CampoSingle& c : camposSingle())
    if (c.campo == campo) return c.nombre;
  return {};
}

const std::vector<Columna>& columnas(const Ficha& ficha) {
  static const std::array<std::vector<Columna>, 3> listas = {listaDe(fichas()[0]), listaDe(fichas()[1]),
                                                             listaDe(fichas()[2])};
  return listas.at(static_cast<std::size_t>(ficha.tipo));
}

std::size_t columnaDe(const Ficha& ficha, std::string_view clave) {
  const auto& todas = columnas(ficha);
  return static_cast<std::size_t>(std::ranges::find(todas, clave, &Columna::clave) - todas.begin());
}

std::string textoDe(const Columna& columna, const Celda& celda) {
  if (!celda.texto.empty()) return celda.texto;
  if (!std::isfinite(celda.numero)) return {};
  const auto decimales = static_cast<std::size_t>(columna.decimales);
  return formato(Real(celda.numero), decimales == 0 ? "0" : "0." + std::string(decimales, '0'));
}

}  // namespace calvento
