#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "modelo/design_state.h"
#include "modelo/proyecto.h"
#include "plataforma/control.h"
#include "plataforma/mensaje.h"
#include "plataforma/navegador.h"
#include "plataforma/ventana_datos.h"

namespace calvento {

/// What the data windows of the three structures have in common: the fields of both canals, the file menu, the toolbar,
/// the error handler of the calculation and the hints in the status bar.
class VentanaEstructura : public VentanaDatos {
 public:
  VentanaEstructura(const FormatoProyecto& formato, DesignState& estado, Ventana& parametros, Dialogos& dialogos,
                    Navegador& navegador);

  TextBox Text5{*this, "Text5", "", {"Caudal (Q)", "m³/s", Dominio::positivos}};  ///< Q
  // Upstream canal
  TextBox Text6{
      *this, "Text6", "", {"Aguas arriba: Ancho de base(b)", "m", Dominio::noNegativos, &Text7}};  ///< bArriba
  TextBox Text7{*this, "Text7", "", {"Aguas arriba: Talud(Z)", "", Dominio::noNegativos}};         ///< zArriba
  TextBox Text8{*this, "Text8", "", {"Aguas arriba: Rugosidad(n)", "", Dominio::positivos}};       ///< nArriba
  TextBox Text9{*this, "Text9", "", {"Aguas arriba: Pendiente(S)", "m/m", Dominio::positivos}};    ///< sArriba
  // Downstream canal
  TextBox Text16{
      *this, "Text16", "", {"Aguas abajo: Ancho de base(b)", "m", Dominio::noNegativos, &Text18}};  ///< bAbajo
  TextBox Text18{*this, "Text18", "", {"Aguas abajo: Talud(Z)", "", Dominio::noNegativos}};         ///< zAbajo
  TextBox Text19{*this, "Text19", "", {"Aguas abajo: Rugosidad(n)", "", Dominio::positivos}};       ///< nAbajo
  TextBox Text20{*this, "Text20", "", {"Aguas abajo: Pendiente(S)", "m/m", Dominio::positivos}};    ///< sAbajo
  // Chainage, elevations and basin
  TextBox Text25{*this, "Text25", "", {"Progresiva", "m"}};                                        ///< progresivaInicio
  TextBox Text2{*this, "Text2", "", {"Elev. Inicio de Caída", "m"}};                               ///< cotaFin
  TextBox Text4{*this, "Text4", "", {"Elev. Salida", "m"}};                                        ///< cotaAbajo
  TextBox Text23{*this, "Text23", "", {"Poza/Tanque: Ancho Tanque(B)", "m", Dominio::positivos}};  ///< basin width

  Frame Frame1{*this, "Frame1"};                                                ///< group of the control section
  Label Label41{*this, "Label41", "", {"Régimen del canal aguas arriba", ""}};  ///< regime note
  StatusBar sbStatusBar{*this, "sbStatusBar"};

  CommandButton Command6{*this, "Command6"};  ///< suggests the basin width
  CommandButton Command3{*this, "Command3"};
  CommandButton Command2{*this, "Command2"};

  Menu mnnuevo{*this, "mnnuevo"};
  Menu mnabrir{*this, "mnabrir"};
  Menu mnguardar{*this, "mnguardar"};
  Menu mnguardarcomo{*this, "mnguardarcomo"};
  Menu mnimprimir{*this, "mnimprimir"};
  Menu mncopiar{*this, "mncopiar"};
  Menu mncerrar{*this, "mncerrar"};
  Menu mngrafico{*this, "mngrafico"};
  Menu mntanque{*this, "mntanque"};
  Menu mnmemoria{*this, "mnmemoria"};  ///< the design report
  Menu mnparam{*this, "mnparam"};
  Menu mnestudio{*this, "mnestudio"};  ///< alternatives beside each other
  Toolbar Toolbar1{*this, "Toolbar1", {"nuevo", "abrir", "guardar", "Copiar", "imprimir"}};

