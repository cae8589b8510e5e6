#pragma once

#include <span>
#include <string>
#include <vector>

#include "cad/aplicacion_cad.h"
#include "dibujo/bloques.h"
#include "dibujo/cotas.h"
#include "dibujo/rotulos.h"
#include "dibujo/trazo.h"

namespace calvento {

/// The layers of an export, in the order they are made.
namespace capas {
inline constexpr const char* estructura = "RAS";
inline constexpr const char* canal = "CANAL";
inline constexpr const char* cuadricula = "GRID";
inline constexpr const char* textos = "TEXT";
inline constexpr const char* agua = "TIRANTE";
inline constexpr const char* energia = "LGRADIENTE";
}  // namespace capas

/// Sends the elements of a figure to the open drawing: stations are `origen` plus the X of the figure, elevations its
/// Y. What cannot be placed is left out, as on the canvas; what the application refuses fails with FalloCad.
class Envio {
 public:
  /// altura is the height of all texts but those of dimensions, in drawing units.
  Envio(AplicacionCad& aplicacion, double origen, double altura)
      : aplicacion_(aplicacion), origen_(origen), altura_(altura) {}

  /// A text that begins on its base line at a point, upright or turned by an angle in radians.
  void texto(const std::string& texto, Punto en);
  void texto(const std::string& texto, Punto en, double giro);
  /// Station and elevation of a point, upward on both sides of its vertical.
  void parEstacion(const ParEstacion& par);
  void pendiente(const RotuloPendiente& rotulo);

  void linea(Punto a, Punto b, const char* capa);
  void lineas(std::span<const Segmento> segmentos, const char* capa);
  void polilinea(const std::vector<Punto>& puntos, const char* capa);
  void circulo(Punto centro, double radio, const char* capa);
  void bloques(const std::vector<HileraDibujada>& hileras);

  /// Dimensions of every stretch of a chain, on the level of its line.
  void cadena(const CadenaCotas& cadena);
  /// Dimensions on the measured line itself.
  void distancia(const Segmento& entre);
  void altura(const CotaAltura& cota);
  void ancho(const AnchoEn& ancho, double eje);

 private:
  EspacioModelo& espacio() { return aplicacion_.ActiveDocument().ModelSpace(); }
  PuntoCad enDibujo(Punto p) const { return {origen_ + p.x, p.y, 0}; }
  TextoCad* anadirTexto(const std::string& texto, Punto en);
  void cota(Punto a, Punto b, Punto texto, double separacion);

  AplicacionCad& aplicacion_;
  double origen_;
  double altura_;
};

}  // namespace calvento
