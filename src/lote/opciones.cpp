#include "lote/opciones.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <limits>

#include "comun/version.h"
#include "lote/estructuras.h"
#include "lote/pagina_man.h"
#include "lote/salidas.h"
#include "lote/trabajos.h"

namespace calvento::lote {

namespace {

constexpr const char* descripcion =
    "Calcula proyectos de rápidas y caídas sin abrir ventanas y muestra lo que las ventanas mostrarían.\n"
    "Sin --json ni --csv escribe un resumen de cada proyecto: datos, resultados, tipos de tanque y mensajes.";

constexpr const char* pie =
    "\nEstado de salida: 0, todos los proyectos se calcularon hasta el final; 1, alguno no; 2, opción errónea o\n"
    "archivo que no se puede leer. Un proyecto que falla no detiene a los demás.\n"
    "\nEjemplos:\n"
    "  calvento-lote canal.cvr\n"
    "  calvento-lote --json *.cvr > resultados.jsonl\n"
    "  calvento-lote --campo Form2.Text9=15 --campo Form10.Text26=5 canal.cvr\n"
    "  calvento-lote --csv --variar Q=1:5:0.5 --variar bRapida=1:2:0.1 canal.cvr > estudio.csv\n";

Asignacion comoAsignacion(const std::string& texto) {
  const std::size_t igual = texto.find('=');
  const std::string lugar = texto.substr(0, igual);
  const std::size_t punto = lugar.find('.');
  const bool conNombre = punto == std::string::npos;
  if (igual == std::string::npos || lugar.empty() || punto == 0 || (!conNombre && punto + 1 == igual))
    throw OpcionErronea("--campo " + texto + ": se espera VENTANA.CONTROL=TEXTO o NOMBRE=TEXTO");
  return {conNombre ? "" : lugar.substr(0, punto), conNombre ? lugar : lugar.substr(punto + 1),
          texto.substr(igual + 1)};
}

VariacionPedida comoVariacion(const std::string& texto) {
  const std::size_t igual = texto.find('=');
  const std::size_t uno = igual == std::string::npos ? igual : texto.find(':', igual);
  const std::size_t dos = uno == std::string::npos ? uno : texto.find(':', uno + 1);
  if (igual == 0 || dos == std::string::npos || texto.find(':', dos + 1) != std::string::npos)
    throw OpcionErronea("--variar " + texto + ": se espera NOMBRE=DESDE:HASTA:PASO");
  return {texto.substr(0, igual),
          {texto.substr(igual + 1, uno - igual - 1), texto.substr(uno + 1, dos - uno - 1), texto.substr(dos + 1)}};
}

int comoEntero(const char* opcion, const std::string& texto, int desde, int hasta) {
  int n = 0;
  const char* fin = texto.data() + texto.size();
  const auto r = std::from_chars(texto.data(), fin, n);
  if (r.ec == std::errc() && r.ptr == fin && n >= desde && n <= hasta) return n;
  const bool conTope = hasta < std::numeric_limits<int>::max();
  throw OpcionErronea(
      std::string(opcion) + " " + texto + ": se espera un número entero, " +
      (conTope ? "de " + std::to_string(desde) + " a " + std::to_string(hasta) : std::to_string(desde) + " o mayor"));
}

bool comoRespuesta(const std::string& texto) {
  if (texto == "si" || texto == "sí") return true;
  if (texto == "no") return false;
  throw OpcionErronea("--responder " + texto + ": se espera si o no");
}

/// The parser's own messages are English; the kind of the error is enough to say it in Spanish.
std::string enEspanol(const CLI::ParseError& error, const CLI::App& programa) {
  if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) {
    std::string sobran;
    for (const std::string& s : programa.remaining()) sobran += " " + s;
    return "opción desconocida" + (sobran.empty() ? "" : ":" + sobran);
  }
  if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) return "falta el archivo de proyecto";
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
    const std::string detalle = error.what();  // begins with the option's name
    return "a la opción " + detalle.substr(0, detalle.find_first_of(": ")) + " le falta su valor, le sobra o se repite";
  }
  if (dynamic_cast<const CLI::ConversionError*>(&error) != nullptr) {
    const std::string detalle = error.what();  // ends with the option and its value
    return "valor que no se admite: " + detalle.substr(detalle.find(": ") + 2);
  }
  return std::string("opción errónea: ") + error.what();
}

/// The parser takes a name that begins with a dash for options, some of which it knows ("-h.cvr").
void comprobarGuiones(int argc, const char* const* argv) {
  for (int i = 1; i < argc; ++i) {
    const std::string a = argv[i];
    if (a == "--") return;  // only names follow
    if (!a.starts_with('-') || a.find('=') != std::string::npos) continue;
    if (estructuraDe(a) != nullptr || esDeSalida(a))
      throw OpcionErronea("el nombre " + a + " empieza con un guion y parece una opción: escriba ./" + a);
  }
}

}  // namespace

