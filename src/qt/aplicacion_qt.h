#pragma once

#include <functional>
#include <string>

#include <QApplication>

namespace calvento {

/// Qt's application with two habits: what an event handler throws ends in one box, and files that the desktop sends to
/// the running program are opened.
class AplicacionQt : public QApplication {
 public:
  AplicacionQt(int& argc, char** argv);

  std::function<void(const std::string& texto)> alFallar;
  std::function<void(const std::string& archivo)> alAbrirArchivo;

  bool notify(QObject* objeto, QEvent* evento) override;

 protected:
  bool event(QEvent* evento) override;
};

}  // namespace calvento
