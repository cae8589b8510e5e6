#include "dibujo/marco_dibujo.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "comun/numeros.h"
#include "dibujo/leyenda.h"
#include "dibujo/reglas.h"

namespace calvento {

namespace {

/// A zoom box that is narrower than this in either direction is no zoom box, m.
constexpr double menorCaja = 0.01;

}  // namespace

MarcoDibujo::MarcoDibujo(std::string_view nombre, std::vector<std::string> claves, DesignState& estado,
                         Navegador& navegador)
    : Ventana(nombre), Toolbar1(*this, "Toolbar1", std::move(claves)), estado_(estado), navegador_(navegador) {
  Toolbar1.ButtonClick = [this](const std::string& clave) { Toolbar1_ButtonClick(clave); };
  Command1.Click = [this] { navegador_.descargar(*this); };
  GRAF.MouseDown = [this](Punto p) { GRAF_MouseDown(p); };
  GRAF.MouseMoveEn = [this](Punto p) { GRAF_MouseMove(p); };
  GRAF.MouseUp = [this](Punto p) { GRAF_MouseUp(p); };
  GRAF.Resize = [this](int ancho, int alto) { GRAF_Resize(ancho, alto); };
  for (PictureBox* franja : {&Picture1, &Picture2})
    franja->Resize = [this, franja](int ancho, int alto) {
      franja->lienzo.redimensionarSinCrecer(ancho, alto);
      reglas();
    };
}

void MarcoDibujo::abrir(Estructura estructura) {
  estructura_ = std::move(estructura);
  Caption = estado_.rutaArchivo;
  ver("vistaTanque");
}

std::vector<std::string_view> MarcoDibujo::vistas() const {
  std::vector<std::string_view> nombres;
  for (const VistaFija& v : estructura_.vistas) nombres.emplace_back(v.nombre);
  return nombres;
}

const MarcoDibujo::VistaFija* MarcoDibujo::fija(std::string_view nombre) const {
  const auto& todas = estructura_.vistas;
  const auto v = std::find_if(todas.begin(), todas.end(), [&](const VistaFija& f) { return f.nombre == nombre; });
  return v == todas.end() ? nullptr : &*v;
}

bool MarcoDibujo::ver(std::string_view nombre) {
  const VistaFija* v = fija(nombre);
  if (v == nullptr) return false;
  mostrarVista(v->limites, nombre == "vistaTodo" ? Orden::principal : Orden::vistas);
  return true;
}

std::optional<MarcoDibujo::VistaPedida> MarcoDibujo::vistaPedida() const {
  if (!pedida_) return std::nullopt;
  return VistaPedida{*pedida_, orden_ == Orden::principal};
}

bool MarcoDibujo::volverA(const VistaPedida& vista) {
  const VistaFija* todo = fija("vistaTodo");
  const Vista& v = vista.limites;
  bool toca = false;
  if (todo == nullptr) return false;
  pasandoFallos([&] {
    const Vista figura = todo->limites();
    toca = v.x1 < v.x2 && v.y1 < v.y2 && v.x1 < figura.x2 && v.x2 > figura.x1 && v.y1 < figura.y2 && v.y2 > figura.y1;
  });
  if (toca) mostrarVista([v] { return v; }, vista.principal ? Orden::principal : Orden::vistas);
  return toca;
}

void MarcoDibujo::vistaMas() {
  mostrarVista([this] { return acercada(GRAF.lienzo); }, Orden::vistas);
}

void MarcoDibujo::vistaMenos() {
  mostrarVista([this] { return alejada(GRAF.lienzo); }, Orden::vistas);
}

void MarcoDibujo::mostrarVista(const std::function<Vista()>& limites, Orden orden) {
  orden_ = orden;
  pasandoFallos([&] {
    const Vista v = limites();
    fijarVista(estado_, v);
    Escala(estado_, GRAF.lienzo);
    pedida_ = v;
  });
  redibujar();
}

void MarcoDibujo::reglas() {
  pasandoFallos([&] {
    EJEX(estado_.vistaX1 + estado_.progresivaInicio, estado_.vistaX2 + estado_.progresivaInicio, Picture1.lienzo,
         reglaProgresivas);
  });
  pasandoFallos([&] { EJEY(estado_.vistaY1, estado_.vistaY2, Picture2.lienzo, reglaElevaciones); });
}

void MarcoDibujo::redibujar() {
  reglas();
  for (const Rutina& r : orden_ == Orden::principal ? estructura_.ordenPrincipal : estructura_.ordenVistas)
    pasandoFallos([&] {
      GRAF.lienzo.capa(r.nombre);
      r.pintar(GRAF.lienzo);
    });
  GRAF.lienzo.capa("leyenda");
  dibujarLeyenda(GRAF.lienzo);
}

void MarcoDibujo::GRAF_Resize(int ancho, int alto) {
  if (ancho <= 0 || alto <= 0) return;
  GRAF.lienzo.redimensionar(ancho, alto);
  if (!pedida_) return;
  mostrarVista([v = *pedida_] { return v; }, orden_);
}

void MarcoDibujo::GRAF_MouseDown(Punto p) {
  estado_.dibX = p.x;
  estado_.dibY = p.y;
  GRAF.recuadro = {true, p, p};
}

void MarcoDibujo::GRAF_MouseMove(Punto p) {
  estado_.dibX2 = p.x;
  estado_.dibY2 = p.y;
  pasandoFallos([&] {
    Label5.Caption = "(" + formato(estado_.progresivaInicio + p.x, "0.000") + "," + formato(Real(p.y), "0.000") + ")";
  });
  if (GRAF.recuadro.valor().visible) GRAF.recuadro = {true, {estado_.dibX, estado_.dibY}, p};
}

void MarcoDibujo::GRAF_MouseUp(Punto p) {
  if (!GRAF.recuadro.valor().visible) return;  // the second of two buttons: its box is done already
  GRAF.recuadro = {};
  estado_.dibX2 = p.x;
  estado_.dibY2 = p.y;
  const auto [x1, x2] = std::minmax(estado_.dibX, estado_.dibX2);
  const auto [y1, y2] = std::minmax(estado_.dibY, estado_.dibY2);
  if (x2 - x1 < menorCaja || y2 - y1 < menorCaja) return;
  mostrarVista([v = Vista{x1, x2, y1, y2}] { return v; }, Orden::principal);
}

void MarcoDibujo::Toolbar1_ButtonClick(const std::string& clave) {
  static const std::vector<Boton> vistas = {
      {"todo", "vistaTodo"}, {"tanque", "vistaTanque"}, {"planta", "vistaPlanta"}, {"scontrol", "vistaControl"}};
  const auto buscar = [&](const std::vector<Boton>& botones) {
    const auto b = std::find_if(botones.begin(), botones.end(), [&](const Boton& x) { return x.clave == clave; });
    return b == botones.end() ? nullptr : &*b;
  };
  if (clave == "max")
    vistaMas();
  else if (clave == "min")
    vistaMenos();
  else if (clave == "Imprimir")
    navegador_.imprimir(*this);
  else if (clave == "Copiar")
    navegador_.copiar(*this);
  else if (const Boton* vista = buscar(vistas))
    ver(vista->destino);
  else if (const Boton* ventana = buscar(estructura_.ventanas))
    navegador_.mostrar(ventana->destino);
}

}  // namespace calvento
