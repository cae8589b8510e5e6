#include "memoria/documento.h"

#include <ctime>

#include "comun/version.h"
#include "memoria/redaccion.h"

namespace calvento {

namespace redaccion {

void Redaccion::tabla(std::string titulo, const Rejilla& r) {
  Tabla t{std::move(titulo), {}, {}, {}, {}, {}};
  for (int c = 0; c < r.columnas(); ++c) t.columnas.push_back(r.alineacion(c));
  for (int f = 0; f < r.filas(); ++f) {
    std::vector<std::string> fila;
    bool vacia = true;
    for (int c = 0; c < r.columnas(); ++c) {
      fila.push_back(r.texto(f, c));
      vacia = vacia && fila.back().empty();
      // what a row has not, but for remarks in the last column, is told so
      if (fila.back().empty() && f >= r.filasTitulo() && c + 1 < r.columnas()) fila.back() = "–";
    }
    if (vacia) continue;
    (f < r.filasTitulo() ? t.titulos : t.filas).push_back(std::move(fila));
  }
  bloque(std::move(t));
}

void Redaccion::tabla(std::string titulo, std::vector<std::string> titulos, std::vector<std::vector<std::string>> filas,
                      std::vector<Alineacion> columnas) {
  bloque(Tabla{std::move(titulo), {std::move(titulos)}, std::move(filas), std::move(columnas), {}, {}});
}

}  // namespace redaccion

std::string programaYVersion() { return "Calvento " + version(); }

std::string fechaDeHoy() {
  const std::time_t ahora = std::time(nullptr);
  char texto[16];
  return {texto, std::strftime(texto, sizeof texto, "%d/%m/%Y", std::localtime(&ahora))};
}

Documento redactar(const Diseno& diseno, const Comprobaciones& comprobadas, const TablasInforme& tablas,
                   const Portada& portada) {
  Documento doc;
  doc.titulo = "Memoria de cálculo hidráulico";
  doc.estructura = diseno.rapida() ? "Rápida" : diseno.inclinada() ? "Caída inclinada" : "Caída vertical";
  const std::string& ruta = diseno.e.rutaArchivo;
  const auto barra = ruta.find_last_of("/\\");
  doc.proyecto =
      diseno.e.esNuevo || ruta.empty() ? "sin nombre" : ruta.substr(barra == std::string::npos ? 0 : barra + 1);
  doc.portada = portada;
  doc.cuenta = contar(comprobadas);
  redaccion::Redaccion r(doc, diseno, comprobadas, tablas);
  redaccion::datos(r);
  redaccion::canales(r);
  redaccion::control(r);
  redaccion::perfil(r);
  redaccion::trayectoria(r);
  redaccion::resalto(r);
  redaccion::bloques(r);
  redaccion::revestimientos(r);
  redaccion::verificacion(r);
  redaccion::comprobaciones(r);
  redaccion::planos(r);
  redaccion::mensajes(r);
  redaccion::referencias(r);
  return doc;
}

}  // namespace calvento
