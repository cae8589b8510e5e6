#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <QObject>
#include <QPointer>
#include <QTimer>

#include "estructura/ventana_estructura.h"
#include "sesion/copias.h"

class QLockFile;
class QMainWindow;

namespace calvento {

/// Keeps what the user types in the data windows: a copy on the disk a second after a change and before the contents
/// go, the mark of unsaved changes in the title, and the contents that others have taken the place of.
class Resguardo : public QObject {
 public:
  Resguardo();
  ~Resguardo() override;

  /// A data window has been opened.
  void vigilar(VentanaEstructura& ventana, QMainWindow& vista);
  /// It is about to go.
  void olvidar(const Ventana& ventana);
  /// Something in the window may have changed; of a parameter window that concerns the data windows it serves.
  void tocada(const Ventana& ventana);
  /// Keeps at once what is not kept yet.
  void guardarTodo();
  /// The program ends in an orderly way: what is unsaved is one of the kept states.
  void terminar();

  /// What can be brought back into the window, the newest first.
  std::vector<Copia> copias(const VentanaEstructura& ventana) const;
  void recuperar(VentanaEstructura& ventana, const std::string& id);
  /// Ctrl+Z, or Ctrl+Y: brings back the contents before the last Nuevo, Abrir or Recuperar. False where there are none,
  /// and while a field has something to undo by itself.
  bool deshacer(const Ventana& ventana, bool rehacer);

 private:
  struct Paso {
    Trabajo trabajo;
    std::optional<Contenido> base;
  };
  struct Vigilada {
    VentanaEstructura* ventana;
    QPointer<QMainWindow> vista;
    Contenido inicial;              ///< of the window without anything typed
    std::optional<Contenido> base;  ///< what the file holds, or a new project; nothing: they are in no file
    std::optional<Contenido> copiada;
    std::string aviso;  ///< in its status bar
    bool sucia = false;
    bool dejada = false;  ///< the contents are kept and not touched since
    std::vector<Paso> atras, adelante;
  };
  Vigilada* buscar(const Ventana& ventana);
  void mirar();
  void copiar(Vigilada& v);
  void alSustituir(Vigilada& v);
  void alCoincidir(Vigilada& v);
  void dejar(Vigilada& v);
  void avisarSinDejar(Vigilada& v);
  void avisar(Vigilada& v, const std::string& texto);
  void sinFallo(Vigilada& v, const std::function<void()>& accion);
  void echarCerrojo();
  bool corre(const std::string& programa) const;

  QString carpeta_, programa_;
  Copias copias_;
  std::unique_ptr<QLockFile> cerrojo_;
  std::vector<std::unique_ptr<Vigilada>> vigiladas_;
  QTimer alMirar_, alCopiar_;
  bool falloDicho_ = false;
};

/// A time as the user says it: "hoy 14:32", "ayer 9:05", "21/11 16:40".
QString horaDicha(std::chrono::system_clock::time_point hora);

}  // namespace calvento
