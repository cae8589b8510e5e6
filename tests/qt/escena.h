#pragma once

#include <deque>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <QMainWindow>
#include <QMdiArea>
#include <QTimer>

#include "apoyo/carpeta_prueba.h"
#include "apoyo/dialogos_guion.h"
#include "banco.h"
#include "qt/programa.h"

namespace calvento {

/// What stands before the first of these characters and behind it.
std::pair<std::string, std::string> partidoEn(const std::string& s, char c);

/// A scene on the real widgets: what is typed and pressed and what must then be seen, a line each, as
/// tests/guiones/LEEME.md tells.
class Escena {
 public:
  /// Plays it from a program just started, its About box gone.
  explicit Escena(const std::vector<std::string>& lineas);

 private:
  /// The boxes of a script, which also note what is marked while an error message stands.
  struct Cajas : DialogosGuion {
    explicit Cajas(Escena& e) : escena(e) {}
    void fallo(const std::string& texto) override;
    Escena& escena;
  };
  /// The program starts, in the same user's account as before.
  void arrancar();
  void dar(const std::string& orden, const std::string& resto);
  void teclear(const std::string& texto);
  void tecla(const std::string& cual);
  void responder();
  void raton(const std::string& donde);
  void programa(const std::string& propiedad, const std::string& texto);
  /// The window of that name: a program's, or the one with a control of each kind.
  QMainWindow* vista(const std::string& nombre) const;
  void comprobar(const std::string& que);
  /// The window system's windows and what belongs to them: "Form10", "Form10.Text5", "Form10.marco", "Form10.franja".
  QObject* objeto(const std::string& nombre) const;
  /// What can be seen of a name: a widget's text, "Form10.Text5.toolTip", "foco", "orden"…
  std::string valor(const std::string& nombre) const;
  std::string deVentana(const std::string& ventana, const std::string& que) const;
  std::string deWidget(const std::string& ventana, QObject& w, const std::string& que) const;
  std::string marcados(const std::string& ventana) const;
  std::vector<QMdiSubWindow*> enOrden() const;
  std::string enFrente() const;

  const CarpetaPrueba carpeta_;
  std::map<std::string, std::string> notas_;
  std::string hecho_, conLaCaja_, visto_;
  std::deque<std::pair<std::string, std::string>> respuestas_;
  QTimer reloj_;
  Cajas cajas_{*this};
  std::unique_ptr<Programa> programa_;
  std::unique_ptr<BancoEnPantalla> banco_;
};

}  // namespace calvento
