#include "plataforma/rejilla.h"

#include <algorithm>

#include "comun/fallo.h"
#include "plataforma/medidas.h"

namespace calvento {

void Rejilla::dimensionar(int filas, int columnas) {
  const auto cuantas = static_cast<std::size_t>(filas) * static_cast<std::size_t>(columnas);
  if (columnas == columnas_) {  // a report that grows by its rows
    celdas_.resize(cuantas);
  } else {
    std::vector<Celda> nuevas(cuantas);
    for (int f = 0; f < std::min(filas, filas_); ++f)
      for (int c = 0; c < std::min(columnas, columnas_); ++c)
        nuevas[static_cast<std::size_t>(f) * static_cast<std::size_t>(columnas) + static_cast<std::size_t>(c)] =
            std::move(celda(f, c));
    celdas_ = std::move(nuevas);
  }
  anchos_.resize(static_cast<std::size_t>(columnas));
  filas_ = filas;
  columnas_ = columnas;
  oyente_(CambioRejilla::estructura);
}

void Rejilla::formatoColumnas(std::string_view formato) {
  std::vector<std::string_view> piezas;
  while (true) {
    const std::size_t barra = formato.find('|');
    piezas.push_back(formato.substr(0, barra));
    if (barra == std::string_view::npos) break;
    formato.remove_prefix(barra + 1);
  }
  dimensionar(std::max(filas_, 1), static_cast<int>(piezas.size()));
  for (int c = 0; c < columnas_; ++c) {
    std::string_view p = piezas[static_cast<std::size_t>(c)];
    if (!p.empty() && (p[0] == '^' || p[0] == '<' || p[0] == '>')) {
      alinear(c, p[0] == '^' ? Alineacion::centro : p[0] == '>' ? Alineacion::derecha : Alineacion::izquierda);
      p.remove_prefix(1);
    }
    ponerAncho(c, anchoTexto(p) + 90);
    const std::size_t primero = p.find_first_not_of(' ');
    p = primero == std::string_view::npos ? std::string_view()
                                          : p.substr(primero, p.find_last_not_of(' ') - primero + 1);
    poner(0, c, std::string(p));
  }
}

const Rejilla::Celda& Rejilla::celda(int fila, int columna) const {
  if (fila < 0 || fila >= filas_ || columna < 0 || columna >= columnas_) fallar(Motivo::subindice);
  return celdas_[static_cast<std::size_t>(fila) * static_cast<std::size_t>(columnas_) +
                 static_cast<std::size_t>(columna)];
}

Rejilla::Celda& Rejilla::celda(int fila, int columna) {
  return const_cast<Celda&>(static_cast<const Rejilla&>(*this).celda(fila, columna));
}

template <class T>
void Rejilla::escribir(T& lugar, T valor, CambioRejilla que) {
  if (lugar == valor) return;
  lugar = std::move(valor);
  oyente_(que);
}

const std::string& Rejilla::texto(int fila, int columna) const { return celda(fila, columna).texto; }
void Rejilla::poner(int fila, int columna, std::string texto) {
  escribir(celda(fila, columna).texto, std::move(texto),
           fila < filasTitulo_ ? CambioRejilla::estructura : CambioRejilla::celdas);
}
Color Rejilla::fondo(int fila, int columna) const { return celda(fila, columna).fondo; }
void Rejilla::pintar(int fila, int columna, Color fondo) {
  escribir(celda(fila, columna).fondo, fondo, CambioRejilla::celdas);
}

int Rejilla::anchoTwips(int columna) const { return anchos_.at(static_cast<std::size_t>(columna)).ancho; }
void Rejilla::ponerAncho(int columna, int twips) {
  escribir(anchos_.at(static_cast<std::size_t>(columna)).ancho, twips, CambioRejilla::anchos);
}
Alineacion Rejilla::alineacion(int columna) const { return anchos_.at(static_cast<std::size_t>(columna)).alineacion; }
void Rejilla::alinear(int columna, Alineacion a) {
  escribir(anchos_.at(static_cast<std::size_t>(columna)).alineacion, a, CambioRejilla::celdas);
}

void Rejilla::ponerTitulos(int filas, bool unidos) {
  escribir(filasTitulo_, filas, CambioRejilla::estructura);
  escribir(titulosUnidos_, unidos, CambioRejilla::estructura);
}

}  // namespace calvento
