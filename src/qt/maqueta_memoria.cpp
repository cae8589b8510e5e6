#include "qt/maqueta_memoria.h"

#include <cmath>
#include <cstring>

#include <QAbstractTextDocumentLayout>
#include <QFont>
#include <QImage>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextObjectInterface>
#include <QTextTable>

#include "memoria/html.h"
#include "qt/cadena.h"
#include "qt/figura_memoria.h"
#include "qt/paginacion.h"

namespace calvento {

namespace {

constexpr double anchoA4 = 210, altoA4 = 297;
constexpr double izquierda = 22, derecha = 18, arriba = 24, abajo = 20;
constexpr double anchoTexto = anchoA4 - izquierda - derecha, altoTexto = altoA4 - arriba - abajo;
/// The layout is made fine enough that letters keep their widths on any device.
constexpr int finura = 600;
constexpr double puntosPorMm = finura / 25.4;

/// A device whose only use is its resolution.
QImage& regla() {
  static QImage imagen = [] {
    QImage i(1, 1, QImage::Format_RGB32);
    i.setDotsPerMeterX(static_cast<int>(std::lround(finura / 0.0254)));
    i.setDotsPerMeterY(static_cast<int>(std::lround(finura / 0.0254)));
    return i;
  }();
  return imagen;
}

/// Puts the pictures into the text as they are, not as dots. The name of an image is its number.
class Figuras : public QObject, public QTextObjectInterface {
 public:
  explicit Figuras(const std::vector<const Figura*>& todas) : todas_(todas) {}
  QSizeF intrinsicSize(QTextDocument*, int, const QTextFormat& formato) override {
    const Figura* f = figura(formato);
    return f == nullptr ? QSizeF() : tamanoFigura(*f) * puntosPorMm;
  }
  void drawObject(QPainter* pintor, const QRectF& lugar, QTextDocument*, int, const QTextFormat& formato) override {
    if (const Figura* f = figura(formato)) pintarFigura(*f, *pintor, lugar);
  }
  /// What the compiler of meta-objects would write for the interface.
  void* qt_metacast(const char* clase) override {
    if (std::strcmp(clase, qobject_interface_iid<QTextObjectInterface*>()) == 0)
      return static_cast<QTextObjectInterface*>(this);
    return QObject::qt_metacast(clase);
  }

