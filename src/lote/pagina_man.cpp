#include "lote/pagina_man.h"

#include <CLI/CLI.hpp>

#include "comun/version.h"

namespace calvento::lote {

namespace {

/// Plain text as troff shows it: hyphens that can be copied, no line taken for a request.
std::string troff(const std::string& texto) {
  std::string s;
  bool alInicio = true;
  for (const char c : texto) {
    if (alInicio && (c == '.' || c == '\'')) s += "\\&";
    if (c == '\\')
      s += "\\e";
    else if (c == '-')
      s += "\\-";
    else
      s += c;
    alInicio = c == '\n';
  }
  return s;
}

/// The paragraphs of a text, whose lines are broken for a terminal; those that are indented stay as they are.
std::string parrafos(const std::string& texto) {
  std::istringstream lineas(texto);
  std::string s;
  bool tabla = false;
  for (std::string l; std::getline(lineas, l);) {
    const bool fija = l.rfind("  ", 0) == 0;
    if (fija != tabla) s += fija ? ".PP\n.nf\n" : ".fi\n";
    tabla = fija;
    if (l.empty())
      s += ".PP\n";
    else if (l.back() == ':' && l.size() < 30)
      s += ".SS " + troff(l.substr(0, l.size() - 1)) + "\n";
    else
      s += troff(l) + "\n";
  }
  return s + (tabla ? ".fi\n" : "");
}

std::string opcion(const CLI::Option& o) {
  std::string s = ".TP\n\\fB" + troff(o.get_name(false, true)) + "\\fR";
  for (std::size_t coma = s.find(','); coma != std::string::npos; coma = s.find(',', coma + 9))
    s.replace(coma, 1, "\\fR, \\fB");
  if (!o.get_type_name().empty()) s += " \\fI" + troff(o.get_type_name()) + "\\fR";
  return s + "\n" + troff(o.get_description()) + "\n";
}

}  // namespace

std::string paginaMan(const CLI::App& programa) {
  std::string s = ".TH CALVENTO\\-LOTE 1 \"\" \"Calvento " + version() +
                  "\" \"Manual de Calvento\"\n"
                  ".SH NOMBRE\ncalvento\\-lote \\- calcula rápidas y caídas de canales sin abrir ventanas\n"
                  ".SH SINOPSIS\n.B calvento\\-lote\n[\\fIOPCIÓN\\fR\\&...] \\fIARCHIVO\\fR\\&...\n"
                  ".SH DESCRIPCIÓN\n";
  s += parrafos(programa.get_description());
  for (const CLI::Option* o : programa.get_options())
    if (o->get_positional() && !o->nonpositional()) s += ".PP\n" + troff(o->get_description()) + ".\n";
  s += ".SH OPCIONES\n";
  for (const CLI::Option* o : programa.get_options())
    if (o->nonpositional() && !o->get_group().empty()) s += opcion(*o);
  s += ".SH NOTAS\n" + parrafos(programa.get_footer());
  return s + ".SH VÉASE TAMBIÉN\n.BR calvento (1)\n";
}

}  // namespace calvento::lote
