#pragma once

#include <functional>
#include <optional>
#include <string>

#include <QLineEdit>
#include <QString>

#include "estudio/estudio.h"

class QComboBox;
class QGridLayout;
class QWidget;

namespace calvento {

/// A field for one number, as wide as it needs with any font.
class CampoNumero : public QLineEdit {
 public:
  explicit CampoNumero(QWidget* padre);
  QSize sizeHint() const override { return minimumSizeHint(); }
  QSize minimumSizeHint() const override;
};

/// One line of a study's window: the input that varies, from, to and step, with proposals around the typed value.
class EntradaEstudio {
 public:
  /// `opcional`: it may be left without an input.
  EntradaEstudio(QWidget& dueno, QGridLayout& en, int renglon, const QString& rotulo, bool opcional);

  void ofrecer(const Ficha& ficha, const std::string& elegida);
  const Entrada* entrada() const;
  Serie serie() const;
  /// Fails with FalloEstudio as `valores` does.
  std::optional<Variacion> variacion() const;
  /// Whose proposals are put when another input is chosen.
  std::function<std::string(const Entrada&)> tecleado;

 private:
  void proponer();

  QComboBox* cual_;
  QLineEdit *desde_, *hasta_, *paso_;
  const Ficha* ficha_ = nullptr;
  bool opcional_;
};

}  // namespace calvento
