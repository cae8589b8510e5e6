#include "modelo/proyecto.h"

#include <algorithm>
#include <filesystem>

#include "comun/numeros.h"
#include "modelo/rutas.h"

namespace calvento {

namespace fs = std::filesystem;

namespace {

const CampoSingle* campoDelRegistro(std::string_view nombre) {
  const auto todos = camposSingle();
  const auto it = std::find_if(todos.begin(), todos.end(), [&](const CampoSingle& c) { return c.nombre == nombre; });
  return it == todos.end() ? nullptr : &*it;
}

/// A field or choice as a text; the function that puts such a text back. Nothing of what only shows.
struct Entrada {
  std::string valor;
  std::function<void(const std::string&)> poner;
};
Entrada entradaDe(Control& control) {
  const auto marca = [](bool puesta) { return std::string(puesta ? "1" : "0"); };
  if (auto* c = dynamic_cast<TextBox*>(&control)) return {c->Text, [c](const std::string& v) { c->Text = v; }};
  if (auto* c = dynamic_cast<CheckBox*>(&control))
    return {marca(c->Value), [c](const std::string& v) { c->Value = v == "1"; }};
  if (auto* c = dynamic_cast<OptionButton*>(&control))
    return {marca(c->Value), [c](const std::string& v) {
              if (v == "1") c->Value = true;  // its neighbours go off by it
            }};
  if (auto* c = dynamic_cast<ComboBox*>(&control))
    return {c->Text(), [c](const std::string& v) {
              const std::vector<std::string>& lista = c->List;
              const auto it = std::find(lista.begin(), lista.end(), v);
              if (it != lista.end()) c->ListIndex = static_cast<int>(it - lista.begin());
            }};
  if (auto* c = dynamic_cast<Menu*>(&control); c != nullptr && c->conMarca)
    return {marca(c->Checked), [c, marca](const std::string& v) {
              if (v != marca(c->Checked)) disparar(c->Click);
            }};
  return {};
}

}  // namespace

void usarCarpetaDe(const std::string& ruta) {
  const fs::path carpeta = comoRuta(ruta).parent_path();
  std::error_code ec;
  if (!carpeta.empty()) fs::current_path(carpeta, ec);
}

Proyecto::Proyecto(const FormatoProyecto& formato, DesignState& estado, Ventana& ventana, Ventana& parametros,
                   Dialogos& dialogos)
    : formato_(formato), estado_(estado), ventana_(ventana), parametros_(parametros), dialogos_(dialogos) {}

TextBox* Proyecto::campo(std::string_view linea) const {
  const std::size_t punto = linea.find('.');
  if (punto == std::string_view::npos) return ventana_.buscar<TextBox>(linea);
  return parametros_.buscar<TextBox>(linea.substr(punto + 1));
}

std::string Proyecto::textoDeLinea(std::string_view linea) const {
  if (const TextBox* c = campo(linea)) return c->Text;
  if (linea == "tipoTubo") return estado_.tipoTubo;
  return texto(estado_.*campoDelRegistro(linea)->campo);
}

void Proyecto::ponerLinea(std::string_view linea, const std::string& valor) {
  if (TextBox* c = campo(linea))
    c->Text = valor;
  else if (linea == "tipoTubo")
    estado_.tipoTubo = valor;
  else
    estado_.*campoDelRegistro(linea)->campo = Val(valor);
}

OpcionesArchivo Proyecto::opciones(std::string titulo) const {
  return {std::move(titulo), std::string(formato_.extension), std::string(formato_.filtro), sugerido_};
}

void Proyecto::nombrar(const std::string& nombre) {
  estado_.rutaArchivo = nombre;
  ventana_.Caption = std::string(formato_.titulo) + " - " + nombre;
  estado_.esNuevo = false;
}

void Proyecto::adoptar(const std::string& ruta) {
  std::error_code ec;
  const fs::path completa = fs::absolute(comoRuta(ruta), ec);
  propio_ = ec ? ruta : comoTexto(completa);
  sugerido_.clear();
  nombrar(tituloDeArchivo(ruta));
}

void Proyecto::olvidarArchivo() {
  propio_.clear();
  sugerido_.clear();
}

void Proyecto::Abrir_Archivo(const std::function<void()>& trasLeer) {
  const auto ruta = dialogos_.abrirArchivo(opciones("Abrir"));
  if (!ruta || ruta->empty()) return;
  usarCarpetaDe(*ruta);
  abrir(*ruta, trasLeer);
}

void Proyecto::abrir(const std::string& ruta, const std::function<void()>& trasLeer) {
  alLeer(
      ruta, [&] { adoptar(ruta); }, trasLeer);
}

void Proyecto::abrirCopia(const std::string& ruta, const std::function<void()>& trasLeer) {
  const auto adoptarCopia = [&] {
    propio_.clear();
    nombrar(tituloDeArchivo(ruta));
    sugerido_ = "Copia de " + tituloDeArchivo(ruta);
  };
  alLeer(ruta, adoptarCopia, trasLeer);
}

void Proyecto::leer(const std::string& ruta) {
  const std::vector<std::string> lineas = leerLineas(comoRuta(ruta), formato_.lineas.size());
  disparar(alSustituir);
  for (std::size_t i = 0; i < lineas.size(); ++i) ponerLinea(formato_.lineas[i], lineas[i]);
  if (lineas.size() < formato_.lineas.size())
    throw FalloArchivo("El archivo " + tituloDeArchivo(ruta) + " está incompleto: termina en la línea " +
                       texto(static_cast<int>(lineas.size())) + " de " +
                       texto(static_cast<int>(formato_.lineas.size())));
}

void Proyecto::alLeer(const std::string& ruta, const std::function<void()>& adoptar,
                      const std::function<void()>& trasLeer) {
  bool adoptado = false;
  try {
    leer(ruta);
    adoptar();
    adoptado = true;
    trasLeer();
  } catch (const FalloArchivo& fallo) {
    dialogos_.fallo(fallo.what());
  } catch (const FalloAritmetico& fallo) {
    dialogos_.fallo("El archivo " + tituloDeArchivo(ruta) + " tiene un número no válido: " + fallo.what());
  }
  if (adoptado) disparar(alCoincidir);
}

Trabajo Proyecto::trabajo() const {
  Trabajo t;
  for (const std::string_view linea : formato_.lineas) t.contenido.lineas.push_back(textoDeLinea(linea));
  const auto esLinea = [&](const std::string& nombre) {
    return std::find(formato_.lineas.begin(), formato_.lineas.end(), nombre) != formato_.lineas.end();
  };
  for (const Ventana* v : {&ventana_, &parametros_})
    for (Control* control : v->controles()) {
      const std::string nombre = (v == &ventana_ ? "" : v->nombre() + ".") + control->nombre();
      if (esLinea(nombre)) continue;
      if (const Entrada e = entradaDe(*control); e.poner) t.contenido.otros[nombre] = e.valor;
    }
  t.archivo = propio_;
  const std::string& titulo = ventana_.Caption;
  const std::size_t sobra = formato_.titulo.size() + std::string_view(" - ").size();
  if (titulo.size() > sobra) t.nombre = titulo.substr(sobra);
  return t;
}

void Proyecto::reponer(const Trabajo& trabajo, const std::function<void()>& trasLeer) {
  const std::vector<std::string>& lineas = trabajo.contenido.lineas;
  for (std::size_t i = 0; i < std::min(lineas.size(), formato_.lineas.size()); ++i)
    ponerLinea(formato_.lineas[i], lineas[i]);
  const auto ponerOtros = [&](bool menus) {
    for (const auto& [nombre, valor] : trabajo.contenido.otros) {
      const std::size_t punto = nombre.find('.');
      Control* c = punto == std::string::npos ? ventana_.buscar(nombre) : parametros_.buscar(nombre.substr(punto + 1));
      if (c == nullptr || (dynamic_cast<Menu*>(c) != nullptr) != menus) continue;
      if (const Entrada e = entradaDe(*c); e.poner) e.poner(valor);
    }
  };
  ponerOtros(false);
  propio_ = trabajo.archivo;
  sugerido_ = propio_.empty() ? trabajo.nombre : std::string();
  if (!trabajo.nombre.empty()) nombrar(trabajo.nombre);
  trasLeer();
  ponerOtros(true);
}

void Proyecto::escribir(const std::string& ruta) { escribirLineas(comoRuta(ruta), trabajo().contenido.lineas); }

void Proyecto::Guardar_Archivo() {
  // the record keeps one file name for the three structures: a file that another one opened or saved is never
  // overwritten
  if (estado_.esNuevo || propio_.empty() || estado_.rutaArchivo != tituloDeArchivo(propio_)) {
    Guardarcomo_Archivo();
    return;
  }
  try {
    escribir(propio_);
    disparar(alCoincidir);
  } catch (const FalloArchivo& fallo) {
    dialogos_.fallo(fallo.what());
  }
}

void Proyecto::Guardarcomo_Archivo() {
  auto ruta = dialogos_.guardarArchivo(opciones("Guardar como"));
  if (!ruta || ruta->empty()) return;
  ruta = conExtension(std::move(*ruta), formato_.extension);
  usarCarpetaDe(*ruta);
  if (FileExists(*ruta) &&
      !dialogos_.pregunta("El archivo " + tituloDeArchivo(*ruta) + " ya existe. ¿Desea reemplazarlo?"))
    return;
  try {
    escribir(*ruta);
    adoptar(*ruta);
    disparar(alCoincidir);
  } catch (const FalloArchivo& fallo) {
    dialogos_.fallo(fallo.what());
  }
}

}  // namespace calvento