std::variant<Opciones, Informacion> leerOpciones(int argc, const char* const* argv) {
  const std::string nombreYVersion = "calvento-lote " + version();
  Opciones o;
  std::vector<std::string> campos;
  std::vector<std::string> variaciones;
  std::string hilos = "1";
  std::string veces = "0";
  std::string responder = "si";

  CLI::App programa(descripcion, "calvento-lote");
  programa.option_defaults()->group("Opciones");
  programa.allow_windows_style_options(false);
  programa.get_formatter()->label("Usage", "Uso");
  programa.get_formatter()->label("OPTIONS", "OPCIÓN…");
  programa.get_formatter()->label("Positionals", "Argumentos");
  programa.get_formatter()->label("REQUIRED", "");
  programa.get_formatter()->column_width(36);
  programa.footer(pie);
  programa.set_help_flag("-h,--ayuda,--help", "Muestra esta ayuda y termina")->group("Opciones");
  programa.set_version_flag("--version", nombreYVersion, "Muestra la versión y termina")->group("Opciones");
  programa.set_help_all_flag("--pagina-man")->group("");  // made once, when the program is built
  programa.add_option("ARCHIVO", o.archivos, "Proyectos, por su extensión: " + extensiones())
      ->required()
      ->type_name("");
  programa.add_flag("--json", o.json, "Un objeto JSON por proyecto, cada uno en una línea");
  programa.add_flag("--csv", o.csv, "Una tabla CSV: una línea por diseño, con sus títulos en la primera");
  const auto repetible = [](CLI::Option* opcion, const char* valor) {
    opcion->type_name(valor)->expected(1)->allow_extra_args(false)->multi_option_policy(
        CLI::MultiOptionPolicy::TakeAll);
  };
  repetible(programa.add_option("--campo", campos,
                                "Pone TEXTO en un campo; se puede repetir. En lugar de ventana y\n"
                                "control vale un nombre de --campos: Q=3.2. Los campos de Form2 y\n"
                                "Form25 se ponen antes de abrir el archivo; los de la ventana de\n"
                                "datos y los nombres después, y entonces se calcula otra vez.\n"
                                "Casillas, opciones y marcas de menú: 1 o 0. Form10.Grid1=3 elige\n"
                                "la fila 3"),
            "VENTANA.CONTROL=TEXTO");
  programa.add_flag_callback(
      "--campos", [] { throw CLI::CallForVersion(listaDeCampos(), 0); },
      "Muestra los nombres de los campos, con su ventana, rótulo y unidad,\ny termina");
  repetible(programa.add_option("--variar", variaciones,
                                "Calcula cada proyecto con cada uno de los valores; NOMBRE como en\n"
                                "--campos. Si se repite, con todas las combinaciones"),
            "NOMBRE=DESDE:HASTA:PASO");
  programa.add_option("--hilos", hilos, "Calcula N diseños a la vez; la salida es la misma")->type_name("N");
  programa.add_option("--veces", veces, "Calcula N veces más al final")->type_name("N");
  programa.add_option("--responder", responder, "Respuesta a toda pregunta; si, mientras no se diga otra cosa")
      ->type_name("si|no");
  programa
      .add_option("--dibujo", o.dibujo,
                  std::string(conQt ? "Guarda el dibujo de la estructura como SVG, PDF o PNG, por la\nextensión."
                                    : "Guarda el dibujo de la estructura como SVG.") +
                      " En el nombre, {} es el nombre del proyecto: hace falta\n"
                      "con más de un proyecto")
      ->type_name("ARCHIVO");
  programa
      .add_option("--vista", o.vista,
                  "Vista del dibujo; vistaTodo, mientras no se diga otra cosa. Con un\n"
                  "nombre que no existe se dicen las que hay")
      ->type_name("NOMBRE");
  programa
      .add_option("--dxf", o.dxf,
                  "Guarda perfil y planta como dibujo DXF para programas de CAD.\n"
                  "En el nombre, {} es el nombre del proyecto: hace falta con más\n"
                  "de un proyecto")
      ->type_name("ARCHIVO");
  if constexpr (conQt)
    programa
        .add_option("--memoria", o.memoria,
                    "Guarda la memoria de cálculo como PDF, HTML u ODT, por la extensión;\n"
                    "{} en el nombre, como en --dibujo")
        ->type_name("ARCHIVO");

  comprobarGuiones(argc, argv);
  try {
    programa.parse(argc, argv);
  } catch (const CLI::CallForHelp&) {
    return Informacion{programa.help()};
  } catch (const CLI::CallForAllHelp&) {
    return Informacion{paginaMan(programa)};
  } catch (const CLI::CallForVersion& pedido) {  // or the list of fields, whose lines are whole
    return Informacion{pedido.what() + std::string(pedido.what() == nombreYVersion ? "\n" : "")};
  } catch (const CLI::ParseError& error) {
    throw OpcionErronea(enEspanol(error, programa));
  }
  if (std::ranges::find(o.archivos, "") != o.archivos.end()) throw OpcionErronea("el nombre de un archivo está vacío");
  for (const char* opcion : {"--dibujo", "--dxf", "--vista"})
    if (const auto* dada = programa.get_option_no_throw(opcion);
        dada != nullptr && *dada && dada->as<std::string>().empty())
      throw OpcionErronea(std::string(opcion) + ": falta el nombre");
  for (const std::string& c : campos) o.campos.push_back(comoAsignacion(c));
  for (const std::string& v : variaciones) o.variaciones.push_back(comoVariacion(v));
  if (o.csv && o.json) throw OpcionErronea("--csv y --json no van juntas");
  if (!o.variaciones.empty() && o.escribeArchivos())
    throw OpcionErronea("--variar no va con --dibujo, --dxf ni --memoria: daría un archivo para muchos diseños");
  o.veces = comoEntero("--veces", veces, 0, std::numeric_limits<int>::max());
  o.hilos = comoEntero("--hilos", hilos, 1, 256);
  o.responder = comoRespuesta(responder);
  comprobarSalidas(o);
  return o;
}

}  // namespace calvento::lote
