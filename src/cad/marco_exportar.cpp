#include "cad/marco_exportar.h"

#include <array>
#include <stdexcept>
#include <utility>

#include "comun/numeros.h"
#include "plataforma/campos.h"

namespace calvento {

namespace {

/// No grid that anybody reads has more lines in one direction.
constexpr int masLineas = 10000;

/// Lets a loop from one limit to the other end: an interval that does not advance, or hardly does, is a failure.
void comprobarPaso(Real desde, Real hasta, Real paso) {
  if (!(paso > 0) || (hasta - desde) / paso > masLineas) fallar(Motivo::sinConvergencia);
}

}  // namespace

Real metroEntero(Real valor) { return Round(valor, 0); }

MarcoExportar::Cuadricula MarcoExportar::cuadriculaCaida() const {
  const DesignState& e = estado_;
  return {metroEntero(e.progresivaInicio - e.longControl - e.longTransEntrada - 5),
          metroEntero(e.progresivaFinPoza + 5), metroEntero(e.cotaPoza), metroEntero(e.cotaFin)};
}

MarcoExportar::MarcoExportar(std::string_view nombre, DesignState& estado, Dialogos& dialogos, Navegador& navegador,
                             const DestinosCad& destinos)
    : Ventana(nombre, "Exportar Diseño al AutoCAD 2010"), estado_(estado), dialogos_(dialogos), destinos_(destinos) {
  ofrecerDestinos();
  osProgress1.Visible = false;
  seleccionarAlEnfocar(*this);
  Command3.Click = [this] { Command3_Click(); };
  Command4.Click = [this, &navegador] { navegador.descargar(*this); };
}

void MarcoExportar::ofrecerDestinos() {
  using Presencia = ConexionAplicacion::Presencia;
  const Presencia presencia = destinos_.aplicacion == nullptr ? Presencia::ninguna : destinos_.aplicacion->presencia();
  Option1.Visible = Option2.Visible = presencia != Presencia::ninguna;
  if (presencia == Presencia::abierta) Option1.Value = true;
}

ConexionCad& MarcoExportar::conexion() {
  return Option1.Value && destinos_.aplicacion != nullptr ? *destinos_.aplicacion : destinos_.archivo;
}

void MarcoExportar::Command3_Click() {
  osProgress1.Visible = true;
  osProgress1.Min = 0;
  osProgress1.Value = 0;
  osProgress1.Max = 100;
  motivo_.clear();
  try {
    estado_.cadIntervaloV = Val(Text10.Text);
    estado_.cadIntervaloH = Val(Text11.Text);
    estado_.cadAlturaTexto = Val(Text12.Text);
    ConexionCad& con = conexion();
    AplicacionCad* cad = con.obtener();
    if (cad == nullptr) cad = con.crear();
    if (cad == nullptr) {
      motivo_ = con.error();
      dialogos_.aviso(motivo_);
      return;
    }
    try {
      exportar(*cad);
    } catch (const std::runtime_error&) {
      cad->soltar();  // what was sent stays
      throw;
    }
    cad->soltar();
    osProgress1.Visible = false;
  } catch (const std::runtime_error& fallo) {
    motivo_ = fallo.what();
    dialogos_.fallo("Problemas con la conexión");
  }
}

void MarcoExportar::exportar(AplicacionCad& cad) {
  cad.Visible(true);
  static constexpr std::array<std::pair<const char*, int>, 6> colores = {{{capas::estructura, 1},
                                                                          {capas::canal, 7},
                                                                          {capas::cuadricula, 8},
                                                                          {capas::textos, 1},
                                                                          {capas::agua, 4},
                                                                          {capas::energia, 3}}};
  for (const auto& [nombre, color] : colores) cad.ActiveDocument().capa(nombre).color(color);
  enviarCuadricula(cad);
  Envio envio(cad, Real(estado_.progresivaInicio).valor(), Real(estado_.cadAlturaTexto).valor());
  const HojaCad figura = hoja();
  enviarFigura(envio, figura);
  if (Check1.Value) envio.polilinea(figura.energia, capas::energia);
  ACOTAR(envio, figura);
  envio.bloques(figura.bloques);
}

void MarcoExportar::enviarFigura(Envio& envio, const HojaCad& figura) {
  static constexpr std::array<int, 5> avances = {75, 80, 85, 90, 95};
  for (std::size_t i = 0; i < avances.size(); ++i) {
    for (const ParEstacion& par : figura.textos[i].pares) envio.parEstacion(par);
    for (const RotuloPendiente& r : figura.textos[i].pendientes) envio.pendiente(r);
    avance(avances[i]);
  }
  envio.polilinea(figura.concreto, capas::estructura);
  envio.polilinea(figura.corona, capas::canal);
  for (const auto& borde : figura.bordesFondo) envio.polilinea(borde, capas::canal);
  envio.lineas(figura.lineasPlanta, capas::canal);
  envio.polilinea(figura.superficie, capas::agua);
  avance(97);
  for (const auto& contorno : {figura.canal, figura.canalAbajo, figura.muroBajo, figura.muroAlto})
    envio.polilinea(contorno, capas::estructura);
  avance(100);
}

void MarcoExportar::ACOTAR(Envio& envio, const HojaCad& figura) {
  for (const Punto& p : figura.puntosControl) envio.circulo(p, medioPuntoControl, capas::estructura);
  for (const CadenaCotas& c : figura.cadenas) envio.cadena(c);
  for (const CotaAltura& c : figura.alturas) envio.altura(c);
  for (const AnchoEn& a : figura.anchos) envio.ancho(a, figura.eje);
  for (const Segmento& s : figura.distancias) envio.distancia(s);
}

void MarcoExportar::enviarCuadricula(AplicacionCad& cad) {
  const auto [Xa, Xb, Za, Zb] = cuadricula();
  // the grid is laid out in stations already
  Envio envio(cad, 0, Real(estado_.cadAlturaTexto).valor());
  const auto linea = [&envio](Real x1, Real y1, Real x2, Real y2) {
    envio.linea({x1.valor(), y1.valor()}, {x2.valor(), y2.valor()}, capas::cuadricula);
  };
  const Real abajo = Za - 1;
  const Real arriba = Zb + 1;

  comprobarPaso(abajo, arriba, estado_.cadIntervaloV);
  for (Real e = abajo; e <= arriba; e += estado_.cadIntervaloV) {
    envio.texto(formato(e, "0.00"), {(Xa - 1).valor(), e.valor()});
    linea(Xa, e, Xb, e);
    avance(Round(30 * (e - Za + 1) / (Zb + 2 - Za), 1));
  }
  // the edges of the grid stand always, over the last line where the steps end on it
  linea(Xa, arriba, Xb, arriba);
  avance(30);

  comprobarPaso(Xa, Xb, estado_.cadIntervaloH);
  for (Real x = Xa; x <= Xb; x += estado_.cadIntervaloH) {
    envio.texto(formato(x, "0+000"), {x.valor(), abajo.valor()}, piCorto / 2);
    linea(x, abajo, x, arriba);
    avance(30 + Round(40 * (x - Xa) / (Xb - Xa), 1));
  }
  linea(Xb, abajo, Xb, arriba);
}

}  // namespace calvento
