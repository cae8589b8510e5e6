#include "cad/envio.h"

#include <algorithm>
#include <cmath>

#include "cad/medidas_cota.h"
#include "comun/numeros.h"
#include "comun/real.h"

namespace calvento {

namespace {

bool tieneSitio(Punto p) { return std::isfinite(p.x) && std::isfinite(p.y); }

}  // namespace

TextoCad* Envio::anadirTexto(const std::string& texto, Punto en) {
  if (!tieneSitio(en)) return nullptr;
  TextoCad& t = espacio().AddText(texto, enDibujo(en), altura_);
  t.Layer(capas::textos);
  return &t;
}

void Envio::texto(const std::string& texto, Punto en) { anadirTexto(texto, en); }

void Envio::texto(const std::string& texto, Punto en, double giro) {
  if (TextoCad* t = anadirTexto(texto, en)) t->Rotation(giro);
}

void Envio::parEstacion(const ParEstacion& par) {
  const double recto = piCorto / 2;
  const double resquicio = altura_ / 4;
  texto("Est:" + formato(origen_ + par.x, "0+000.00"), {par.x - resquicio, par.y}, recto);
  texto("E:" + formato(par.cota, "0.000"), {par.x + altura_ + resquicio, par.y}, recto);
}

void Envio::pendiente(const RotuloPendiente& rotulo) {
  // the canvas hangs a text from its upper left corner, the drawing puts it on its base line
  const double giro = -std::atan(Real(rotulo.pendiente).valor());
  texto(rotulo.texto(), {rotulo.x + altura_ * std::sin(giro), rotulo.y - altura_ * std::cos(giro)}, giro);
}

void Envio::linea(Punto a, Punto b, const char* capa) {
  if (tieneSitio(a) && tieneSitio(b)) espacio().AddLine(enDibujo(a), enDibujo(b)).Layer(capa);
}

void Envio::lineas(std::span<const Segmento> segmentos, const char* capa) {
  for (const Segmento& s : segmentos) linea(s.a, s.b, capa);
}

void Envio::polilinea(const std::vector<Punto>& puntos, const char* capa) {
  if (puntos.size() < 2 || !std::all_of(puntos.begin(), puntos.end(), tieneSitio)) return;
  std::vector<double> vertices;
  for (const Punto& p : puntos) vertices.insert(vertices.end(), {origen_ + p.x, p.y, 0});
  espacio().AddPolyline(vertices).Layer(capa);
}

void Envio::circulo(Punto centro, double radio, const char* capa) {
  if (tieneSitio(centro)) espacio().AddCircle(enDibujo(centro), radio).Layer(capa);
}

void Envio::bloques(const std::vector<HileraDibujada>& hileras) {
  for (const HileraDibujada& h : hileras) {
    polilinea(h.seccion, capas::estructura);
    for (const CajaPlanta& c : h.planta) polilinea({c.a, {c.b.x, c.a.y}, c.b, {c.a.x, c.b.y}, c.a}, capas::estructura);
  }
}

void Envio::cota(Punto a, Punto b, Punto texto, double separacion) {
  // what is not there (a ramp or a transition without length) has no dimension
  if (!tieneSitio(a) || !tieneSitio(b) || !tieneSitio(texto) || a == b) return;
  CotaCad& c = espacio().AddDimAligned(enDibujo(a), enDibujo(b), enDibujo(texto));
  c.Layer(capas::textos);
  c.ArrowheadSize(medidaCota);
  c.ExtensionLineExtend(medidaCota);
  c.ExtensionLineOffset(separacion);
  c.TextHeight(medidaCota);
  c.VerticalTextPosition(0);
}

void Envio::cadena(const CadenaCotas& cadena) {
  std::vector<double> estaciones = {cadena.desde};
  estaciones.insert(estaciones.end(), cadena.dobles.begin(), cadena.dobles.end());
  estaciones.push_back(cadena.hasta);
  for (std::size_t i = 0; i + 1 < estaciones.size(); ++i) {
    const double x1 = estaciones[i];
    const double x2 = estaciones[i + 1];
    cota({x1, cadena.base}, {x2, cadena.base}, {(x1 + x2) / 2, cadena.base - nivelCadena}, separacionCadena);
  }
}

void Envio::distancia(const Segmento& s) {
  cota(s.a, s.b, {(s.a.x + s.b.x) / 2, (s.a.y + s.b.y) / 2}, separacionEnSitio);
}

void Envio::altura(const CotaAltura& c) { distancia({{c.x, c.abajo}, {c.x, c.arriba}}); }

void Envio::ancho(const AnchoEn& a, double eje) { altura({a.x, eje - a.medio, eje + a.medio}); }

}  // namespace calvento
