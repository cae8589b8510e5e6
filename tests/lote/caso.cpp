#include "lote/caso.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <regex>

#include "apoyo/tablas.h"
#include "lote/corrida.h"

namespace calvento::lote {

namespace {

namespace fs = std::filesystem;

Json leido(const fs::path& archivo) { return Json::parse(std::ifstream(archivo)); }

bool mismaPalabra(const std::string& es, const std::string& debe) {
  if (es == debe) return true;
  static const std::regex numero(R"([0-9]+(\.[0-9]+)?)");
  if (!std::regex_match(es, numero) || !std::regex_match(debe, numero)) return false;
  const auto decimales = [](const std::string& s) {
    return s.find('.') == std::string::npos ? 0 : static_cast<double>(s.size() - s.find('.') - 1);
  };
  const double unidad = 1.01 * std::pow(10, -std::max(decimales(es), decimales(debe)));
  return std::fabs(std::stod(es) - std::stod(debe)) <= std::max(unidad, 1e-5 * std::stod(debe));
}

/// Texts and numbers by turns.
std::vector<std::string> palabras(const std::string& s) {
  static const std::regex partes(R"([0-9]+(\.[0-9]+)?|[^0-9]+)");
  std::vector<std::string> todas;
  for (std::sregex_iterator i(s.begin(), s.end(), partes), fin; i != fin; ++i) todas.push_back(i->str());
  return todas;
}

}  // namespace

std::vector<std::string> casosCon(std::string_view seccion) {
  std::vector<std::string> todos;
  for (const auto& e : fs::directory_iterator(RAIZ_PROYECTO "/tests/casos"))
    if (e.path().extension() == ".json" && leido(e.path()).contains(seccion)) todos.push_back(e.path().string());
  std::sort(todos.begin(), todos.end());
  return todos;
}

std::string nombreDeCaso(const testing::TestParamInfo<std::string>& archivo) {
  std::string s = fs::path(archivo.param).stem().stem().string();
  std::replace(s.begin(), s.end(), '-', '_');
  return s;
}

Caso::Caso(const std::string& archivo) : deben(leido(archivo)) {
  const std::string proyecto = fs::path(archivo).stem().string();
  std::string lineas;
  for (const auto& [linea, texto] : deben["proyecto"].items()) lineas += texto.get<std::string>() + "\r\n";
  std::vector<std::string> argumentos = {"calvento-lote"};
  if (deben.contains("opciones"))
    for (const auto& o : deben["opciones"]) argumentos.push_back(o);
  argumentos.push_back(carpeta_.escribir(proyecto, lineas));
  std::vector<const char*> argv;
  for (const std::string& a : argumentos) argv.push_back(a.c_str());
  sesion_ = std::make_unique<Sesion>(std::get<Opciones>(leerOpciones(static_cast<int>(argv.size()), argv.data())),
                                     argumentos.back());
}

bool cercaDe(double es, double debe) {
  return std::fabs(es - debe) <= 1e-5 * std::max({std::fabs(es), std::fabs(debe), 0.1});
}

bool mismoTexto(std::string_view es, std::string_view debe) {
  const std::string a = sinBlancos(std::string(es), " \r\n"), b = sinBlancos(std::string(debe), " \r\n");
  // how an arithmetic failure is called is nobody's affair
  if (a == b || (b.starts_with("*: ") && a.ends_with(b.substr(1)))) return true;
  const auto pa = palabras(a), pb = palabras(b);
  return pa.size() == pb.size() && std::equal(pa.begin(), pa.end(), pb.begin(), mismaPalabra);
}

void comparar(const Json& es, const Json& debe, const std::string& donde) {
  const auto difiere = [&] { ADD_FAILURE() << donde << ": expected " << debe << ", found " << es; };
  if (es.is_array() && debe.is_object() && debe.contains("de")) {
    EXPECT_EQ(es.size(), debe["de"].get<std::size_t>()) << donde << ": number of entries";
    for (const auto& [i, fila] : debe.items())
      if (i != "de" && std::stoul(i) < es.size()) comparar(es[std::stoul(i)], fila, donde + "[" + i + "]");
  } else if (debe.is_object() && debe.contains("fallo")) {
    if (!es.contains("fallo")) difiere();
  } else if (es.is_object() && debe.is_object()) {
    for (const auto& [clave, valor] : debe.items())
      es.contains(clave) ? comparar(es[clave], valor, donde + "." + clave)
                         : (void)(ADD_FAILURE() << donde << "." << clave << " is missing");
    for (const auto& [clave, valor] : es.items())
      EXPECT_TRUE(debe.contains(clave)) << donde << "." << clave << " is not expected: " << valor;
  } else if (es.is_array() && debe.is_array()) {
    EXPECT_EQ(es.size(), debe.size()) << donde << ": expected " << debe << ", found " << es;
    for (std::size_t i = 0; i < std::min(es.size(), debe.size()); ++i)
      comparar(es[i], debe[i], donde + "[" + std::to_string(i) + "]");
  } else if (es.is_number() && debe.is_number()) {
    if (!cercaDe(es, debe)) difiere();
  } else if (es.is_string() && debe.is_string()) {
    if (!mismoTexto(es.get<std::string>(), debe.get<std::string>())) difiere();
  } else if (es != debe) {
    difiere();
  }
}

}  // namespace calvento::lote
