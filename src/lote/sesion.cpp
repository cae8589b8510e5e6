#include "lote/sesion.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <utility>

#include "lote/campos.h"
#include "modelo/rutas.h"

namespace calvento::lote {

namespace {

/// Only plain files: a folder opens like one on some systems, and opening a pipe would wait for its writer.
bool sePuedeLeer(const std::filesystem::path& archivo) {
  std::error_code error;
  return std::filesystem::is_regular_file(archivo, error) && std::ifstream(archivo, std::ios::binary).is_open();
}

}  // namespace

Sesion::Sesion(const Opciones& opciones, std::string archivo, const std::vector<Puesto>& variados)
    : archivo_(std::move(archivo)),
      estructura_(estructuraDe(archivo_)),
      accesible_(estructura_ != nullptr && sePuedeLeer(comoRuta(archivo_))),
      dialogos_(opciones.responder),
      aplicacion_(dialogos_, pantalla_) {
  ejecutar(opciones, variados);
  pantalla_.atender();
  mensajes_ = dialogos_.mensajes;
  estado_ = aplicacion_.estado;
  anotarLecturas();
  abrirReportes();
}

void Sesion::ejecutar(const Opciones& opciones, const std::vector<Puesto>& variados) {
  if (estructura_ == nullptr) {
    dialogos_.fallo("La extensión del archivo no es de un proyecto: " + extensiones());
    return;
  }
  // the parameter windows are reached through the data window, so that one comes first
  ventana_ = aplicacion_.cargar<VentanaDatos>(estructura_->formato->ventana);
  if (ventana_ == nullptr) return;
  ponerCampos(opciones, true);
  aplicacion_.abrirProyecto(archivo_);
  // a project that was not read to its end is left alone: pressing on would calculate with the fields it has filled
  if (aplicacion_.estado.esNuevo) return;
  ponerCampos(opciones, false);
  const bool conNombre = ponerConNombre(opciones, variados);
  const bool cambiado = conNombre || std::any_of(opciones.campos.begin(), opciones.campos.end(),
                                                 [this](const auto& a) { return a.ventana == ventana_->nombre(); });
  for (int i = cambiado ? -1 : 0; i < opciones.veces; ++i) ventana_->Command3_Click();
  calculado_ = ventana_->calculado();
}

void Sesion::anotarLecturas() {
  if (ventana_ == nullptr || aplicacion_.estado.esNuevo) return;
  for (const Ventana* v :
       std::initializer_list<const Ventana*>{ventana_, aplicacion_.cargada(estructura_->ficha().parametros)})
    for (const Control* c : v->controles()) {
      const auto* campo = dynamic_cast<const TextBox*>(c);
      if (campo == nullptr || campo->lectura().empty()) continue;
      std::string nota = v == ventana_ ? std::string(estructura_->formato->titulo) : v->Caption.valor();
      notas_.push_back(nota + ", " + std::string(campo->magnitud.nombre) + ": «" + campo->Text.valor() + "». " +
                       campo->lectura());
    }
}

void Sesion::abrirReportes() {
  if (ventana_ == nullptr) return;
  for (const Reporte& r : estructura_->reportes) {
    const auto* menu = ventana_->buscar<Menu>(r.menu);
    if (menu == nullptr || !menu->Enabled) continue;
    if (r.tipoTanque != 0 && !(estado_.tipoTanque == r.tipoTanque)) continue;
    dialogos_.mensajes.clear();
    disparar(menu->Click);  // which may bring the record into the form that the window reads
    const Ventana* reporte = aplicacion_.cargada(r.ventana);
    std::string fallo;
    for (const Mensaje& m : dialogos_.mensajes)
      if (m.tipo == Mensaje::Tipo::fallo) fallo = m.texto;
    reportes_.push_back({r.ventana, reporte, fallo});
  }
}

Diseno Sesion::diseno() const {
  const Ficha& ficha = estructura_->ficha();
  return {ficha, *ventana_, *aplicacion_.cargada(ficha.parametros), estado_, mensajes_};
}

Comprobaciones Sesion::comprobaciones() const {
  if (!calculado_) return {};
  const auto tabla = [this](std::string_view ventana) {
    for (const ReporteAbierto& r : reportes_)
      if (r.nombre == ventana && r.ventana != nullptr) return r.ventana->buscar<Grid>("Grid1")->tabla;
    return Rejilla();
  };
  const Diseno d = diseno();
  return comprobar(d, tabla(d.rapida() ? "Form13" : d.inclinada() ? "Form7" : "Form26"), tabla("Form6"));
}

void Sesion::ponerCampos(const Opciones& opciones, bool deParametros) {
  for (const Asignacion& a : opciones.campos) {
    if (esDeParametros(a.ventana) != deParametros) continue;
    if (!deParametros && a.ventana != ventana_->nombre()) continue;
    poner(*aplicacion_.cargar(a.ventana), a);
    const Entrada* const e = entradaDe(estructura_->ficha(), a.nombre());
    puestos_.push_back({a.nombre(), a.texto, e == nullptr ? "" : e->unidad});
  }
}

/// Whether there was any.
bool Sesion::ponerConNombre(const Opciones& opciones, const std::vector<Puesto>& variados) {
  std::vector<Puesto> todos;
  for (const Asignacion& a : opciones.campos)
    if (const Entrada* const e = a.conNombre() ? entradaDe(estructura_->ficha(), a.control) : nullptr)
      todos.push_back({e, a.texto});
  todos.insert(todos.end(), variados.begin(), variados.end());
  if (todos.empty()) return false;
  calvento::poner(*ventana_, *aplicacion_.cargar(estructura_->ficha().parametros), todos);
  for (const Puesto& p : todos) puestos_.push_back({p.entrada->nombre, p.texto, p.entrada->unidad});
  return true;
}

}  // namespace calvento::lote
