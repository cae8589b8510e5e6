#pragma once

#include <string>

#include <QString>

namespace calvento {

inline QString aQt(const std::string& utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}
inline std::string deQt(const QString& s) { return s.toUtf8().toStdString(); }

}  // namespace calvento
