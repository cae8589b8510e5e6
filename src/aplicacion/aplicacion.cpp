#include "aplicacion/aplicacion.h"

#include <algorithm>
#include <utility>

#include "aplicacion/frm_about.h"
#include "aplicacion/frm_main.h"
#include "cad/form12.h"
#include "cad/form18.h"
#include "cad/form9.h"
#include "caida_inclinada/form1.h"
#include "caida_vertical/form16.h"
#include "comun/fallo.h"
#include "dibujo/form17.h"
#include "dibujo/form3.h"
#include "dibujo/form4.h"
#include "dibujo/ventana_secciones.h"
#include "estructura/ventana_estructura.h"
#include "hidraulica/form14.h"
#include "hidraulica/form15.h"
#include "modelo/archivo_proyecto.h"
#include "modelo/rutas.h"
#include "poza/form21.h"
#include "poza/form22.h"
#include "poza/form23.h"
#include "poza/form5.h"
#include "rapida/form10.h"
#include "reportes/form11.h"
#include "reportes/form6.h"
#include "reportes/form8.h"
#include "reportes/ventana_verificacion.h"

namespace calvento {

/// Every window of the program by its name, with what it needs from outside.
const std::vector<Aplicacion::Entrada>& Aplicacion::catalogo() {
  static const std::vector<Entrada> ventanas = {
      {"frmMain", [](Aplicacion& a) { return std::make_unique<frmMain>(a, a.dialogos_); }},
      {"frmAbout", [](Aplicacion& a) { return std::make_unique<frmAbout>(a); }},
      {"Form2", [](Aplicacion& a) { return std::make_unique<Form2>(a); }},
      {"Form3", [](Aplicacion& a) { return std::make_unique<Form3>(a.estado, a.form2(), a); }},
      {"Form14", [](Aplicacion& a) { return std::make_unique<Form14>(a.estado, a.dialogos_, a); }},
      {"Form15", [](Aplicacion& a) { return std::make_unique<Form15>(a.estado, a.dialogos_, a); }},
      {"Form1", [](Aplicacion& a) { return std::make_unique<Form1>(a.estado, a.form2(), a.dialogos_, a); }},
      {"Form16", [](Aplicacion& a) { return std::make_unique<Form16>(a.estado, a.form25(), a.dialogos_, a); }},
      {"Form25", [](Aplicacion& a) { return std::make_unique<Form25>(a.estado, a); }},
      {"Form10", [](Aplicacion& a) { return std::make_unique<Form10>(a.estado, a.form2(), a.dialogos_, a); }},
      {"Form4", [](Aplicacion& a) { return std::make_unique<Form4>(a.estado, a.form2(), a); }},
      {"Form17", [](Aplicacion& a) { return std::make_unique<Form17>(a.estado, a.form25(), a); }},
      {"Form22", [](Aplicacion& a) { return std::make_unique<Form22>(a.estado, a.form2(), a); }},
      {"Form5", [](Aplicacion& a) { return std::make_unique<Form5>(a.estado, a.form2(), a); }},
      {"Form21", [](Aplicacion& a) { return std::make_unique<Form21>(a.estado, a.form2(), a); }},
      {"Form23", [](Aplicacion& a) { return std::make_unique<Form23>(a.estado, a.form2(), a); }},
      {"Form19", [](Aplicacion& a) { return std::make_unique<Form19>(a.estado, a); }},
      {"Form20", [](Aplicacion& a) { return std::make_unique<Form20>(a.estado, a); }},
      {"Form24", [](Aplicacion& a) { return std::make_unique<Form24>(a.estado, a); }},
      {"Form11", [](Aplicacion& a) { return std::make_unique<Form11>(a.estado, a); }},
      {"Form6", [](Aplicacion& a) { return std::make_unique<Form6>(a.estado, a); }},
      {"Form8", [](Aplicacion& a) { return std::make_unique<Form8>(a.estado, a); }},
      {"Form13", [](Aplicacion& a) { return std::make_unique<Form13>(a.estado, a.form2(), a.dialogos_, a); }},
      {"Form7", [](Aplicacion& a) { return std::make_unique<Form7>(a.estado, a.form2(), a.dialogos_, a); }},
      {"Form26", [](Aplicacion& a) { return std::make_unique<Form26>(a.estado, a); }},
      {"Form12", [](Aplicacion& a) { return std::make_unique<Form12>(a.estado, a.form2(), a.dialogos_, a, a.cad_); }},
      {"Form9", [](Aplicacion& a) { return std::make_unique<Form9>(a.estado, a.form2(), a.dialogos_, a, a.cad_); }},
      {"Form18", [](Aplicacion& a) { return std::make_unique<Form18>(a.estado, a.form25(), a.dialogos_, a, a.cad_); }},
      {"MemoriaForm10", [](Aplicacion& a) { return a.memoriaDe("Form10"); }},
      {"MemoriaForm1", [](Aplicacion& a) { return a.memoriaDe("Form1"); }},
      {"MemoriaForm16", [](Aplicacion& a) { return a.memoriaDe("Form16"); }},
      {"EstudioForm10", [](Aplicacion& a) { return a.estudioDe("Form10"); }},
      {"EstudioForm1", [](Aplicacion& a) { return a.estudioDe("Form1"); }},
      {"EstudioForm16", [](Aplicacion& a) { return a.estudioDe("Form16"); }},
      {"FormManual", [](Aplicacion&) { return std::make_unique<FormManual>(); }},
  };
  return ventanas;
}

Aplicacion::Aplicacion(Dialogos& dialogos, SistemaVentanas& sistema, ConexionAplicacion* cad)
    : dialogos_(dialogos), sistema_(sistema), cad_{dxf_, cad} {}

Aplicacion::~Aplicacion() {
  // data windows hold references to the parameter windows, so those go last
  salientes_.clear();
  for (auto it = ventanas_.begin(); it != ventanas_.end();)
    it = it->second->seOculta() ? std::next(it) : ventanas_.erase(it);
}

void Aplicacion::arrancar() {
  mostrar("frmMain");
  mostrar("frmAbout");
}

std::unique_ptr<Ventana> Aplicacion::memoriaDe(std::string_view datos) {
  const auto it = disenos_.find(datos);
  return std::make_unique<FormMemoria>("Memoria" + std::string(datos), it == disenos_.end() ? nullptr : it->second);
}

std::unique_ptr<Ventana> Aplicacion::estudioDe(std::string_view datos) {
  const Ficha& ficha = *fichaDe(datos);
  auto estudio = std::make_unique<FormEstudio>("Estudio" + std::string(datos), ficha);
  estudio->Visor1.base = [this, &ficha, datos]() -> std::optional<Diseno> {
    const auto* ventana = dynamic_cast<const VentanaDatos*>(cargada(datos));
    if (ventana == nullptr) return std::nullopt;
    return Diseno(ficha, *ventana, *cargar(ficha.parametros), estado, {});
  };
  estudio->Visor1.usar = [this, &ficha, datos](std::span<const Puesto> puestos) {
    mostrar(datos);
    usarDiseno(*cargar<VentanaDatos>(datos), *cargar(ficha.parametros), puestos);
  };
  return estudio;
}

/// The checks of the design in the status bar of its window, and in its report where that is open.
void Aplicacion::calculoTerminado(VentanaDatos& ventana) {
  const Ficha* ficha = fichaDe(ventana.nombre());
  auto* barra = ventana.buscar<StatusBar>("sbStatusBar");
  if (!sistema_.conPantalla() || ficha == nullptr || barra == nullptr) return;
  if (!ventana.calculado()) {
    barra->Panel2 = "";
    return;
  }
  const auto diseno = std::make_shared<const DisenoComprobado>(
      Diseno(*ficha, ventana, *cargar(ficha->parametros), estado, ventana.mensajes()));
  disenos_[ventana.nombre()] = diseno;
  const CuentaComprobaciones cuenta = contar(diseno->comprobaciones);
  barra->Alarma = cuenta.cumplen < cuenta.total;
  barra->Panel2 = textoCuenta(cuenta);
  const std::string nombre = "Memoria" + ventana.nombre();
  barra->Panel2Click = [this, nombre] {
    auto* memoria = cargar<FormMemoria>(nombre);
    if (memoria == nullptr) return;
    memoria->Visor1.capitulo = capituloComprobaciones;
    mostrar(nombre);
    if (!memoria->Visor1.capitulo.empty()) memoria->Visor1.cambiado();  // a new window has gone there already
  };
  if (auto* memoria = dynamic_cast<FormMemoria*>(cargada(nombre))) memoria->mostrar(diseno);
}

Form2& Aplicacion::form2() { return dynamic_cast<Form2&>(*cargar("Form2")); }

Form25& Aplicacion::form25() { return dynamic_cast<Form25&>(*cargar("Form25")); }

std::vector<std::string_view> Aplicacion::nombres() const {
  std::vector<std::string_view> todos;
  for (const Entrada& e : catalogo()) todos.push_back(e.nombre);
  return todos;
}

Ventana* Aplicacion::cargada(std::string_view nombre) const {
  const auto it = ventanas_.find(nombre);
  return it == ventanas_.end() ? nullptr : it->second.get();
}

Ventana* Aplicacion::cargar(std::string_view nombre) {
  if (Ventana* v = cargada(nombre)) return v;
  const auto& todas = catalogo();
  const auto it = std::find_if(todas.begin(), todas.end(), [&](const Entrada& e) { return e.nombre == nombre; });
  if (it == todas.end()) return nullptr;
  try {
    return ventanas_.emplace(std::string(nombre), it->crear(*this)).first->second.get();
  } catch (const FalloAritmetico& fallo) {
    dialogos_.fallo(fallo.what());
    return nullptr;
  }
}

void Aplicacion::mostrar(std::string_view nombre) {
  if (Ventana* v = cargar(nombre)) sistema_.presentar(*v);
}

VisorManual& Aplicacion::ayuda(std::string_view ventana) {
  auto* manual = cargar<FormManual>("FormManual");
  mostrar("FormManual");
  if (ventana != manual->nombre()) manual->Visor1.abrirEn(capituloDe(ventana));
  return manual->Visor1;
}

bool Aplicacion::abrirProyecto(const std::string& archivo, bool comoCopia) {
  for (const FormatoProyecto* formato : {&formatoRapida, &formatoCaidaInclinada, &formatoCaidaVertical}) {
    if (!tieneExtension(archivo, formato->extension)) continue;
    auto* ventana = cargar<VentanaEstructura>(formato->ventana);
    if (ventana == nullptr) return true;  // why was told in a box
    sistema_.presentar(*ventana);
    comoCopia ? ventana->abrirCopia(archivo) : ventana->abrir(archivo);
    return true;
  }
  return false;
}

void Aplicacion::ocultar(Ventana& ventana) { sistema_.ocultar(ventana); }

void Aplicacion::descargar(Ventana& ventana) {
  if (ventana.seOculta()) {
    ocultar(ventana);
    return;
  }
  const auto it = ventanas_.find(ventana.nombre());
  if (it == ventanas_.end() || it->second.get() != &ventana) return;
  sistema_.cerrar(ventana);
  salientes_.push_back(std::move(it->second));
  ventanas_.erase(it);
  sistema_.despues([this] { salientes_.clear(); });
}

void Aplicacion::imprimir(Ventana& ventana) { sistema_.imprimir(ventana); }
void Aplicacion::copiar(Ventana& ventana) { sistema_.copiar(ventana); }
void Aplicacion::terminar() { sistema_.terminar(); }
void Aplicacion::calculado() { sistema_.calculado(estado.calculo); }

Evento Aplicacion::comoMostrar(std::string_view ventana) const {
  const auto* datos = dynamic_cast<const VentanaDatos*>(cargada(estado.calculo.ventana));
  return datos == nullptr ? Evento{} : datos->comoMostrar(ventana);
}

}  // namespace calvento
