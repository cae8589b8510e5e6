#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QTimer>
#include <QWidget>

#include "estudio/estudio.h"
#include "estudio/form_estudio.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTableView;

namespace calvento {

class CurvaEstudio;
class EntradaEstudio;
class ModeloEstudio;

/// The widget of a study: what varies, the table of the designs, the curve of one result, the search of a value, and
/// the button that takes a design over. It calculates in slices between the user's events.
class VistaEstudio : public QWidget {
 public:
  explicit VistaEstudio(QWidget* padre = nullptr);
  ~VistaEstudio() override;

  /// Works for that control from now on. The widget may outlive it.
  void mostrar(VisorEstudio& visor);

 private:
  QWidget* hacerEntradas();
  QWidget* hacerTabla();
  QWidget* hacerCurva();
  void calcular();
  void seguir();
  void detener();
  void dibujar();
  void buscarValor();
  void usarElegido();
  void elegir(std::size_t fila);
  void copiar() const;
  void pedirTabla();
  void pedirCurva();
  /// Writes the file that was asked for, if one was, and tells it, or why it cannot be written.
  void guardar(const QString& archivo, const std::function<void(const QString&)>& escribir);
  void decir(const QString& texto, bool malo = false);
  /// The design of the windows; nothing, and told, where they are closed.
  std::optional<Diseno> base();

  std::weak_ptr<VisorEstudio> visor_;
  std::unique_ptr<Diseno> base_;
  std::unique_ptr<Estudio> estudio_;
  std::unique_ptr<EntradaEstudio> primera_, segunda_;
  ModeloEstudio* modelo_;
  QTableView* tabla_;
  CurvaEstudio* curva_;
  QComboBox* resultado_;
  QLineEdit* buscado_;
  QLabel* aviso_;
  QProgressBar* progreso_;
  QPushButton *calcular_, *detener_, *usar_, *guardar_, *guardarCurva_;
  QTimer turno_;
};

}  // namespace calvento

/// The name by which Qt Designer files know the widget.
using VistaEstudio = calvento::VistaEstudio;
