#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "aplicacion/form_manual.h"
#include "cad/destinos.h"
#include "cad/dibujo_dxf.h"
#include "estudio/form_estudio.h"
#include "memoria/form_memoria.h"
#include "modelo/design_state.h"
#include "plataforma/dialogos.h"
#include "plataforma/navegador.h"
#include "poza/form2.h"
#include "poza/form25.h"

namespace calvento {

/// Holds the one design record and the single instance of every window, and shows and unloads windows by their name.
class Aplicacion : public Navegador {
 public:
  /// `cad` is the application that drawings can be sent to beside a file; nullptr where there is none.
  Aplicacion(Dialogos& dialogos, SistemaVentanas& sistema, ConexionAplicacion* cad = nullptr);
  ~Aplicacion() override;

  /// Start-up: shows the main window and the About box.
  void arrancar();

  /// Opens a project file in the data window of its extension, showing that window. Returns false when the extension is
  /// none of the three. `comoCopia`: Guardar asks for another name.
  bool abrirProyecto(const std::string& archivo, bool comoCopia = false);

  /// Opens the manual at the chapter of that window; returns what shows it.
  VisorManual& ayuda(std::string_view ventana);

  /// Loads the window if it is not loaded, without showing it. nullptr for an unknown name or when loading failed; a
  /// failure while loading is told in one box.
  Ventana* cargar(std::string_view ventana);
  template <class V>
  V* cargar(std::string_view ventana) {
    return dynamic_cast<V*>(cargar(ventana));
  }
  /// The window if it is loaded, else nullptr.
  Ventana* cargada(std::string_view ventana) const;
  /// Names of all windows the program has.
  std::vector<std::string_view> nombres() const;

  // Navegador
  void mostrar(std::string_view ventana) override;
  void ocultar(Ventana& ventana) override;
  void descargar(Ventana& ventana) override;
  void imprimir(Ventana& ventana) override;
  void copiar(Ventana& ventana) override;
  void calculoTerminado(VentanaDatos& ventana) override;
  void terminar() override;
  void calculado() override;
  Evento comoMostrar(std::string_view ventana) const override;

  DesignState estado;

 private:
  using Fabrica = std::function<std::unique_ptr<Ventana>(Aplicacion&)>;
  struct Entrada {
    std::string_view nombre;
    Fabrica crear;
  };
  static const std::vector<Entrada>& catalogo();

  std::unique_ptr<Ventana> memoriaDe(std::string_view datos);
  std::unique_ptr<Ventana> estudioDe(std::string_view datos);
  Form2& form2();
  Form25& form25();

  Dialogos& dialogos_;
  SistemaVentanas& sistema_;
  /// What each data window calculated last, for its report.
  std::map<std::string, std::shared_ptr<const DisenoComprobado>, std::less<>> disenos_;
  ConexionDxf dxf_{dialogos_};
  DestinosCad cad_;
  std::map<std::string, std::unique_ptr<Ventana>, std::less<>> ventanas_;
  std::vector<std::unique_ptr<Ventana>> salientes_;  ///< unloaded, alive until the running event has ended
};

}  // namespace calvento
