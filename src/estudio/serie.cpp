#include "estudio/serie.h"

#include <algorithm>
#include <cmath>

#include "comun/fallo.h"
#include "comun/numeros.h"

namespace calvento {

namespace {

Real numero(const char* cual, const std::string& tecleado) {
  const std::string t = conPuntoDecimal(tecleado);
  if (t.find_first_not_of(" \t") == std::string::npos) throw FalloEstudio(std::string("Falta el valor «") + cual + "»");
  Real x;
  if (!esNumero(t) || !pasandoFallos([&] { x = Single(Val(t)), x = Val(t); }))
    throw FalloEstudio(std::string("El valor «") + cual + "» no es un número: " + tecleado);
  return x;
}

void comprobarDominio(const Entrada& e, Real desde) {
  if (e.dominio == Dominio::positivos && desde <= 0) throw FalloEstudio(e.rotulo + ": debe ser mayor que 0");
  if (e.dominio == Dominio::noNegativos && desde < 0) throw FalloEstudio(e.rotulo + ": no puede ser negativo");
}

/// Decimals of the number's plain text.
int decimalesDe(Real x) {
  const std::string t = texto(x);
  const std::size_t punto = t.find('.');
  return punto == std::string::npos || t.find('E') != std::string::npos ? 0 : static_cast<int>(t.size() - punto) - 1;
}

/// A level, which varies by itself and not in parts of its value.
bool esNivel(const Entrada& e) { return e.rotulo.starts_with("Elev") || e.rotulo.starts_with("Progresiva"); }

/// The largest of 1, 2, 5 times a power of ten that is not above x.
double pasoRedondo(double x) {
  const double potencia10 = std::pow(10, std::floor(std::log10(x)));
  const double veces = x / potencia10;
  return potencia10 * (veces >= 5 ? 5 : veces >= 2 ? 2 : 1);
}

Serie comoTextos(double desde, double hasta, double paso) {
  return {texto(Real(desde)), texto(Real(hasta)), texto(Real(paso))};
}

}  // namespace

std::vector<std::string> valores(const Entrada& e, const Serie& s) {
  const Real desde = numero("desde", s.desde), hasta = numero("hasta", s.hasta);
  comprobarDominio(e, desde);
  if (hasta < desde) throw FalloEstudio("El valor «hasta» es menor que el valor «desde»");
  if (hasta == desde) return {texto(desde)};
  const Real paso = numero("paso", s.paso);
  if (paso <= 0) throw FalloEstudio("El paso debe ser mayor que 0");
  // the step meets the end also where its decimals are not exact
  const double pasos = std::floor((hasta.valor() - desde.valor()) / paso.valor() * (1 + 1e-12) + 1e-9);
  if (!(pasos < static_cast<double>(maximoDisenos)))
    throw FalloEstudio("Son más de " + std::to_string(maximoDisenos) + " valores: aumente el paso");
  const int decimales = std::max(decimalesDe(desde), decimalesDe(paso));
  std::vector<std::string> todos;
  for (int i = 0; i <= static_cast<int>(pasos); ++i)
    todos.push_back(texto(decimales > 7 ? desde + i * paso : Round(desde + i * paso, decimales)));
  if (todos.size() > maximoDisenos || std::ranges::adjacent_find(todos) != todos.end())
    throw FalloEstudio("El paso es demasiado pequeño");
  return todos;
}

Serie serieAlrededor(const Entrada& e, const std::string& tecleado) {
  constexpr int aCadaLado = 10;
  if (e.nombre == "numTramos") return {"1", "3", "1"};
  double v = 0;
  if (esNumero(tecleado))
    pasandoFallos([&] { v = Real(Single(Val(tecleado))).valor() == 0 ? 0 : Val(tecleado).valor(); });
  if (esNivel(e)) return comoTextos(v - 1, v + 1, 0.1);
  if (v == 0 || (v < 0 && e.dominio != Dominio::todos))
    return e.unidad == "%" ? comoTextos(0, 20, 1) : comoTextos(e.dominio == Dominio::positivos ? 0.1 : 0, 2, 0.1);
  const double paso = pasoRedondo(std::fabs(v) / aCadaLado / 2);
  return comoTextos(v - aCadaLado * paso, v + aCadaLado * paso, paso);
}

}  // namespace calvento
