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
  return {std::move(titulo), std::string(formato_.extension), std::string(formato_.filtro), {}};
}

void Proyecto::adoptar(const std::string& ruta) {
  std::error_code ec;
  const fs::path completa = fs::absolute(comoRuta(ruta), ec);
  propio_ = ec ? ruta : comoTexto(completa);
  estado_.rutaArchivo = tituloDeArchivo(ruta);
  ventana_.Caption = std::string(formato_.titulo) + " - " + estado_.rutaArchivo;
  estado_.esNuevo = false;
}

void Proyecto::Abrir_Archivo(const std::function<void()>& trasLeer) {
  const auto ruta = dialogos_.abrirArchivo(opciones("Abrir"));
  if (!ruta || ruta->empty()) return;
  usarCarpetaDe(*ruta);
  abrir(*ruta, trasLeer);
}

void Proyecto::abrir(const std::string& ruta, const std::function<void()>& trasLeer) {
  try {
    const std::vector<std::string> lineas = leerLineas(comoRuta(ruta), formato_.lineas.size());
    for (std::size_t i = 0; i < lineas.size(); ++i) ponerLinea(formato_.lineas[i], lineas[i]);
    if (lineas.size() < formato_.lineas.size())
      throw FalloArchivo("El archivo " + tituloDeArchivo(ruta) + " está incompleto: termina en la línea " +
                         texto(static_cast<int>(lineas.size())) + " de " +
                         texto(static_cast<int>(formato_.lineas.size())));
    adoptar(ruta);
    trasLeer();
  } catch (const FalloArchivo& fallo) {
    dialogos_.fallo(fallo.what());
  } catch (const FalloAritmetico& fallo) {
    dialogos_.fallo("El archivo " + tituloDeArchivo(ruta) + " tiene un número no válido: " + fallo.what());
  }
}

void Proyecto::escribir(const std::string& ruta) {
  std::vector<std::string> lineas;
  for (const std::string_view linea : formato_.lineas) lineas.push_back(textoDeLinea(linea));
  escribirLineas(comoRuta(ruta), lineas);
}

void Proyecto::Guardar_Archivo() {
  // the record keeps one file name for the three structures: a file that another one opened or saved is never
  // overwritten
  if (estado_.esNuevo || propio_.empty() || estado_.rutaArchivo != tituloDeArchivo(propio_)) {
    Guardarcomo_Archivo();
    return;
  }
  try {
    escribir(propio_);
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
  } catch (const FalloArchivo& fallo) {
    dialogos_.fallo(fallo.what());
  }
}

}  // namespace calvento
