#pragma once

#include <memory>
#include <vector>

#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QTextCursor>

#include "memoria/documento.h"

class QPainter;
class QPagedPaintDevice;
class QPrinter;
class QTextDocument;

namespace calvento {

/// The report laid out on sheets of A4: cover with the list of chapters, text with header and page number, drawings on
/// sheets of their own, which lie where they are wide. Everything stays lines and texts.
class MaquetaMemoria {
 public:
  explicit MaquetaMemoria(const Documento& documento);
  ~MaquetaMemoria();

  int paginas() const { return static_cast<int>(hojas_.size()); }
  QSizeF tamanoMm(int pagina) const;
  /// On which page a chapter begins, from 0.
  int paginaDe(std::size_t capitulo) const { return inicios_.at(capitulo); }
  const Documento& documento() const { return *documento_; }

  /// Paints a page into a rectangle of the page's proportions.
  void pintar(QPainter& pintor, int pagina, const QRectF& destino) const;

  /// Where a text stands next: searches from the last place found on, from the start again at the end. The page, or -1
  /// where it stands nowhere. What was found is painted marked.
  int buscar(const QString& texto, bool haciaAtras = false);

  /// All pages to a file or a printer. On a printer lying pages are turned, for its sheets all stand.
  bool escribirPdf(QIODevice& salida) const;
  bool imprimir(QPrinter& impresora) const;

 private:
  struct Parte;
  struct Hoja {
    int parte = -1;   ///< text, or
    int enParte = 0;  ///< its page of it
    const Figura* figura = nullptr;
    QString titulo;
  };
  void componer();
  void anadirTexto(const std::string& html, std::size_t desde, std::size_t hasta);
  void pintarTexto(QPainter& pintor, const Hoja& hoja) const;

  const Documento* documento_;
  std::vector<std::unique_ptr<Parte>> partes_;
  std::vector<Hoja> hojas_;
  std::vector<int> inicios_;
  std::vector<const Figura*> figuras_;
  int parteHallada_ = -1;
  QTextCursor hallado_;
};

}  // namespace calvento
