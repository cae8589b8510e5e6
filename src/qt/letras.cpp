#include "qt/letras.h"

#include <QCoreApplication>
#include <QDir>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>

#ifdef _WIN32
#include <string>
#include <windows.h>
#endif

namespace calvento {

namespace {

/// Only on Windows do the letters travel with the program; elsewhere a package brings them.
QString carpetaLetras() {
#ifdef _WIN32
  std::wstring programa(32768, L'\0');
  programa.resize(::GetModuleFileNameW(nullptr, programa.data(), static_cast<DWORD>(programa.size())));
  const QDir carpeta(QFileInfo(QString::fromStdWString(programa)).absolutePath() + QStringLiteral("/letras"));
  return carpeta.exists() ? carpeta.absolutePath() : QString();
#else
  return {};
#endif
}

}  // namespace

void anunciarLetras() {
  const QString carpeta = carpetaLetras();
  if (!carpeta.isEmpty() && !qEnvironmentVariableIsSet("QT_QPA_FONTDIR"))
    qputenv("QT_QPA_FONTDIR", QDir::toNativeSeparators(carpeta).toUtf8());
}

void cargarLetras() {
  const QString carpeta = carpetaLetras();
  if (carpeta.isEmpty()) return;
  for (const QFileInfo& f : QDir(carpeta).entryInfoList({QStringLiteral("*.ttf")}))
    QFontDatabase::addApplicationFont(f.absoluteFilePath());
  QFont letra = QGuiApplication::font();
  if (QFontInfo(letra).family().compare(letra.family(), Qt::CaseInsensitive) == 0) return;
  for (const char* hay : {"Segoe UI", "Tahoma", "Arial", "Liberation Sans"})
    if (QFontDatabase::hasFamily(QString::fromLatin1(hay))) {
      letra.setFamily(QString::fromLatin1(hay));
      QGuiApplication::setFont(letra);
      return;
    }
}

}  // namespace calvento
