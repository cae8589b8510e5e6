#include "qt/ejemplos.h"

#include <utility>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QMap>
#include <QMenu>
#include <QRegularExpression>

#include "modelo/archivo_proyecto.h"

namespace calvento {

namespace {

/// Beside the program, in the share of its prefix, or in one of the folders above a program that was just built.
QDir carpetaEjemplos() {
  QDir d(QCoreApplication::applicationDirPath());
  for (const char* lugar :
       {"ejemplos", "../share/calvento/ejemplos", "../ejemplos", "../../ejemplos", "../../../ejemplos"})
    if (d.exists(QLatin1String(lugar) + QStringLiteral("/LEEME.md"))) return QDir(d.filePath(QLatin1String(lugar)));
  return QDir(QStringLiteral(":/ninguno"));
}

/// What the examples show, by their names: the last column of the tables in the text beside them.
QMap<QString, QString> descripciones(const QDir& carpeta) {
  static const QRegularExpression fila(QStringLiteral(R"(^\| \[`([^`]+)`\].*\| ([^|]+) \|$)")),
      enlace(QStringLiteral(R"(\[([^\]]*)\]\([^)]*\))"));
  QMap<QString, QString> todas;
  QFile texto(carpeta.filePath(QStringLiteral("LEEME.md")));
  if (!texto.open(QIODevice::ReadOnly)) return todas;
  for (const QString& renglon : QString::fromUtf8(texto.readAll()).split(u'\n'))
    if (const auto m = fila.match(renglon); m.hasMatch())
      todas[m.captured(1)] = m.captured(2).replace(enlace, QStringLiteral("\\1")).remove(u'*');
  return todas;
}

/// The number of the example and what it shows, in short.
QString rotulo(const QString& archivo, const QString& descripcion) {
  static const QRegularExpression fin(QStringLiteral("[:;]"));
  const QString nombre = archivo.section(u'.', 0, 0);
  const QString corto = descripcion.section(fin, 0, 0);
  return QString(corto.isEmpty() ? nombre : nombre.section(u'-', 0, 0) + QStringLiteral("  ") + corto)
      .replace(u'&', QLatin1String("&&"));
}

}  // namespace

QString rutaEjemplo(const QString& nombre) {
  const QDir carpeta = carpetaEjemplos();
  return carpeta.exists(nombre) ? carpeta.absoluteFilePath(nombre) : QString();
}

void anadirEjemplos(QMenu& archivo, const FormatoProyecto& formato, std::function<void(const QString& ruta)> abrir) {
  QMenu* menu = archivo.addMenu(QStringLiteral("&Ejemplos"));
  menu->setToolTipsVisible(true);
  const QString patron =
      QStringLiteral("*.") + QLatin1String(formato.extension.data(), static_cast<qsizetype>(formato.extension.size()));
  QObject::connect(menu, &QMenu::aboutToShow, menu, [menu, patron, abrir = std::move(abrir)] {
    if (!menu->isEmpty()) return;
    const QDir carpeta = carpetaEjemplos();
    const QMap<QString, QString> textos = descripciones(carpeta);
    for (const QString& nombre : carpeta.entryList({patron}, QDir::Files, QDir::Name)) {
      const QString ruta = carpeta.absoluteFilePath(nombre);
      menu->addAction(rotulo(nombre, textos[nombre]), menu, [abrir, ruta] { abrir(ruta); })->setToolTip(textos[nombre]);
    }
    if (menu->isEmpty()) menu->addAction(QStringLiteral("(no están instalados)"))->setEnabled(false);
  });
}

}  // namespace calvento
