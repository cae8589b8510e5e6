#pragma once

#include <string>
#include <string_view>

#include "cad/destinos.h"
#include "cad/envio.h"
#include "cad/hoja_cad.h"
#include "modelo/design_state.h"
#include "plataforma/control.h"
#include "plataforma/dialogos.h"
#include "plataforma/navegador.h"
#include "plataforma/ventana.h"

namespace calvento {

/// The window that sends a finished design to a CAD drawing as profile and plan: options of the grid, connection,
/// layers, grid, progress, closing. A structure adds its figure.
class MarcoExportar : public Ventana {
 public:
  TextBox Text10{*this, "Text10", "1"};     ///< between horizontal lines of the grid, m
  TextBox Text11{*this, "Text11", "5"};     ///< between vertical lines, m
  TextBox Text12{*this, "Text12", "0.15"};  ///< height of the texts, drawing units
  CheckBox Check1{*this, "Check1"};         ///< also the energy line
  /// Where the drawing goes; not shown where there is no choice.
  OptionButton Option1{*this, "Option1", 1, false};  ///< to the application beside the program
  OptionButton Option2{*this, "Option2", 1, true};   ///< to a DXF file
  ProgressBar osProgress1{*this, "osProgress1"};
  CommandButton Command3{*this, "Command3"};
  CommandButton Command4{*this, "Command4"};

  CommandButton* botonPredeterminado() override { return &Command3; }
  void Command3_Click();
  /// Why the last run ended early; empty where it ran to its end.
  const std::string& motivo() const { return motivo_; }

 protected:
  MarcoExportar(std::string_view nombre, DesignState& estado, Dialogos& dialogos, Navegador& navegador,
                const DestinosCad& destinos);

  /// What the grid encloses, in whole metres: stations and elevations.
  struct Cuadricula {
    Real Xa, Xb, Za, Zb;
  };
  virtual Cuadricula cuadricula() const = 0;
  /// That of a drop: from the start of the drawn canal before the control section to the end of the drawn canal behind
  /// the outlet transition, which the drawing window counts into the end of the structure; up to the crest.
  Cuadricula cuadriculaCaida() const;
  virtual HojaCad hoja() const = 0;
  const DesignState& estado() const { return estado_; }

 private:
  void ofrecerDestinos();
  ConexionCad& conexion();
  void exportar(AplicacionCad& cad);
  void enviarCuadricula(AplicacionCad& cad);
  void enviarFigura(Envio& envio, const HojaCad& figura);
  static void ACOTAR(Envio& envio, const HojaCad& figura);
  void avance(Real valor) { osProgress1.Value = valor.valor(); }

  DesignState& estado_;
  Dialogos& dialogos_;
  DestinosCad destinos_;
  std::string motivo_;
};

/// Whole metres of a grid's limit.
Real metroEntero(Real valor);

}  // namespace calvento
