#include "estudio/estudio.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "comun/numeros.h"
#include "estudio/csv.h"

namespace calvento {

Estudio::Estudio(const Diseno& base, std::vector<Variacion> variaciones, bool conInformes)
    : ficha_(base.ficha), variaciones_(std::move(variaciones)), banco_(base, conInformes) {
  if (variaciones_.empty()) throw FalloEstudio("Elija qué varía");
  for (std::size_t i = 0; i < variaciones_.size(); ++i) {
    const Variacion& v = variaciones_[i];
    if (v.valores.empty()) throw FalloEstudio(v.entrada->rotulo + ": no tiene ningún valor");
    for (std::size_t j = 0; j < i; ++j)
      if (variaciones_[j].entrada == v.entrada) throw FalloEstudio(v.entrada->rotulo + ": varía dos veces");
    if (v.valores.size() > maximoDisenos / total_)
      throw FalloEstudio("Son más de " + std::to_string(maximoDisenos) + " diseños: aumente los pasos");
    total_ *= v.valores.size();
  }
}

std::vector<Puesto> combinacion(const std::vector<Variacion>& variaciones, std::size_t cual) {
  std::vector<Puesto> todos(variaciones.size());
  for (std::size_t i = variaciones.size(); i-- > 0;) {
    const Variacion& v = variaciones[i];
    todos[i] = {v.entrada, v.valores[cual % v.valores.size()]};
    cual /= v.valores.size();
  }
  return todos;
}

bool Estudio::avanzar(std::chrono::milliseconds plazo) {
  const auto fin = std::chrono::steady_clock::now() + plazo;
  do {
    if (terminado()) return false;
    filas_.push_back(banco_.calcular(puestos(filas_.size())));
  } while (std::chrono::steady_clock::now() < fin);
  return !terminado();
}

void Estudio::completar() {
  while (avanzar(std::chrono::hours(1))) {
  }
}

std::vector<std::size_t> ordenadas(const Estudio& estudio, std::size_t columna, bool ascendente) {
  const std::vector<Fila>& filas = estudio.filas();
  const std::size_t entradas = estudio.variaciones().size();
  std::vector<double> claves;
  for (const Fila& f : filas) {
    double clave = columna < entradas ? std::nan("") : f.celdas.at(columna - entradas).numero;
    if (columna < entradas) pasandoFallos([&] { clave = Val(f.puestos[columna]).valor(); });
    claves.push_back(clave);
  }
  std::vector<std::size_t> orden(filas.size());
  std::iota(orden.begin(), orden.end(), std::size_t{0});
  std::ranges::stable_sort(orden, [&](std::size_t a, std::size_t b) {
    const double x = claves[a], y = claves[b];
    if (std::isnan(x) || std::isnan(y)) return !std::isnan(x) && std::isnan(y);
    return ascendente ? x < y : x > y;
  });
  return orden;
}

std::string comoCsv(const Estudio& estudio, bool coma) {
  const std::vector<Columna>& todas = columnas(estudio.ficha());
  TextoCsv csv(coma);
  const std::vector<Variacion>& varian = estudio.variaciones();
  for (const Variacion& v : varian) csv.texto(v.entrada->titulo());
  csv.texto("Calculado");
  for (const Columna& c : todas) csv.texto(c.titulo());
  csv.texto("Motivo").finDeLinea();
  for (const Fila& f : estudio.filas()) {
    for (std::size_t i = 0; i < varian.size(); ++i) csv.valor(varian[i].entrada->leido(f.puestos[i]));
    csv.texto(f.calculado ? "sí" : "no");
    for (const Celda& c : f.celdas) c.texto.empty() ? csv.numero(c.numero) : csv.texto(c.texto);
    csv.texto(f.motivo).finDeLinea();
  }
  return std::string(TextoCsv::marcaUtf8) + csv.contenido();
}

}  // namespace calvento