 private:
  const Figura* figura(const QTextFormat& formato) const {
    const auto i = formato.toImageFormat().name().toULongLong();
    return i < todas_.size() ? todas_[i] : nullptr;
  }
  const std::vector<const Figura*>& todas_;
};

/// Thin grey lines in the tables, and headings that come again on each page.
void vestirTablas(QTextFrame* marco) {
  for (QTextFrame* hijo : marco->childFrames()) {
    if (auto* tabla = qobject_cast<QTextTable*>(hijo)) {
      QTextTableFormat f = tabla->format();
      if (f.border() > 0) {
        f.setBorder(0.5);
        f.setBorderBrush(QColor(0x9f, 0xb0, 0xc0));
        f.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        f.setBorderCollapse(true);
        tabla->setFormat(f);
      }
    }
    vestirTablas(hijo);
  }
}

}  // namespace

struct MaquetaMemoria::Parte {
  explicit Parte(const std::vector<const Figura*>& todas) : figuras(todas) {}
  QTextDocument doc;
  Figuras figuras;
  std::size_t desde = 0, hasta = 0;  ///< its chapters
};

MaquetaMemoria::MaquetaMemoria(const Documento& documento) : documento_(&documento) { componer(); }
MaquetaMemoria::~MaquetaMemoria() { hallado_ = {}; }

void MaquetaMemoria::anadirTexto(const std::string& html, std::size_t desde, std::size_t hasta) {
  auto p = std::make_unique<Parte>(figuras_);
  p->desde = desde;
  p->hasta = hasta;
  QTextDocument& doc = p->doc;
  doc.setUndoRedoEnabled(false);
  doc.setDocumentMargin(0);
  doc.setUseDesignMetrics(true);
  doc.documentLayout()->setPaintDevice(&regla());
  doc.documentLayout()->registerHandler(QTextFormat::ImageObject, &p->figuras);
  doc.setHtml(aQt(html));
  vestirTablas(doc.rootFrame());
  doc.setPageSize(QSizeF(anchoTexto, altoTexto) * puntosPorMm);
  doc.markContentsDirty(0, doc.characterCount());
  repartirEnPaginas(doc);
  for (int i = 0; i < doc.pageCount(); ++i) hojas_.push_back({static_cast<int>(partes_.size()), i, nullptr, {}});
  partes_.push_back(std::move(p));
}

void MaquetaMemoria::componer() {
  const Documento& d = *documento_;
  for (const Capitulo& c : d.capitulos)
    for (const Apartado& a : c.apartados)
      for (const Bloque& b : a.bloques)
        if (const auto* f = std::get_if<Figura>(&b)) figuras_.push_back(f);
  FormaHtml forma;
  forma.figura = [this](const Figura& f) {
    const auto i = std::find(figuras_.begin(), figuras_.end(), &f) - figuras_.begin();
    return "<img src=\"" + std::to_string(i) + "\"/>";
  };
  const auto deLaminas = [](const Capitulo& c) {
    for (const Apartado& a : c.apartados)
      for (const Bloque& b : a.bloques)
        if (const auto* f = std::get_if<Figura>(&b); f != nullptr && f->lamina) return true;
    return false;
  };
  const auto conCabeza = [&](const std::string& cuerpo) {
    return cabezaHtml(d, false) + cuerpo + std::string(pieHtml);
  };

  inicios_.assign(d.capitulos.size(), 0);
  anadirTexto(conCabeza(portadaHtml(d, [](std::size_t) { return "000"; })), 0, 0);
  for (std::size_t i = 0; i < d.capitulos.size();) {
    if (deLaminas(d.capitulos[i])) {
      inicios_[i] = paginas();
      for (const Apartado& a : d.capitulos[i].apartados)
        for (const Bloque& b : a.bloques)
          if (const auto* f = std::get_if<Figura>(&b))
            hojas_.push_back({-1, 0, f,
                              QString::number(i + 1) + QStringLiteral(". ") + aQt(d.capitulos[i].titulo) +
                                  QStringLiteral(" – ") + aQt(f->titulo)});
      ++i;
      continue;
    }
    std::size_t fin = i;
    std::string cuerpo;
    while (fin < d.capitulos.size() && !deLaminas(d.capitulos[fin])) cuerpo += capituloHtml(d, fin++, forma);
    const int primera = paginas();
    anadirTexto(conCabeza(cuerpo), i, fin);
    const QTextDocument& doc = partes_.back()->doc;
    std::size_t capitulo = i;
    for (QTextBlock b = doc.begin(); b.isValid() && capitulo < fin; b = b.next())
      if (b.blockFormat().headingLevel() == 1) inicios_[capitulo++] = primera + paginaDeBloque(doc, b);
    i = fin;
  }
  partes_.front()->doc.setHtml(
      aQt(conCabeza(portadaHtml(d, [this](std::size_t i) { return std::to_string(inicios_[i] + 1); }))));
}

QSizeF MaquetaMemoria::tamanoMm(int pagina) const {
  const Figura* f = hojas_.at(static_cast<std::size_t>(pagina)).figura;
  return f != nullptr && f->apaisada ? QSizeF(altoA4, anchoA4) : QSizeF(anchoA4, altoA4);
}

void MaquetaMemoria::pintarTexto(QPainter& pintor, const Hoja& hoja) const {
  const Parte& parte = *partes_[static_cast<std::size_t>(hoja.parte)];
  const double alto = parte.doc.pageSize().height();
  pintor.save();
  pintor.translate(izquierda, arriba);
  pintor.scale(1 / puntosPorMm, 1 / puntosPorMm);
  pintor.translate(0, -hoja.enParte * alto);
  QAbstractTextDocumentLayout::PaintContext contexto;
  contexto.palette.setColor(QPalette::Text, Qt::black);
  // a hair less than the page: a line that begins where the page ends would be in the file twice, once unseen
  contexto.clip = QRectF(0, hoja.enParte * alto, parte.doc.pageSize().width(), alto).adjusted(0, 1, 0, -1);
  pintor.setClipRect(contexto.clip, Qt::IntersectClip);
  if (hoja.parte == parteHallada_ && hallado_.hasSelection()) {
    QTextCharFormat marca;
    marca.setBackground(QColor(255, 214, 92));
    contexto.selections.append({hallado_, marca});
  }
  parte.doc.documentLayout()->draw(&pintor, contexto);
  pintor.restore();
}

void MaquetaMemoria::pintar(QPainter& pintor, int pagina, const QRectF& destino) const {
  const Hoja& hoja = hojas_.at(static_cast<std::size_t>(pagina));
  const QSizeF mm = tamanoMm(pagina);
  pintor.save();
  pintor.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  pintor.setClipRect(destino, Qt::IntersectClip);
  pintor.translate(destino.topLeft());
  pintor.scale(destino.width() / mm.width(), destino.height() / mm.height());
  // letters in mm would be rounded to whole pixels: they are made large and shrunk
  const auto escribir = [&](const QRectF& r, Qt::Alignment como, const QString& texto, double cuerpo, bool negrita) {
    pintor.save();
    constexpr double hecha = 40;
    QFont letra(QStringLiteral("Liberation Sans"));
    letra.setPixelSize(static_cast<int>(hecha));
    letra.setBold(negrita);
    letra.setHintingPreference(QFont::PreferNoHinting);
    pintor.setFont(letra);
    pintor.translate(r.topLeft());
    pintor.scale(cuerpo / hecha, cuerpo / hecha);
    pintor.drawText(QRectF(0, 0, r.width() * hecha / cuerpo, r.height() * hecha / cuerpo), static_cast<int>(como),
                    texto);
    pintor.restore();
  };
  if (hoja.figura != nullptr) {
    pintor.setPen(QColor(0x17, 0x46, 0x6f));
    escribir(QRectF(izquierda, 13, mm.width() - izquierda - derecha, 8), Qt::AlignLeft | Qt::AlignVCenter, hoja.titulo,
             4.6, true);
    const double lado = 2 * arriba - 26;
    pintarFigura(*hoja.figura, pintor, QRectF(20, lado, mm.width() - 40, mm.height() - lado - 18));
  } else {
    pintarTexto(pintor, hoja);
  }
  if (pagina > 0) {
    pintor.setPen(QColor(0x55, 0x55, 0x55));
    const double ancho = mm.width() - izquierda - derecha;
    escribir(QRectF(izquierda, 7, ancho, 5), Qt::AlignLeft | Qt::AlignVCenter,
             aQt(documento_->titulo + " – " + documento_->estructura + " – " + documento_->proyecto), 2.9, false);
    escribir(QRectF(izquierda, mm.height() - 13, ancho, 5), Qt::AlignLeft | Qt::AlignVCenter,
             aQt(programaYVersion() + (documento_->portada.fecha.empty() ? "" : " – " + documento_->portada.fecha)),
             2.9, false);
    escribir(QRectF(izquierda, mm.height() - 13, ancho, 5), Qt::AlignRight | Qt::AlignVCenter,
             QStringLiteral("Página %1 de %2").arg(pagina + 1).arg(paginas()), 2.9, false);
    pintor.setPen(QPen(QColor(0xbb, 0xbb, 0xbb), 0.2));
    pintor.drawLine(QPointF(izquierda, 12.5), QPointF(izquierda + ancho, 12.5));
  }
  pintor.restore();
}

int MaquetaMemoria::buscar(const QString& texto, bool haciaAtras) {
  if (texto.isEmpty()) {
    hallado_ = {};
    parteHallada_ = -1;
    return -1;
  }
  const int n = static_cast<int>(partes_.size());
  const auto modo = haciaAtras ? QTextDocument::FindBackward : QTextDocument::FindFlag(0);
  int parte = parteHallada_ < 0 ? (haciaAtras ? n - 1 : 0) : parteHallada_;
  QTextCursor desde = parteHallada_ < 0 ? QTextCursor() : hallado_;
  for (int i = 0; i <= n; ++i) {
    QTextDocument& doc = partes_[static_cast<std::size_t>(parte)]->doc;
    if (desde.isNull()) {
      desde = QTextCursor(&doc);
      if (haciaAtras) desde.movePosition(QTextCursor::End);
    }
    const QTextCursor c = doc.find(texto, desde, modo);
    if (!c.isNull()) {
      parteHallada_ = parte;
      hallado_ = c;
      QTextCursor principio(c);
      principio.setPosition(c.selectionStart());
      const int enParte = paginaDeBloque(doc, principio.block());
      for (std::size_t h = 0; h < hojas_.size(); ++h)
        if (hojas_[h].parte == parte && hojas_[h].enParte == enParte) return static_cast<int>(h);
    }
    parte = (parte + (haciaAtras ? n - 1 : 1)) % n;
    desde = {};
  }
  hallado_ = {};
  parteHallada_ = -1;
  return -1;
}

bool MaquetaMemoria::escribirPdf(QIODevice& salida) const {
  QPdfWriter escritor(&salida);
  escritor.setCreator(aQt(programaYVersion()));
  escritor.setTitle(aQt(documento_->titulo + " - " + documento_->proyecto));
  escritor.setResolution(1200);
  QPainter pintor;
  for (int i = 0; i < paginas(); ++i) {
    const bool apaisada = tamanoMm(i).width() > tamanoMm(i).height();
    escritor.setPageLayout(
        QPageLayout(QPageSize(QPageSize::A4), apaisada ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()));
    if (i == 0 ? !pintor.begin(&escritor) : !escritor.newPage()) return false;
    pintar(pintor, i, QRectF(QPointF(0, 0), tamanoMm(i) * 1200 / 25.4));
  }
  return pintor.end();
}

bool MaquetaMemoria::imprimir(QPrinter& impresora) const {
  QPainter pintor;
  if (!pintor.begin(&impresora)) return false;
  const int primera = std::max(1, impresora.fromPage());
  const int ultima = impresora.toPage() > 0 ? std::min(impresora.toPage(), paginas()) : paginas();
  for (int i = primera - 1; i < ultima; ++i) {
    if (i >= primera && !impresora.newPage()) return false;
    const QRectF papel = impresora.paperRect(QPrinter::DevicePixel);
    const QRectF util = impresora.pageRect(QPrinter::DevicePixel);
    pintor.save();
    pintor.translate(-util.topLeft());
    if (tamanoMm(i).width() > tamanoMm(i).height()) {
      pintor.translate(papel.width(), 0);
      pintor.rotate(90);
      pintar(pintor, i, QRectF(0, 0, papel.height(), papel.width()));
    } else {
      pintar(pintor, i, QRectF(QPointF(0, 0), papel.size()));
    }
    pintor.restore();
  }
  return pintor.end();
}

}  // namespace calvento
