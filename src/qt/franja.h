#pragma once

#include <functional>

#include <QFrame>

namespace calvento {

/// The strip above a result window whose figures are no longer those of the last calculation.
class Franja : public QFrame {
 public:
  Franja(QWidget& marco, const QString& texto, std::function<void()> actualizar);
};

}  // namespace calvento
