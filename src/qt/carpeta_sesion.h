#pragma once

#include <optional>

#include <QTemporaryDir>

namespace calvento {

/// A folder for run-time files where the session has none (a server, a container), for as long as this lives: Qt would
/// make itself one that stays.
class CarpetaSesion {
 public:
  CarpetaSesion() {
    if (!qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) return;
    carpeta_.emplace();
    qputenv("XDG_RUNTIME_DIR", carpeta_->path().toLocal8Bit());
  }
  ~CarpetaSesion() {
    if (carpeta_) qunsetenv("XDG_RUNTIME_DIR");
  }
  CarpetaSesion(const CarpetaSesion&) = delete;
  CarpetaSesion& operator=(const CarpetaSesion&) = delete;

 private:
  std::optional<QTemporaryDir> carpeta_;
};

}  // namespace calvento