  /// Reads the fields and calculates; an arithmetic failure is told and ends it where it stood.
  void Command3_Click() override;
  bool calculado() const override { return calculado_; }
  Evento comoMostrar(std::string_view resultado) const override;
  const std::vector<Mensaje>& mensajes() const override { return dialogos_.mensajes; }
  void abrir(const std::string& ruta) override;
  /// Opens it as a copy: Guardar asks for a name.
  void abrirCopia(const std::string& ruta);
  void Abrir_Archivo();
  void Guardar_Archivo() { proyecto_.Guardar_Archivo(); }
  void Guardarcomo_Archivo() { proyecto_.Guardarcomo_Archivo(); }
  virtual void nuevo() = 0;

  const FormatoProyecto& formato() const { return formato_; }
  const Ventana& parametros() const { return deParametros_; }
  const std::string& archivo() const { return proyecto_.archivo(); }  ///< full path of the project; empty: none
  /// What stands in the window and in its parameter window.
  Trabajo trabajo() const;
  /// Fills both windows with it; where it had been calculated, calculates as opening does.
  void reponer(const Trabajo& trabajo);
  /// For the one who keeps the user's work; see Proyecto.
  void vigilar(Evento alSustituir, Evento alCoincidir);

  CommandButton* botonPredeterminado() override { return &Command3; }

 protected:
  /// Reading and calculation; whether it ran to its last step.
  virtual bool calcular() = 0;
  /// What follows when a project file has been read; `calcula`: with the calculation.
  virtual void trasLeer(bool calcula) = 0;
  /// The user leaves the contents without saving them.
  void dejarContenido() { disparar(proyecto_.alSustituir); }

  void leer(const TextBox& campo, Single DesignState::*valor);
  /// Reads Q and both canals' fields in the order of the windows: first the upstream canal.
  void leerCanalArriba();
  void leerCanalAbajo();
  /// Opens a window from a menu; the report's is the last entry and goes with all the others.
  Evento abre(const char* ventana);
  /// The same for a result window, which comoMostrar finds.
  void abreResultado(Menu& menu, const char* ventana);
  /// A result window that opens in another way, as long as the menu is active.
  void anotarResultado(const Menu& menu, const char* ventana, Evento mostrar);
  void habilitar(std::initializer_list<Menu*> menus, bool activos);
  void vaciarCampos(std::initializer_list<TextBox*> campos);

  /// A suggested width for the typed discharge: in the status bar, emptied without a discharge; or into a field.
  void mostrarAncho(const char* rotulo, Real (*ancho)(Real Q));
  void ponerAncho(TextBox& campo, Real (*ancho)(Real Q));
  /// The hint of a ramp slope in its tooltip and in the status bar.
  void pistaTalud(TextBox& campo, const char* consejo, const char* panel);

  /// The first half of the live preview: reads Q and the upstream canal and finds normal depth and Froude number,
  /// passing over what fails. Returns the velocity; the record's vArriba takes it only where told.
  Real vistaCanalArriba(bool guardarVelocidad);
  /// The regime of the canal in the window: the note of a fast canal, or the group of the control section. Returns
  /// whether a control section stands; at a Froude number of exactly 1 nothing changes.
  bool vistaRegimen();
  /// Energy at critical depth in a section of width b and side slope z, whose depth the record takes as ycControl.
  Real vistaEnergiaCritica(Real b, Real z);
  bool algunoVacio(std::initializer_list<const TextBox*> campos) const;

  DesignState& estado_;
  DialogosAnotados dialogos_;
  Navegador& navegador_;

 private:
  void unirArchivo();
  void contarCalculo();
  void empezarNuevo();
  void contarFallo(const FalloAritmetico& fallo);

  /// One of the result windows: the menu that stands for it and what opens it.
  struct Resultado {
    const Menu* menu;
    std::string_view ventana;
    Evento mostrar;
  };
  std::vector<Resultado> resultados_;
  const FormatoProyecto& formato_;
  Ventana& deParametros_;
  Proyecto proyecto_;
  bool calculado_ = false;
};

inline constexpr const char* notaRapido = "FLUJO SUPER CRITICO, EN CANAL AGUAS ARRIBA";

}  // namespace calvento
