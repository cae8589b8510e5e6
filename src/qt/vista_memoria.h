#pragma once

#include <memory>
#include <string>

#include <QWidget>

#include "memoria/form_memoria.h"

class QLineEdit;
class QListWidget;

namespace calvento {

class MaquetaMemoria;
class PaginasMemoria;

/// The widget of a report: its pages as they will print, the chapters and the lines of the cover at the side, zoom,
/// search, saving, printing and copying. What stands on the cover is kept with the user's settings, in no project.
class VistaMemoria : public QWidget {
 public:
  explicit VistaMemoria(QWidget* padre = nullptr);
  ~VistaMemoria() override;

  /// Shows that control from now on. The widget may outlive it.
  void mostrar(VisorMemoria& visor);
  /// Lays the report out anew, and goes to the chapter that the control names.
  void refrescar();

  const MaquetaMemoria* maqueta() const { return maqueta_.get(); }
  /// Writes the report where a file is named; what fails is told in a box.
  void guardar(const QString& archivo);

 private:
  Portada portada() const;
  void guardarPortada();
  void irACapitulo(int fila);
  void alPasarPagina(int pagina);
  bool buscar(const QString& texto, bool haciaAtras);
  void guardarComo();
  void imprimir();
  void copiar();

  std::weak_ptr<VisorMemoria> visor_;
  std::unique_ptr<Documento> documento_;
  std::unique_ptr<MaquetaMemoria> maqueta_;
  QListWidget* capitulos_;
  QLineEdit *obra_, *ubicacion_, *proyectista_, *revision_;
  PaginasMemoria* paginas_;
};

}  // namespace calvento

/// The name by which Qt Designer files know the widget.
using VistaMemoria = calvento::VistaMemoria;
