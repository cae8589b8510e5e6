#pragma once

#include <memory>
#include <vector>

#include <QString>
#include <QWidget>

#include "aplicacion/form_manual.h"

class QAction;
class QListWidget;
class QTextBrowser;
class QUrl;

namespace calvento {

/// The widget of the manual: its text on white paper, the chapters at the side, the way back and forward, search and
/// zoom.
class VistaManual : public QWidget {
 public:
  explicit VistaManual(QWidget* padre = nullptr);

  /// Shows for that control from now on. The widget may outlive it.
  void mostrar(VisorManual& visor) { visor_ = visor.vinculo(); }
  /// Goes to the chapter of that heading, and the keys to the text; an empty heading changes nothing.
  void abrirEn(const QString& titulo);

  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  struct Titulo {
    QString texto;
    int posicion;
  };
  QWidget* cuerpo();
  void componer();
  void colocar(int posicion);
  void irA(int posicion);
  void seguir(const QUrl& enlace);
  bool buscar(const QString& texto, bool haciaAtras);
  void alDesplazar();
  void marcarCapitulo();
  void atras() { recorrer(-1); }
  void adelante() { recorrer(1); }
  void recorrer(int paso);
  void acercar() { aumentar(1.15); }
  void alejar() { aumentar(1 / 1.15); }
  void tamanoNormal() { aumentar(0); }
  void aumentar(double factor);

  std::weak_ptr<VisorManual> visor_;
  QTextBrowser* texto_ = nullptr;
  QListWidget* capitulos_ = nullptr;
  QAction *atras_ = nullptr, *adelante_ = nullptr;
  std::vector<Titulo> titulos_;
  double tamano_;             ///< of the letters, points
  int arriba_ = 0;            ///< what of the text stands at the upper edge
  bool acomodando_ = false;   ///< the text moves by itself, since its width changes
  std::vector<int> caminos_;  ///< the places that were gone to by a link or a chapter
  std::size_t paso_ = 0;      ///< the one that is shown
};

}  // namespace calvento

/// The name by which Qt Designer files know the widget.
using VistaManual = calvento::VistaManual;
