#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dibujo/vista.h"
#include "modelo/design_state.h"
#include "plataforma/control.h"
#include "plataforma/lienzo.h"
#include "plataforma/navegador.h"
#include "plataforma/ventana.h"

namespace calvento {

/// The window that shows a structure to scale: canvas, rulers, views, zoom box, legend and toolbar. A structure adds
/// its figure and its views. The figure is computed anew with each redrawing; a routine that fails is passed over and
/// the rest is still drawn.
class MarcoDibujo : public Ventana {
 public:
  /// Names and keys: {"todo", "vistaTodo"}. A key without an entry does nothing.
  struct Boton {
    std::string clave;
    std::string destino;  ///< a view, or a window to show
  };
  /// A fixed view: its limits in world metres, before they are widened to the canvas's proportions.
  struct VistaFija {
    std::string nombre;
    std::function<Vista()> limites;
  };
  /// One layer of the figure.
  struct Rutina {
    std::string_view nombre;
    std::function<void(Lienzo&)> pintar;
  };
  /// What a structure adds to the frame. The two orders of redrawing differ on purpose: a label prints in whatever font
  /// the routine before it has left.
  struct Estructura {
    std::vector<VistaFija> vistas;
    std::vector<Rutina> ordenPrincipal;  ///< zoom box and vistaTodo
    std::vector<Rutina> ordenVistas;     ///< all other views
    std::vector<Boton> ventanas;         ///< toolbar keys that show other windows
  };

  Toolbar Toolbar1;
  PictureBox GRAF{*this, "GRAF", 865, 433};
  PictureBox Picture1{*this, "Picture1", 929, 41};  ///< horizontal ruler
  PictureBox Picture2{*this, "Picture2", 65, 433};  ///< vertical ruler
  Label Label5{*this, "Label5"};                    ///< station and elevation under the pointer
  CommandButton Command1{*this, "Command1"};

  void vistaMas();
  void vistaMenos();
  /// Shows the fixed view of that name; false where the structure has none.
  bool ver(std::string_view vista);
  std::vector<std::string_view> vistas() const;

  /// A view as it was asked for, before it was widened to the canvas's proportions.
  struct VistaPedida {
    Vista limites;
    bool principal = false;  ///< drawn in the order of the zoom box
  };
  /// The view that is shown; none where no view could be computed.
  std::optional<VistaPedida> vistaPedida() const;
  /// Shows a view of before again; false where nothing of the figure lies in it.
  bool volverA(const VistaPedida& vista);

  void GRAF_MouseDown(Punto p);
  void GRAF_MouseMove(Punto p);
  void GRAF_MouseUp(Punto p);
  /// Another size of the canvas in pixels: the view is kept and never distorted.
  void GRAF_Resize(int ancho, int alto);

 protected:
  MarcoDibujo(std::string_view nombre, std::vector<std::string> claves, DesignState& estado, Navegador& navegador);
  /// Takes the structure over and opens on its basin. To be called when the structure's own values are computed.
  void abrir(Estructura estructura);

  DesignState& estado_;

 private:
  enum class Orden { principal, vistas };

  const VistaFija* fija(std::string_view nombre) const;
  void Toolbar1_ButtonClick(const std::string& clave);
  void mostrarVista(const std::function<Vista()>& limites, Orden orden);
  void redibujar();
  void reglas();

  Navegador& navegador_;
  Estructura estructura_;
  Orden orden_ = Orden::vistas;
  /// The view asked for, before it was widened: another size of the window starts from it again.
  std::optional<Vista> pedida_;
};

}  // namespace calvento
