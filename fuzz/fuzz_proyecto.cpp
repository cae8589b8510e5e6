// A project file of any content through the whole program but its widgets: opened, calculated, every window loaded,
// every view and section drawn, exported, saved and opened again. The examples are the seeds: scripts/fuzz.
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

#include "comun/fallo.h"
#include "dibujo/marco_dibujo.h"
#include "dibujo/ventana_secciones.h"
#include "estructura/ventana_estructura.h"
#include "lote/dibujo.h"
#include "lote/sesion.h"

// of the fuzzing library, which has no header of its own
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* datos, std::size_t tamano, std::size_t maximo);

namespace calvento::lote {
namespace {

namespace fs = std::filesystem;

/// What must hold does not: the fuzzer keeps the input.
void exigir(bool condicion, const char* que) {
  if (condicion) return;
  std::fprintf(stderr, "fuzz_proyecto: %s\n", que);
  std::abort();
}

/// A folder of this process, gone with it.
struct Carpeta {
  Carpeta() : ruta(fs::temp_directory_path() / ("calvento-fuzz-" + std::to_string(std::random_device()()))) {
    fs::create_directory(ruta);
  }
  Carpeta(const Carpeta&) = delete;
  Carpeta& operator=(const Carpeta&) = delete;
  ~Carpeta() {
    std::error_code ec;
    fs::remove_all(ruta, ec);
  }
  std::string en(const std::string& nombre) const { return (ruta / nombre).string(); }
  fs::path ruta;
};

/// A file has no header: its structure is the one of as many lines.
const FormatoProyecto& formatoDe(std::string_view contenido) {
  const auto lineas = static_cast<std::size_t>(std::count(contenido.begin(), contenido.end(), '\n'));
  for (const FormatoProyecto* f : {&formatoRapida, &formatoCaidaInclinada})
    if (lineas >= f->lineas.size()) return *f;
  return formatoCaidaVertical;
}

/// What no file holds (the answer to questions, the options of the windows) comes of the content too.
Opciones opcionesDe(std::string_view contenido, const FormatoProyecto& formato) {
  const std::size_t bits = std::hash<std::string_view>()(contenido);
  Opciones o;
  o.responder = (bits & 1) != 0;
  o.veces = static_cast<int>(bits >> 1 & 1);
  const auto poner = [&](unsigned bit, const char* ventana, const char* control, const char* texto) {
    if ((bits >> bit & 1) != 0) o.campos.push_back({ventana, control, texto});
  };
  const bool vertical = &formato == &formatoCaidaVertical;
  poner(3, vertical ? "Form25" : "Form2", "Text9", (bits >> 4 & 1) != 0 ? "180" : "45");  // transition angle
  if (!vertical) {
    poner(2, "Form2", "Check1", "1");
    if (&formato == &formatoCaidaInclinada) poner(5, "Form1", "mnsuper", "1");
  } else {
    poner(6, "Form16", "Option2", "1");
    poner(7, "Form25", "Option4", "1");
  }
  return o;
}

void recorrer(MarcoDibujo& dibujo) {
  for (const std::string_view vista : dibujo.vistas()) {
    dibujo.ver(vista);
    dibujo.vistaMas();
    const EscalaLienzo& e = dibujo.GRAF.lienzo.escala();
    const Punto centro{e.izquierda + e.ancho / 2, e.arriba + e.alto / 2};
    dibujo.GRAF_MouseDown(centro);
    dibujo.GRAF_MouseMove({e.izquierda, e.arriba});
    dibujo.GRAF_MouseUp({e.izquierda, e.arriba});
    for (int i = 0; i < 3; ++i) dibujo.vistaMenos();
    dibujo.GRAF_Resize(1730, 900);
  }
}

void recorrer(Sesion& sesion) {
  Aplicacion& programa = sesion.aplicacion();
  for (const std::string_view nombre : programa.nombres()) {
    Ventana* ventana = programa.cargar(nombre);  // nullptr where it does not open on such a design
    if (auto* dibujo = dynamic_cast<MarcoDibujo*>(ventana)) recorrer(*dibujo);
    if (auto* secciones = dynamic_cast<VentanaSecciones*>(ventana))
      for (std::size_t i = secciones->Combo1.List.valor().size(); i-- > 0;)
        pasandoFallos([&] { disparar(secciones->Command1.Click); });  // on the desktop a box tells it
  }
}

/// Exports fail with a text where the design cannot be drawn.
template <class Accion>
void exportar(Accion accion) {
  try {
    accion();
  } catch (const std::runtime_error& fallo) {
    exigir(*fallo.what() != '\0', "an export fails without a word");
  }
}

void ejecutar(std::string_view contenido) {
  static const Carpeta carpeta;
  const FormatoProyecto& formato = formatoDe(contenido);
  const std::string archivo = carpeta.en("proyecto." + std::string(formato.extension));
  std::ofstream(archivo, std::ios::binary).write(contenido.data(), static_cast<std::streamsize>(contenido.size()));

  Opciones opciones = opcionesDe(contenido, formato);
  Sesion sesion(opciones, archivo);
  exigir(sesion.calculado() || !sesion.mensajes().empty(), "a calculation ends without result and without a word");
  recorrer(sesion);
  opciones.dibujo = carpeta.en("dibujo.svg");
  opciones.dxf = carpeta.en("dibujo.dxf");
  exportar([&] { exportarDibujoDe(sesion, opciones); });
  exportar([&] { exportarDxfDe(sesion, opciones); });

  const std::string guardado = carpeta.en("guardado." + std::string(formato.extension));
  sesion.nombrarArchivo(guardado);
  dynamic_cast<VentanaEstructura&>(*sesion.ventana()).Guardarcomo_Archivo();
  exigir(leerLineas(guardado, formato.lineas.size() + 1).size() == formato.lineas.size(), "saved with other lines");
  Sesion otra({}, guardado);
  exigir(otra.accesible() && !otra.aplicacion().estado.esNuevo, "what was saved does not open");
}

/// What numbers go wrong with.
constexpr std::array<std::string_view, 24> raros = {
    "",     "0",     "-0",     "-1",    "1",    "2",     "3",    "4",     "5",   "6",   "90",       "180",
    "1e38", "1e-38", "3.5e38", "1e400", "-1e9", "0.001", "1e-9", "32767", "2,5", "abc", "99999999", "12.5"};

}  // namespace
}  // namespace calvento::lote

/// Half of the changes are of bytes, half put another number into a line.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* datos, std::size_t tamano, std::size_t maximo,
                                               unsigned semilla) {
  std::minstd_rand azar(semilla);
  if (azar() % 2 == 0) return LLVMFuzzerMutate(datos, tamano, maximo);
  std::string texto(reinterpret_cast<const char*>(datos), tamano);
  const std::size_t aqui = texto.empty() ? 0 : azar() % texto.size();
  const std::size_t antes = texto.rfind('\n', aqui);
  const std::size_t desde = antes == std::string::npos ? 0 : antes + 1;
  const std::size_t hasta = std::min(texto.find_first_of("\r\n", desde), texto.size());
  texto.replace(desde, hasta - desde, calvento::lote::raros[azar() % calvento::lote::raros.size()]);
  const std::size_t nuevo = std::min(texto.size(), maximo);
  std::memcpy(datos, texto.data(), nuevo);
  return nuevo;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano) {
  calvento::lote::ejecutar({reinterpret_cast<const char*>(datos), tamano});
  return 0;
}
