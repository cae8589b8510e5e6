#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include <QFileInfo>
#include <QTimer>

#include "comun/version.h"
#include "modelo/proyecto.h"
#include "modelo/rutas.h"
#include "qt/aplicacion_qt.h"
#include "qt/cadena.h"
#include "qt/carpeta_sesion.h"
#include "qt/dialogos_qt.h"
#include "qt/lugares.h"
#include "qt/programa.h"
#include "qt/senales_sistema.h"

namespace {

constexpr const char* ayuda =
    "Uso: calvento [PROYECTO…]\n"
    "\n"
    "Diseño hidráulico de rápidas, caídas inclinadas y caídas verticales. Abre cada PROYECTO (.cvr, .cvi, .cvv)\n"
    "en la ventana de su estructura.\n"
    "\n"
    "  -h, --help, --ayuda   Muestra esta ayuda y termina\n"
    "  --version             Muestra la versión y termina\n"
    "\n"
    "Para calcular sin ventanas: calvento-lote --ayuda\n";

/// Answers on the terminal what needs no window; false where a window is asked for.
bool contestar(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view a = argv[i];
    if (a == "-h" || a == "--help" || a == "--ayuda") return std::fputs(ayuda, stdout), true;
    if (a == "--version") return std::printf("calvento %s\n", calvento::version().c_str()), true;
  }
  return false;
}

/// The files named on the command line, absolute: opening the first one changes the folder. Not as Qt tells them, which
/// loses the bytes of a name that is no UTF-8.
std::vector<std::string> archivosPedidos(int argc, char** argv) {
  std::vector<std::string> rutas;
#ifdef _WIN32
  static_cast<void>(argc), static_cast<void>(argv);  // in a code page that lacks letters
  for (const QString& a : QCoreApplication::arguments().mid(1))
    rutas.push_back(calvento::deQt(QFileInfo(a).absoluteFilePath()));
#else
  for (int i = 1; i < argc; ++i) {
    std::error_code ec;
    const std::filesystem::path completa = std::filesystem::absolute(argv[i], ec);
    rutas.push_back(ec ? argv[i] : calvento::comoTexto(completa));
  }
#endif
  return rutas;
}

}  // namespace

int main(int argc, char** argv) {
  if (contestar(argc, argv)) return 0;
  const calvento::CarpetaSesion carpeta;
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
  calvento::AplicacionQt aplicacion(argc, argv);
  calvento::DialogosQt dialogos;
  const auto objetos = calvento::objetosDelSistema();
  calvento::Programa programa(dialogos, objetos.get());
  const auto abrir = [&](const std::string& archivo) {
    // as after a file dialog: the project is saved back into its own folder
    calvento::usarCarpetaDe(archivo);
    if (!programa.aplicacion.abrirProyecto(archivo))
      dialogos.fallo("\"" + archivo + "\" no es un proyecto de rápida, caída inclinada ni caída vertical");
  };
  aplicacion.alFallar = [&](const std::string& texto) { dialogos.fallo(texto); };
  aplicacion.alAbrirArchivo = abrir;
  // in the event loop, so that a fault at the start ends in a box as any other
  const std::vector<std::string> pedidos = archivosPedidos(argc, argv);
  calvento::volverALaCarpeta();
  const calvento::SenalesSistema senales([&] { programa.sistema.guardarCopias(); });
  QTimer::singleShot(0, &aplicacion, [&] {
    programa.aplicacion.arrancar();
    for (const std::string& ruta : pedidos) abrir(ruta);
  });
  const int estado = QCoreApplication::exec();
  calvento::guardarCarpeta();
  return estado;
}
