#include "qt/vista_memoria.h"

#include <functional>
#include <utility>

#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QMimeData>
#include <QPageLayout>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSplitter>
#include <QTextDocumentFragment>
#include <QToolBar>
#include <QVBoxLayout>

#include "memoria/html.h"
#include "qt/ajustes.h"
#include "qt/barra.h"
#include "qt/cadena.h"
#include "qt/escribir_memoria.h"
#include "qt/figura_memoria.h"
#include "qt/maqueta_memoria.h"
#include "qt/paginas_memoria.h"
#include "qt/pedir_archivo.h"

namespace calvento {

namespace {

constexpr double pasoAumento = 1.25;
const QString claveAumento = QStringLiteral("memoria/aumento");

void decir(QWidget* dueno, const QString& texto) {
  QMessageBox caja(QMessageBox::Warning, QStringLiteral("Calvento"), texto, QMessageBox::NoButton, dueno);
  caja.setTextFormat(Qt::PlainText);
  caja.setDefaultButton(caja.addButton(QStringLiteral("Aceptar"), QMessageBox::AcceptRole));
  caja.exec();
}

}  // namespace

VistaMemoria::VistaMemoria(QWidget* padre) : QWidget(padre) {
  auto* barra = new QToolBar(this);
  const auto boton = [&](const char* icono, const QString& texto, const QKeySequence& tecla,
                         std::function<void()> accion) {
    botonDeBarra(*barra, *this, QIcon(QStringLiteral(":/iconos/%1.pic").arg(QLatin1String(icono))), texto, tecla,
                 std::move(accion));
  };
  barra->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  boton("guardar", QStringLiteral("Guardar como..."), QKeySequence::Save, [this] { guardarComo(); });
  boton("imprimir", QStringLiteral("Imprimir"), QKeySequence::Print, [this] { imprimir(); });
  boton("copiar", QStringLiteral("Copiar"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C), [this] { copiar(); });
  barra->addSeparator();
  boton("zoom_menos", QStringLiteral("Alejar"), QKeySequence::ZoomOut,
        [this] { paginas_->ponerAumento(paginas_->aumento() / pasoAumento); });
  boton("zoom_mas", QStringLiteral("Acercar"), QKeySequence::ZoomIn,
        [this] { paginas_->ponerAumento(paginas_->aumento() * pasoAumento); });
  boton("ver_todo", QStringLiteral("Ancho de página"), QKeySequence(Qt::CTRL | Qt::Key_0),
        [this] { paginas_->alAncho(); });
  barra->addSeparator();
  new BarraBusqueda(*barra, *this, QStringLiteral("Buscar en la memoria"),
                    [this](const QString& texto, bool haciaAtras) { return buscar(texto, haciaAtras); });

  capitulos_ = new QListWidget(this);
  capitulos_->setAccessibleName(QStringLiteral("Capítulos"));
  capitulos_->setWordWrap(true);
  capitulos_->setResizeMode(QListView::Adjust);
  capitulos_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(capitulos_, &QListWidget::currentRowChanged, this, [this](int fila) { irACapitulo(fila); });
  auto* caratula = new QGroupBox(QStringLiteral("Carátula"), this);
  auto* campos = new QFormLayout(caratula);
  campos->setRowWrapPolicy(QFormLayout::WrapAllRows);
  QSettings guardado = ajustes();
  const auto campo = [&](const QString& rotulo, const char* clave) {
    auto* c = new QLineEdit(guardado.value(QStringLiteral("memoria/") + QLatin1String(clave)).toString(), caratula);
    c->setAccessibleName(rotulo);
    campos->addRow(rotulo + u':', c);
    connect(c, &QLineEdit::editingFinished, this, [this] { guardarPortada(); });
    return c;
  };
  obra_ = campo(QStringLiteral("Obra"), "obra");
  ubicacion_ = campo(QStringLiteral("Ubicación"), "ubicacion");
  proyectista_ = campo(QStringLiteral("Proyectista"), "proyectista");
  revision_ = campo(QStringLiteral("Revisión"), "revision");

  paginas_ = new PaginasMemoria(this);
  paginas_->alPasarPagina = [this](int p) { alPasarPagina(p); };
  if (const double aumento = guardado.value(claveAumento).toDouble(); aumento > 0) paginas_->ponerAumento(aumento);
  paginas_->alAumentar = [this] {
    QSettings a = ajustes();
    paginas_->estaAlAncho() ? a.remove(claveAumento) : a.setValue(claveAumento, paginas_->aumento());
  };
  auto* lado = new QWidget(this);
  auto* columna = new QVBoxLayout(lado);
  columna->setContentsMargins(4, 4, 0, 4);
  columna->addWidget(capitulos_, 1);
  columna->addWidget(caratula);
  auto* partes = new QSplitter(this);
  partes->addWidget(lado);
  partes->addWidget(paginas_);
  partes->setStretchFactor(1, 1);
  partes->setSizes({230, 770});
  auto* todo = new QVBoxLayout(this);
  todo->setContentsMargins(0, 0, 0, 0);
  todo->setSpacing(0);
  todo->addWidget(barra);
  todo->addWidget(partes, 1);
}

VistaMemoria::~VistaMemoria() { paginas_->mostrar(nullptr); }

void VistaMemoria::mostrar(VisorMemoria& visor) { visor_ = visor.vinculo(); }

Portada VistaMemoria::portada() const {
  const auto texto = [](const QLineEdit* c) { return deQt(c->text().trimmed()); };
  return {texto(obra_), texto(ubicacion_), texto(proyectista_), texto(revision_), fechaDeHoy()};
}

void VistaMemoria::guardarPortada() {
  QSettings a = ajustes();
  bool cambio = false;
  for (const auto& [clave, campo] :
       {std::pair{"memoria/obra", obra_}, std::pair{"memoria/ubicacion", ubicacion_},
        std::pair{"memoria/proyectista", proyectista_}, std::pair{"memoria/revision", revision_}}) {
    if (a.value(QLatin1String(clave)).toString() == campo->text()) continue;
    a.setValue(QLatin1String(clave), campo->text());
    cambio = true;
  }
  if (cambio) refrescar();
}

void VistaMemoria::refrescar() {
  const auto visor = visor_.lock();
  if (!visor || !visor->redactar) return;
  const int antes = paginas_->pagina();
  paginas_->mostrar(nullptr);
  maqueta_.reset();
  documento_ = std::make_unique<Documento>(visor->redactar(portada()));
  maqueta_ = std::make_unique<MaquetaMemoria>(*documento_);
  {
    const QSignalBlocker callado(capitulos_);
    const int fila = std::max(capitulos_->currentRow(), 0);
    capitulos_->clear();
    capitulos_->addItem(QStringLiteral("Carátula"));
    for (std::size_t i = 0; i < documento_->capitulos.size(); ++i) {
      const bool ultimo = i + 1 == documento_->capitulos.size();
      capitulos_->addItem((ultimo ? QString() : QStringLiteral("%1. ").arg(i + 1)) +
                          aQt(documento_->capitulos[i].titulo));
    }
    capitulos_->setCurrentRow(std::min(fila, capitulos_->count() - 1));
  }
  paginas_->mostrar(maqueta_.get());
  paginas_->irA(std::min(antes, maqueta_->paginas() - 1));
  const std::string pedido = std::exchange(visor->capitulo, {});
  for (std::size_t i = 0; i < documento_->capitulos.size(); ++i)
    if (!pedido.empty() && documento_->capitulos[i].titulo == pedido) irACapitulo(static_cast<int>(i) + 1);
}

void VistaMemoria::irACapitulo(int fila) {
  if (!maqueta_ || fila < 0) return;
  paginas_->irA(fila == 0 ? 0 : maqueta_->paginaDe(static_cast<std::size_t>(fila - 1)));
  const QSignalBlocker callado(capitulos_);
  capitulos_->setCurrentRow(fila);
}

void VistaMemoria::alPasarPagina(int pagina) {
  if (!maqueta_ || capitulos_->hasFocus()) return;
  int fila = 0;
  for (std::size_t i = 0; i < documento_->capitulos.size(); ++i)
    if (maqueta_->paginaDe(i) <= pagina) fila = static_cast<int>(i) + 1;
  const QSignalBlocker callado(capitulos_);
  capitulos_->setCurrentRow(pagina == 0 ? 0 : fila);
}

bool VistaMemoria::buscar(const QString& texto, bool haciaAtras) {
  if (!maqueta_) return false;
  const int pagina = maqueta_->buscar(texto, haciaAtras);
  if (pagina >= 0) paginas_->irA(pagina);
  paginas_->viewport()->update();
  return pagina >= 0;
}

void VistaMemoria::guardarComo() {
  const auto visor = visor_.lock();
  if (!visor || !documento_) return;
  const QString archivo = pedirArchivo(*this, QStringLiteral("Guardar la memoria de cálculo"),
                                       {QStringLiteral("PDF (*.pdf)"), QStringLiteral("Página HTML (*.html)"),
                                        QStringLiteral("Texto de OpenDocument (*.odt)")},
                                       aQt(visor->sugerido));
  if (!archivo.isEmpty()) guardar(archivo);
}

void VistaMemoria::guardar(const QString& archivo) {
  guardarPortada();
  if (!documento_) return;
  try {
    escribirMemoria(*documento_, deQt(archivo));
  } catch (const std::exception& fallo) {
    decir(this, aQt(fallo.what()));
  }
}

void VistaMemoria::imprimir() {
  guardarPortada();
  if (!maqueta_) return;
  QPrinter impresora(QPrinter::HighResolution);
  impresora.setPageSize(QPageSize(QPageSize::A4));
  impresora.setFullPage(true);
  impresora.setDocName(aQt(documento_->titulo));
  // the preview has the system's dialog behind its print button
  QPrintPreviewDialog vista(&impresora, this);
  vista.setWindowTitle(QStringLiteral("Imprimir la memoria de cálculo"));
  vista.resize(900, 700);
  connect(&vista, &QPrintPreviewDialog::paintRequested, this, [this](QPrinter* p) { maqueta_->imprimir(*p); });
  vista.exec();
}

void VistaMemoria::copiar() {
  if (!documento_) return;
  FormaHtml forma;
  forma.figura = [](const Figura&) { return std::string(); };
  auto datos = std::make_unique<QMimeData>();
  const QString html = aQt(comoHtml(*documento_, forma));
  datos->setHtml(html);
  datos->setText(QTextDocumentFragment::fromHtml(html).toPlainText());
  QGuiApplication::clipboard()->setMimeData(datos.release());
}

}  // namespace calvento
