#include "qt/letras.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>
#include <QFontInfo>

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

/// For a class of widgets, "" for those of no such class, null where there are no widgets at all.
void ponerLetra(const char* clase) {
  const bool general = clase == nullptr || *clase == '\0';
  QFont letra = general ? QGuiApplication::font() : QApplication::font(clase);
  if (QFontInfo(letra).family().compare(letra.family(), Qt::CaseInsensitive) == 0) return;
  for (const char* hay : {"Segoe UI", "Tahoma", "Arial", "Liberation Sans"})
    if (QFontDatabase::hasFamily(QString::fromLatin1(hay))) {
      letra.setFamily(QString::fromLatin1(hay));
      if (clase == nullptr) return QGuiApplication::setFont(letra);
      return QApplication::setFont(letra, general ? nullptr : clase);
    }
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
  // what no font there is called, the sketches', and what may be missing
  for (const char* nombre : {"sans-serif", "Arial", "Courier New"})
    QFont::insertSubstitutions(QString::fromLatin1(nombre),
                               {QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
  if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) return ponerLetra(nullptr);
  // Windows names letters of their own for these
  for (const char* clase : {"", "QMenu", "QMenuBar", "QStatusBar", "QMessageBox", "QTipLabel", "QMdiSubWindowTitleBar",
                            "QHeaderView", "QAbstractItemView"})
    ponerLetra(clase);
}

}  // namespace calvento
