#include "lote/campos.h"

#include <algorithm>
#include <charconv>

#include "lote/estructuras.h"
#include "lote/sesion.h"
#include "plataforma/rejilla.h"

namespace calvento::lote {

namespace {

[[noreturn]] void rechazar(const Asignacion& a, const std::string& motivo) {
  throw OpcionErronea("--campo " + a.nombre() + "=" + a.texto + ": " + motivo);
}

bool comoMarca(const Asignacion& a) {
  if (a.texto == "1") return true;
  if (a.texto == "0") return false;
  rechazar(a, "se espera 1 o 0");
}

void elegir(ComboBox& lista, const Asignacion& a) {
  const std::vector<std::string>& entradas = lista.List;
  const auto it = std::find(entradas.begin(), entradas.end(), a.texto);
  if (it == entradas.end()) {
    if (entradas.empty()) rechazar(a, "la lista está vacía");
    std::string todas;
    for (const std::string& e : entradas) todas += (todas.empty() ? "" : ", ") + e;
    rechazar(a, "se espera una de: " + todas);
  }
  lista.ListIndex = static_cast<int>(it - entradas.begin());
}

void pulsarFila(Grid& rejilla, const Asignacion& a) {
  int fila = -1;
  const char* fin = a.texto.data() + a.texto.size();
  const auto r = std::from_chars(a.texto.data(), fin, fila);
  if (r.ec != std::errc() || r.ptr != fin || fila < 0 || fila >= rejilla.tabla.filas())
    rechazar(a, "se espera una fila de 0 a " + std::to_string(rejilla.tabla.filas() - 1));
  rejilla.pulsar(fila);
}

}  // namespace

bool esDeParametros(std::string_view ventana) { return ventana == "Form2" || ventana == "Form25"; }

void poner(Ventana& ventana, const Asignacion& a) {
  Control* const control = ventana.buscar(a.control);
  if (control == nullptr) rechazar(a, "la ventana no tiene ese control");
  if (auto* campo = dynamic_cast<TextBox*>(control)) {
    campo->escribir(a.texto);
  } else if (auto* casilla = dynamic_cast<CheckBox*>(control)) {
    const bool marca = comoMarca(a);
    if (casilla->Value != marca) {
      casilla->Value = marca;
      disparar(casilla->Click);
    }
  } else if (auto* opcion = dynamic_cast<OptionButton*>(control)) {
    opcion->Value = comoMarca(a);
  } else if (auto* menu = dynamic_cast<Menu*>(control); menu != nullptr && menu->conMarca) {
    if (comoMarca(a) != menu->Checked) disparar(menu->Click);
  } else if (auto* lista = dynamic_cast<ComboBox*>(control)) {
    elegir(*lista, a);
  } else if (auto* rejilla = dynamic_cast<Grid*>(control)) {
    pulsarFila(*rejilla, a);
  } else {
    rechazar(a, "ese control no recibe un valor");
  }
}

namespace {

/// A name must be one of a structure that is there, and one that is chosen has its values.
void comprobarNombre(const Asignacion& a, const Opciones& opciones) {
  bool hay = false, usado = false;
  for (const Estructura& e : estructuras()) {
    const Entrada* const entrada = entradaDe(e.ficha(), a.control);
    hay = hay || entrada != nullptr;
    const auto deEsta = [&](const std::string& archivo) { return estructuraDe(archivo) == &e; };
    if (entrada == nullptr || std::none_of(opciones.archivos.begin(), opciones.archivos.end(), deEsta)) continue;
    usado = true;
    std::string todas;
    for (const Opcion& o : entrada->opciones) todas += (todas.empty() ? "" : ", ") + o.valor + " " + o.nombre;
    if (!entrada->admite(a.texto)) rechazar(a, "se espera uno de: " + todas);
  }
  if (!hay) rechazar(a, "no hay tal nombre: se espera uno de --campos, o VENTANA.CONTROL=TEXTO");
  if (!usado) rechazar(a, "ninguno de los archivos tiene ese campo");
}

}  // namespace

void comprobar(const Opciones& opciones) {
  if (opciones.campos.empty()) return;
  DialogosGrabados dialogos(opciones.responder);
  SinPantalla pantalla;
  Aplicacion aplicacion(dialogos, pantalla);
  for (const Asignacion& a : opciones.campos) {
    if (a.conNombre()) {
      comprobarNombre(a, opciones);
      continue;
    }
    const bool deDatos = std::any_of(estructuras().begin(), estructuras().end(),
                                     [&](const Estructura& e) { return e.formato->ventana == a.ventana; });
    Ventana* const ventana = deDatos || esDeParametros(a.ventana) ? aplicacion.cargar(a.ventana) : nullptr;
    if (ventana == nullptr) rechazar(a, "no hay tal ventana de datos o de parámetros");
    poner(*ventana, a);
    const bool usada = std::any_of(opciones.archivos.begin(), opciones.archivos.end(), [&](const std::string& archivo) {
      const Estructura* const e = estructuraDe(archivo);
      return e != nullptr && e->formato->ventana == a.ventana;
    });
    if (deDatos && !usada) rechazar(a, "ninguno de los archivos usa esa ventana");
  }
}

}  // namespace calvento::lote
