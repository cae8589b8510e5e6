#pragma once

#include <functional>

#include <QColor>
#include <QString>
#include <QUrl>

class QTextCursor;
class QTextDocument;

namespace calvento {

/// How the manual is set: by the program for its reader, and while building for paper and the web.
struct FormaManual {
  QString letra = QStringLiteral("Liberation Sans");
  double tamano = 10;  ///< of the text, points; headings and distances follow it
  double ancho = 720;  ///< no picture is wider, pixels of 96 to the inch
};

inline const QColor azulManual(0x1f, 0x4e, 0x79);
inline const QColor rayaManual(0xb8, 0xc4, 0xd0);

/// Lengths of formats are pixels of 96 to the inch, whatever the device of the document is.
inline constexpr double puntoManual = 96.0 / 72;

/// Lays the manual out in the document: dark on a light ground. Pictures are looked for from `base`, the address of the
/// text; fails with std::runtime_error where one is missing.
void escribirManual(QTextDocument& documento, const QString& markdown, const QUrl& base, const FormaManual& forma);

/// The name that links to a heading use: lower case, signs dropped, blanks as hyphens.
QString anclaManual(const QString& titulo);

/// Every heading of this level or a higher one, selected, with its level.
void conTitulos(QTextDocument& documento, int nivel, const std::function<void(QTextCursor&, int)>& hacer);

}  // namespace calvento
