#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "memoria/comprobaciones.h"
#include "memoria/diseno.h"
#include "plataforma/lienzo.h"
#include "plataforma/rejilla.h"

// The design report as a plain document: what stands in it and in which order, but not how it looks. Texts may hold
// marks for what stands lower or higher: "Y_{n}", "A^{5}".

namespace calvento {

struct Parrafo {
  std::string texto;
  bool nota = false;  ///< in smaller letters
};

/// A relation with its figures: "F = V/√(gA/T)", "= 0.913/√(9.81·0.421/1.85)", "= 0.611".
struct Formula {
  std::string expresion;
  std::string cifras;     ///< may be empty
  std::string resultado;  ///< with its unit
};

struct Tabla {
  std::string titulo;
  std::vector<std::vector<std::string>> titulos;  ///< rows of headings
  std::vector<std::vector<std::string>> filas;
  std::vector<Alineacion> columnas;
  /// Rows that are told apart: what does not hold, what was chosen.
  enum class Marca { ninguna, mal, aviso, elegida };
  std::vector<Marca> marcas;  ///< one for each row, or none at all
  std::vector<int> anchos;    ///< of the columns in parts of a hundred; none: as the texts ask
};

/// One of the program's sketches by its name, with labels that the window puts on it; in pixels of its design.
struct BocetoRotulado {
  std::string nombre;
  int ancho = 0, alto = 0;
  struct Rotulo {
    std::string texto;
    int x, y, ancho, alto;
    Alineacion alineacion;
  };
  std::vector<Rotulo> rotulos;
};

struct Figura {
  std::string titulo;
  std::variant<Lienzo, BocetoRotulado> dibujo;
  double anchoMm = 170, altoMm = 80;  ///< on paper
  bool lamina = false;                ///< on a sheet of its own
  bool apaisada = false;              ///< that sheet lies
};

using Bloque = std::variant<Parrafo, Formula, Tabla, Figura>;

struct Apartado {
  std::string titulo;  ///< empty for what stands before the first one
  std::vector<Bloque> bloques;
};

struct Capitulo {
  std::string titulo;
  std::vector<Apartado> apartados;
};

/// What the engineer writes on the cover, and the day.
struct Portada {
  std::string obra, ubicacion, proyectista, revision;
  std::string fecha;
};

struct Documento {
  std::string titulo;      ///< "Memoria de cálculo hidráulico"
  std::string estructura;  ///< "Rápida"
  std::string proyecto;    ///< name of its file
  Portada portada;
  CuentaComprobaciones cuenta;
  std::vector<Capitulo> capitulos;
};

/// Today as "23/11/2026".
std::string fechaDeHoy();

/// The report of a design. `tablas` are those on which its checks were made.
Documento redactar(const Diseno& diseno, const Comprobaciones& comprobaciones, const TablasInforme& tablas,
                   const Portada& portada);

/// "Calvento 1.2.3".
std::string programaYVersion();
inline constexpr std::string_view capituloComprobaciones = "Comprobaciones";

}  // namespace calvento
