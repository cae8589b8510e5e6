#include "poza/reglas_bloques.h"

#include "comun/numeros.h"

namespace calvento {

namespace {

/// No row has more blocks than this: a basin of 100 m with blocks of a centimetre.
constexpr int masBloques = 5000;

/// As many blocks of a height as stand `paso` heights apart; each as wide as the space beside it, with half a space at
/// the walls.
HileraBloques alternados(Real anchoPoza, Real alto, Real paso) {
  HileraBloques h;
  h.anchoPoza = anchoPoza;
  h.alto = alto;
  h.numero = Round(anchoPoza / (paso * alto), 0);
  h.ancho = h.hueco = anchoPoza / (2 * h.numero);
  h.orilla = h.ancho / 2;
  return h;
}

HileraBloques bloquesUsbr1(const DatosBloques& d) {
  HileraBloques h;
  h.anchoPoza = d.ancho;
  h.alto = d.minimo.aplicar(2 * d.y1);
  h.numero = Round(d.ancho / (1.3125 * h.alto), 0);
  h.ancho = d.ancho / (3.5 * h.numero);
  h.hueco = 2.5 * h.ancho;
  h.orilla = 1.25 * h.ancho;
  return h;
}

/// Teeth from wall to wall.
HileraBloques dientesUsbr3(const DatosBloques& d) {
  HileraBloques h;
  h.anchoPoza = d.ancho;
  h.alto = d.minimo.aplicar(0.2 * d.y2);
  h.numero = Round(d.ancho / ((0.3 * h.alto) / 0.2), 0);
  h.ancho = h.hueco = d.ancho / (2 * h.numero - 1);
  h.orilla = 0;
  return h;
}

HileraBloques hileraSaf(const DatosBloques& d) {
  HileraBloques h = alternados(d.ancho, d.minimo.aplicar(d.y1), 1.5);
  h.orilla = 3 * h.alto / 8;
  return h;
}

}  // namespace

MinimoBloques minimoBloques(const CheckBox& activo, const TextBox& alto) {
  if (!activo.Value) return {};
  return {true, Val(alto.Text)};
}

std::optional<Tanque> tanqueConBloques(Single tipoTanque) {
  for (const Tanque t : {Tanque::usbr1, Tanque::usbr2, Tanque::usbr3, Tanque::saf})
    if (tipoTanque == static_cast<int>(t)) return t;
  return std::nullopt;
}

HileraBloques bloquesDeRampa(Tanque tanque, const DatosBloques& d) {
  if (tanque == Tanque::usbr1) return bloquesUsbr1(d);
  if (tanque != Tanque::saf) return alternados(d.ancho, d.minimo.aplicar(d.y1), 2);
  HileraBloques h = hileraSaf(d);
  h.piezasEnMuros = true;
  return h;
}

std::optional<HileraBloques> bloquesDePiso(Tanque tanque, const DatosBloques& d) {
  if (tanque == Tanque::usbr2) return alternados(d.ancho, d.minimo.aplicar((0.168 * d.fr1 + 0.58) * d.y1), 1.5);
  if (tanque == Tanque::usbr3) return dientesUsbr3(d);
  if (tanque == Tanque::saf) return hileraSaf(d);
  return std::nullopt;
}

Real distanciaBloquesDePiso(Tanque tanque, const DatosBloques& d) {
  if (tanque == Tanque::usbr2) return 0.8 * d.y2;
  if (tanque == Tanque::usbr3) return d.longPoza;
  return d.longPoza / 3;
}

ObstaculosCaida obstaculosCaida(const DesignState& e, const MinimoBloques& minimo) {
  const Real ancho = 2 * Real(e.longTransVert) + e.bPozaCaida;
  ObstaculosCaida o;
  o.hilera = alternados(ancho, minimo.aplicar(0.8 * Real(e.ycControl)), 1);
  o.largo = 0.4 * Real(e.ycControl);
  o.distancia = e.longTramo1 + e.longTramo2;
  return o;
}

std::vector<FranjaBloque> franjas(const HileraBloques& h) {
  if (h.numero > masBloques) fallar(Motivo::desbordamiento);
  const int n = h.numero > 0 ? static_cast<int>(h.numero.valor()) : 0;  // below 0 where a height or the width is
  std::vector<FranjaBloque> todas;
  const Real paso = h.ancho + h.hueco;
  if (!h.piezasEnMuros) {
    for (int i = 0; i < n; ++i) todas.push_back({h.orilla + i * paso, h.orilla + i * paso + h.ancho});
    return todas;
  }
  for (int i = 1; i < n; ++i) {
    const Real desde = h.orilla + (2 * i - 1) * h.ancho;
    todas.push_back({desde, desde + h.ancho});
  }
  todas.push_back({0, h.ancho / 2});
  todas.push_back({h.anchoPoza - h.orilla, h.anchoPoza});
  return todas;
}

}  // namespace calvento
