#pragma once

#include <functional>
#include <string>
#include <vector>

#include "aplicacion/aplicacion.h"
#include "estudio/entradas.h"
#include "lote/estructuras.h"
#include "lote/opciones.h"
#include "memoria/comprobaciones.h"
#include "plataforma/mensaje.h"
#include "plataforma/sin_pantalla.h"
#include "plataforma/ventana_datos.h"

namespace calvento::lote {

/// A result window that was opened after the calculation; without a window, why it did not open.
struct ReporteAbierto {
  std::string_view nombre;
  const Ventana* ventana = nullptr;
  std::string fallo;
};

/// Boxes that nobody sees: they are written down, and every question gets the same answer.
class DialogosGrabados : public Dialogos {
 public:
  explicit DialogosGrabados(bool respuesta) : respuesta_(respuesta) {}
  void aviso(const std::string& texto) override { mensajes.push_back({Mensaje::Tipo::aviso, texto}); }
  void fallo(const std::string& texto) override { mensajes.push_back({Mensaje::Tipo::fallo, texto}); }
  bool pregunta(const std::string& texto) override {
    if (!archivoNombrado.empty()) return true;
    mensajes.push_back({Mensaje::Tipo::pregunta, texto, respuesta_});
    return respuesta_;
  }
  std::optional<std::string> abrirArchivo(const OpcionesArchivo&) override { return std::nullopt; }
  std::optional<std::string> guardarArchivo(const OpcionesArchivo&) override {
    if (archivoNombrado.empty()) return std::nullopt;
    return archivoNombrado;
  }

  std::vector<Mensaje> mensajes;
  /// The file to save to, named on the command line and so to be replaced without a question; empty for none.
  std::string archivoNombrado;

 private:
  bool respuesta_;
};

/// A value that was put into a project beyond what its file says.
struct ValorPuesto {
  std::string nombre, texto, unidad;
};

/// One project, opened and calculated in a program of its own, as if that had just been started: what a project gives
/// does not depend on the ones before it. The windows live as long as the session.
class Sesion {
 public:
  /// `variados`: what the project is calculated with instead of what its file says.
  Sesion(const Opciones& opciones, std::string archivo, const std::vector<Puesto>& variados = {});

  const std::string& archivo() const { return archivo_; }
  /// nullptr when the file's extension is of no structure.
  const Estructura* estructura() const { return estructura_; }
  /// The data window; nullptr without a structure.
  VentanaDatos* ventana() const { return ventana_; }
  /// Whether the file could be opened for reading at all; its content may still be no project.
  bool accesible() const { return accesible_; }
  /// Whether the last press of Command3 ran through to its last step.
  bool calculado() const { return calculado_; }
  /// The boxes of all presses, and the record as the last one left it: result windows opened later may write into the
  /// live one.
  const std::vector<Mensaje>& mensajes() const { return mensajes_; }
  /// One line for each field of the data window and of its parameter window whose text is not wholly the number that is
  /// read from it.
  const std::vector<std::string>& notas() const { return notas_; }
  const DesignState& estado() const { return estado_; }
  /// What was put by --campo and --variar.
  const std::vector<ValorPuesto>& puestos() const { return puestos_; }
  /// The result windows whose menus are enabled.
  const std::vector<ReporteAbierto>& reportes() const { return reportes_; }
  /// The design with its data. Only of a calculated project.
  Diseno diseno() const;
  /// Its checks, on the tables of the result windows; none of a project that was not calculated.
  Comprobaciones comprobaciones() const;
  /// The running program, whose result windows can be loaded.
  Aplicacion& aplicacion() { return aplicacion_; }
  /// Lets the save dialogs of what follows name this file.
  void nombrarArchivo(const std::string& archivo) { dialogos_.archivoNombrado = archivo; }

 private:
  void ejecutar(const Opciones& opciones, const std::vector<Puesto>& variados);
  void abrirReportes();
  void anotarLecturas();
  void ponerCampos(const Opciones& opciones, bool deParametros);
  bool ponerConNombre(const Opciones& opciones, const std::vector<Puesto>& variados);

  std::string archivo_;
  const Estructura* estructura_;
  bool accesible_ = false;
  bool calculado_ = false;
  std::vector<Mensaje> mensajes_;
  std::vector<std::string> notas_;
  DesignState estado_;
  std::vector<ValorPuesto> puestos_;
  std::vector<ReporteAbierto> reportes_;
  VentanaDatos* ventana_ = nullptr;

  DialogosGrabados dialogos_;
  SinPantalla pantalla_;
  Aplicacion aplicacion_;
};

}  // namespace calvento::lote
