#pragma once

#include <functional>

#include <QFrame>

class QLabel;

namespace calvento {

/// The strip above a result window whose figures are not those of the last calculation of its structure.
class Franja : public QFrame {
 public:
  Franja(QWidget& marco, std::function<void()> actualizar);
  void decir(const QString& texto);

 private:
  QLabel* rotulo_;
};

}  // namespace calvento
