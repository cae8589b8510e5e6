#include "qt/vista_manual.h"

#include <algorithm>
#include <utility>

#include <QAbstractTextDocumentLayout>
#include <QDesktopServices>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QListWidget>
#include <QScrollBar>
#include <QSplitter>
#include <QStyle>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "qt/ajustes.h"
#include "qt/barra.h"
#include "qt/cadena.h"
#include "qt/texto_manual.h"

namespace calvento {

namespace {

constexpr double tamanoMenor = 7, tamanoMayor = 26;
const QString claveTamano = QStringLiteral("manual/letra");

QIcon icono(const char* nombre) { return QIcon(QStringLiteral(":/iconos/%1.pic").arg(QLatin1String(nombre))); }

/// Pictures in the pixels of the screen: the text would shrink them without smoothing.
void afinarImagenes(QTextDocument& documento, double pixelesPorPunto) {
  for (QTextBlock b = documento.begin(); b.isValid(); b = b.next())
    for (auto it = b.begin(); !it.atEnd(); ++it) {
      const QTextImageFormat f = it.fragment().charFormat().toImageFormat();
      if (!f.isValid()) continue;
      const QUrl direccion = documento.baseUrl().resolved(QUrl(f.name()));
      const QSize pixeles = (QSizeF(f.width(), f.height()) * pixelesPorPunto).toSize();
      QImage imagen = QImage(u':' + direccion.path()).scaled(pixeles, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
      imagen.setDevicePixelRatio(pixelesPorPunto);
      documento.addResource(QTextDocument::ImageResource, direccion, imagen);
    }
}

}  // namespace

VistaManual::VistaManual(QWidget* padre)
    : QWidget(padre),
      tamano_(std::clamp(ajustes().value(claveTamano, font().pointSizeF()).toDouble(), tamanoMenor, tamanoMayor)) {
  auto* barra = new QToolBar(this);
  barra->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  const auto boton = [&](const QIcon& dibujo, const char* texto, const QKeySequence& tecla,
                         void (VistaManual::*accion)()) {
    return botonDeBarra(*barra, *this, dibujo, QString::fromUtf8(texto), tecla, [this, accion] { (this->*accion)(); });
  };
  atras_ = boton(style()->standardIcon(QStyle::SP_ArrowBack), "Atrás", QKeySequence::Back, &VistaManual::atras);
  adelante_ =
      boton(style()->standardIcon(QStyle::SP_ArrowForward), "Adelante", QKeySequence::Forward, &VistaManual::adelante);
  barra->addSeparator();
  boton(icono("zoom_menos"), "Alejar", QKeySequence::ZoomOut, &VistaManual::alejar);
  boton(icono("zoom_mas"), "Acercar", QKeySequence::ZoomIn, &VistaManual::acercar);
  boton(icono("ver_todo"), "Tamaño normal", QKeySequence(Qt::CTRL | Qt::Key_0), &VistaManual::tamanoNormal);
  barra->addSeparator();
  new BarraBusqueda(*barra, *this, QStringLiteral("Buscar en el manual"),
                    [this](const QString& texto, bool haciaAtras) { return buscar(texto, haciaAtras); });
  auto* todo = new QVBoxLayout(this);
  todo->setContentsMargins(0, 0, 0, 0);
  todo->setSpacing(0);
  todo->addWidget(barra);
  todo->addWidget(cuerpo(), 1);
  componer();
  caminos_ = {0};
  recorrer(0);
}

QWidget* VistaManual::cuerpo() {
  capitulos_ = new QListWidget(this);
  capitulos_->setAccessibleName(QStringLiteral("Capítulos"));
  capitulos_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  capitulos_->setTextElideMode(Qt::ElideRight);
  capitulos_->setSpacing(1);
  connect(capitulos_, &QListWidget::currentRowChanged, this, [this](int fila) {
    if (fila >= 0) irA(titulos_[static_cast<std::size_t>(fila)].posicion);
  });
  texto_ = new QTextBrowser(this);
  texto_->setAccessibleName(QStringLiteral("Manual del usuario"));
  texto_->setOpenLinks(false);
  texto_->setFrameShape(QFrame::NoFrame);
  texto_->document()->setDocumentMargin(16);
  QPalette papel = texto_->palette();  // paper also where the desktop is dark
  papel.setColor(QPalette::Base, Qt::white);
  papel.setColor(QPalette::Text, Qt::black);
  texto_->setPalette(papel);
  connect(texto_, &QTextBrowser::anchorClicked, this, &VistaManual::seguir);
  connect(texto_->verticalScrollBar(), &QScrollBar::valueChanged, this, &VistaManual::alDesplazar);
  texto_->viewport()->installEventFilter(this);
  auto* partes = new QSplitter(this);
  partes->addWidget(capitulos_);
  partes->addWidget(texto_);
  partes->setStretchFactor(1, 1);
  partes->setSizes({270, 730});
  return partes;
}

/// Sets the text in the present size of letters.
void VistaManual::componer() {
  QFile archivo(QStringLiteral(":/manual/manual.md"));
  archivo.open(QIODevice::ReadOnly);
  acomodando_ = true;
  escribirManual(*texto_->document(), QString::fromUtf8(archivo.readAll()), QUrl(QStringLiteral("qrc:/manual/")),
                 {font().family(), tamano_, 640 * tamano_ / 10});
  afinarImagenes(*texto_->document(), devicePixelRatioF());
  acomodando_ = false;
  titulos_.clear();
  const QSignalBlocker callado(capitulos_);
  capitulos_->clear();
  conTitulos(*texto_->document(), 3, [&](QTextCursor& c, int nivel) {
    titulos_.push_back({c.block().text(), c.block().position()});
    capitulos_->addItem(QString(nivel > 2 ? 6 : 0, u' ') + titulos_.back().texto);
    capitulos_->item(capitulos_->count() - 1)->setToolTip(titulos_.back().texto);
  });
}

/// Brings that position of the text to the upper edge.
void VistaManual::colocar(int posicion) {
  arriba_ = posicion;
  const QTextDocument& d = *texto_->document();
  acomodando_ = true;
  d.documentLayout()->documentSize();
  const QTextBlock b = d.findBlock(posicion);
  const QTextLine linea = b.layout()->lineForTextPosition(posicion - b.position());
  const double y = d.documentLayout()->blockBoundingRect(b).top() + (linea.isValid() ? linea.y() : 0);
  texto_->verticalScrollBar()->setValue(posicion == 0 ? 0 : static_cast<int>(y));
  acomodando_ = false;
  marcarCapitulo();
}

void VistaManual::irA(int posicion) {
  caminos_[paso_] = arriba_;
  if (posicion != arriba_) {
    caminos_.resize(++paso_);
    caminos_.push_back(posicion);
  }
  recorrer(0);
}

void VistaManual::recorrer(int paso) {
  if (paso != 0) caminos_[paso_] = arriba_;
  paso_ = static_cast<std::size_t>(static_cast<int>(paso_) + paso);
  atras_->setEnabled(paso_ > 0);
  adelante_->setEnabled(paso_ + 1 < caminos_.size());
  colocar(caminos_[paso_]);
}

void VistaManual::abrirEn(const QString& titulo) {
  const auto it = std::find_if(titulos_.begin(), titulos_.end(), [&](const Titulo& t) { return t.texto == titulo; });
  if (it == titulos_.end()) return;
  irA(it->posicion);
  texto_->setFocus(Qt::OtherFocusReason);
}

void VistaManual::seguir(const QUrl& enlace) {
  if (enlace.hasFragment()) {
    const QString ancla = enlace.fragment(QUrl::FullyDecoded);
    const auto es = [&](const Titulo& t) { return anclaManual(t.texto) == ancla; };
    const auto it = std::find_if(titulos_.begin(), titulos_.end(), es);
    if (it != titulos_.end()) irA(it->posicion);
  } else if (enlace.scheme().startsWith(QLatin1String("http"))) {
    QDesktopServices::openUrl(enlace);
  } else if (const auto visor = visor_.lock(); visor && visor->alPedirEjemplo) {
    visor->alPedirEjemplo(deQt(QFileInfo(enlace.path()).fileName()));
  }
}

/// From what is selected, or from the upper edge; behind the last place it begins at the other end.
bool VistaManual::buscar(const QString& texto, bool haciaAtras) {
  if (texto.isEmpty()) return false;
  const QTextDocument::FindFlags como = haciaAtras ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  QTextCursor desde = texto_->textCursor();
  if (!desde.hasSelection()) desde.setPosition(arriba_);
  const QTextDocument& d = *texto_->document();
  QTextCursor hallado = d.find(texto, desde, como);
  if (hallado.isNull()) {
    QTextCursor extremo(texto_->document());
    extremo.movePosition(haciaAtras ? QTextCursor::End : QTextCursor::Start);
    hallado = d.find(texto, extremo, como);
  }
  if (hallado.isNull()) return false;
  QScrollBar& barra = *texto_->verticalScrollBar();
  const int antes = barra.value();
  texto_->setTextCursor(hallado);
  if (barra.value() != antes)  // it was out of sight: now with what stands around it
    barra.setValue(barra.value() + texto_->cursorRect().top() - texto_->viewport()->height() / 3);
  return true;
}

void VistaManual::alDesplazar() {
  if (acomodando_) return;
  arriba_ = texto_->cursorForPosition(QPoint(0, 0)).position();
  marcarCapitulo();
}

void VistaManual::marcarCapitulo() {
  const auto it = std::upper_bound(titulos_.begin(), titulos_.end(), arriba_,
                                   [](int donde, const Titulo& t) { return donde < t.posicion; });
  const QSignalBlocker callado(capitulos_);
  capitulos_->setCurrentRow(std::max(0, static_cast<int>(it - titulos_.begin()) - 1));
}

void VistaManual::aumentar(double factor) {
  tamano_ = factor == 0 ? font().pointSizeF() : std::clamp(tamano_ * factor, tamanoMenor, tamanoMayor);
  factor == 0 ? ajustes().remove(claveTamano) : ajustes().setValue(claveTamano, tamano_);
  const int antes = arriba_;
  componer();
  colocar(antes);
}

/// The place that is read stays while the width changes, and Ctrl with the wheel does what the buttons do.
bool VistaManual::eventFilter(QObject* objeto, QEvent* evento) {
  if (objeto == texto_->viewport() && evento->type() == QEvent::Resize && !acomodando_) {
    acomodando_ = true;
    QTimer::singleShot(0, this, [this] { colocar(arriba_); });
  }
  if (objeto == texto_->viewport() && evento->type() == QEvent::Wheel) {
    const auto* rueda = static_cast<QWheelEvent*>(evento);
    if (rueda->modifiers() == Qt::ControlModifier) {
      aumentar(rueda->angleDelta().y() > 0 ? 1.15 : 1 / 1.15);
      return true;
    }
  }
  return QWidget::eventFilter(objeto, evento);
}

}  // namespace calvento
