#include "dibujo/rotulos_poza.h"

#include <cmath>
#include <utility>

#include "dibujo/cotas.h"

namespace calvento {

namespace {

/// The slope of the upstream canal is written so far under its bed, m.
constexpr double bajoFondo = 0.1;

}  // namespace

void rotuloCentrado(Lienzo& lienzo, double x, double y, std::string t, std::string_view muestra) {
  rotulo(lienzo, x - ancho(muestra, 2000), y, std::move(t));
}

void rotuloCentrado(Lienzo& lienzo, double x, double y, std::string t) {
  const double medio = ancho(t, 2000);
  rotulo(lienzo, x - medio, y, std::move(t));
}

void rotuloProfundidad(Lienzo& lienzo, const Valores& v, const EstacionesPoza& p, std::string_view comienzo) {
  rotuloCentrado(lienzo, p.xPoza2, (v.cotaAbajo - v.cotaPoza) / 2 + v.cotaPoza + alto(2500),
                 std::string(comienzo) + formato(v.profPoza, "0.00"), "0.00");
}

void rotulosConjugados(Lienzo& lienzo, const Valores& v, double xPie, double xResalto, std::string_view unidad) {
  rotulo(lienzo, xPie, alto(1500) + v.cotaPoza, "Y1=" + redondeado(v.estado.y1) + std::string(unidad));
  rotuloCentrado(lienzo, xResalto, v.y2 / 2 + v.cotaPoza + alto(2500),
                 "Y2=" + redondeado(v.estado.y2) + std::string(unidad), "0.000");
}

void rotuloTiranteAbajo(Lienzo& lienzo, const Valores& v, const EstacionesPoza& p) {
  rotuloCentrado(lienzo, p.xPoza2, v.ynAbajo / 2 + v.cotaAbajo + alto(2500), "Yn= " + redondeado(v.estado.ynAbajo),
                 "0.000");
}

void rotuloProyeccion(Lienzo& lienzo, const Valores& v, const EstacionesPoza& p) {
  rotulo(lienzo, p.xPoza0 + v.longPoza / 3, v.cotaPoza + v.hPoza + 0.15, "Proyección de canal");
}

void rotulosLongitudesPoza(Lienzo& lienzo, const Valores& v, const EstacionesPoza& p, double base) {
  const double y = base - nivelLongitudes;
  rotuloCentrado(lienzo, p.lRampaE / 2 + p.xPT, y, redondeado(p.lRampaE), formato(p.lRampaE, "0.000"));
  rotuloCentrado(lienzo, p.xPoza0 + v.longPoza / 2, y, redondeado(v.estado.longPoza), formato(v.longPoza, "0.000"));
  rotulosLongitudesSalida(lienzo, v, p, base, redondeado(v.estado.longTransSalida));
}

void rotulosLongitudesSalida(Lienzo& lienzo, const Valores& v, const EstacionesPoza& p, double base,
                             const std::string& transicion) {
  const double y = base - nivelLongitudes;
  if (v.profPoza != 0)
    rotuloCentrado(lienzo, p.xPoza1 + p.lRampaS / 2, y, redondeado(p.lRampaS), formato(p.lRampaS, "0.000"));
  if (v.longTransSalida != 0)
    rotuloCentrado(lienzo, p.xPoza2 + v.longTransSalida / 2, y, transicion, formato(v.longTransSalida, "0.00"));
}

void rotuloCanalAbajo(Lienzo& lienzo, const Valores& v, const EstacionesPoza& p) {
  rotulo(lienzo, p.xTrans + 0.1, v.cotaPoza - 0.3, "Canal Aguas Abajo");
}

void rotulosAnchos(Lienzo& lienzo, std::span<const AnchoEn> anchos, double eje) {
  for (const auto& a : anchos) rotuloCentrado(lienzo, a.x, alto(2500) + eje, formato(2 * a.medio, "0.00"), "0.00");
}

void flechasAnchos(Lienzo& lienzo, std::span<const AnchoEn> anchos, double eje) {
  for (const auto& a : anchos) flechasVerticales(lienzo, a.x, eje - a.medio, eje + a.medio);
}

void titulos(Lienzo& lienzo, double xMedio, double yPlanta, double ySeccion) {
  titulo(lienzo, xMedio - ancho("PLANTA", 2500), yPlanta, "PLANTA");
  titulo(lienzo, xMedio - ancho("SECCION LONGITUDINAL", 2500), ySeccion, "SECCION LONGITUDINAL");
}

void barraPoza(Lienzo& lienzo, const Valores& v, const EstacionesPoza& p) {
  lienzo.Line({p.xPoza2 - 0.15, v.cotaPoza}, {p.xPoza2 + 0.05, v.cotaPoza});
}

void paresDeEstacion(Lienzo& lienzo, const Letra& letra, const Valores& v, std::span<const ParEstacion> pares) {
  for (const ParEstacion& par : pares) parEstacion(lienzo, letra, v.progresivaInicio, par);
}

void rotuloRampaEntrada(Lienzo& lienzo, const Letra& letra, const Valores& v, const EstacionesPoza& p) {
  const double baja = entre(1, v.zRampaEntrada);
  rotuloGirado(lienzo, letra, giroBaja(baja), p.lRampaE / 2 + p.xPT - std::cos(std::atan(baja)) * 0.2,
               (v.cotaPoza + v.cotaTrayectoria) / 2 - std::sin(std::atan(baja)) * 0.1,
               "1:" + texto(v.estado.zRampaEntrada));
}

void rotuloRampaSalida(Lienzo& lienzo, const Letra& letra, const Valores& v, const EstacionesPoza& p) {
  if (v.profPoza == 0) return;
  const double sube = entre(1, v.zRampaSalida);
  rotuloGirado(lienzo, letra, giroSube(sube), p.xPoza1 + p.lRampaS / 2,
               (v.cotaAbajo - v.cotaPoza) / 2 + v.cotaPoza - std::sin(std::atan(sube)) * 0.35,
               "1:" + texto(v.estado.zRampaSalida));
}

void rotuloPendiente(Lienzo& lienzo, const Letra& letra, const RotuloPendiente& r, const std::string& delante) {
  rotuloGirado(lienzo, letra, giroBaja(Real(r.pendiente).valor()), r.x, r.y, delante + r.texto());
}

RotuloPendiente pendienteArriba(const Valores& v, Punto fondo) {
  return {fondo.x, fondo.y - bajoFondo, v.estado.sArriba};
}

void rotuloCaudalArriba(Lienzo& lienzo, const Letra& letra, const Valores& v, const RotuloPendiente& bajo,
                        double tirante, std::string caudal) {
  rotuloGirado(lienzo, letra, giroBaja(v.sArriba), bajo.x, bajo.y + bajoFondo + tirante / 2 + alto(2500),
               std::move(caudal));
}

RotuloPendiente pendienteAbajo(const Valores& v, const EstacionesPoza& p) {
  return {p.xTrans + 0.1, fondoAbajo(v, v.longTransSalida + 0.1) - alto(2500), v.estado.sAbajo};
}

void rotulosCanalAbajo(Lienzo& lienzo, const Letra& letra, const Valores& v, const EstacionesPoza& p,
                       std::string velocidad) {
  rotuloGirado(lienzo, letra, giroBaja(v.sAbajo), p.xPoza2 + 0.6,
               v.ynAbajo / 2 + v.cotaAbajo - v.sAbajo * 0.6 + alto(2500), std::move(velocidad));
  rotuloPendiente(lienzo, letra, pendienteAbajo(v, p));
}

std::string caudalArriba(const Valores& v) {
  return "Q= " + redondeado(v.estado.Q) + "m³/s; V=" + redondeado(v.estado.vArriba) +
         "m/s; Yn=" + redondeado(v.estado.ynArriba) + "m";
}

std::string tiranteYVelocidadAbajo(const Valores& v) {
  return "Yn=" + redondeado(v.estado.ynAbajo) + "m; V=" + redondeado(v.estado.vAbajo) + "m/s";
}

void rotuloEnergia(Lienzo& lienzo, const Letra& letra, Punto inicio, Punto fin) {
  rotuloGirado(lienzo, letra, giroBaja(entre(inicio.y - fin.y, fin.x - inicio.x)), (fin.x + 2 * inicio.x) / 3,
               (2 * inicio.y + fin.y) / 3 + alto(1500), "Línea Gradiente de Energía");
}

}  // namespace calvento
