#include "qt/vista_estudio.h"

#include <algorithm>
#include <chrono>

#include <QClipboard>
#include <QComboBox>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include "comun/fallo.h"
#include "estudio/buscar.h"
#include "modelo/guardado.h"
#include "modelo/rutas.h"
#include "qt/ajustes.h"
#include "qt/cadena.h"
#include "qt/curva_estudio.h"
#include "qt/entrada_estudio.h"
#include "qt/modelo_estudio.h"
#include "qt/pedir_archivo.h"

namespace calvento {

namespace {

constexpr std::chrono::milliseconds rebanada{30};  // of calculating between two looks at the user's events
constexpr qint64 plazoBusqueda = 5000;             // ms

QPushButton* boton(QWidget& dueno, const QString& texto, QBoxLayout& en) {
  auto* b = new QPushButton(texto, &dueno);
  b->setAutoDefault(true);
  en.addWidget(b);
  return b;
}

}  // namespace

VistaEstudio::VistaEstudio(QWidget* padre) : QWidget(padre), modelo_(new ModeloEstudio(this)) {
  auto* todo = new QVBoxLayout(this);
  todo->addWidget(hacerEntradas());
  aviso_ = new QLabel(this);
  aviso_->setWordWrap(true);
  aviso_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  todo->addWidget(aviso_);
  auto* partes = new QSplitter(this);
  partes->addWidget(hacerTabla());
  partes->addWidget(hacerCurva());
  partes->setChildrenCollapsible(false);
  partes->setStretchFactor(0, 3);
  partes->setStretchFactor(1, 2);
  todo->addWidget(partes, 1);
  connect(&turno_, &QTimer::timeout, this, &VistaEstudio::seguir);
}

VistaEstudio::~VistaEstudio() { modelo_->mostrar(nullptr); }

// Alt with D, U and V opens the menus of the main window
QWidget* VistaEstudio::hacerEntradas() {
  auto* arriba = new QWidget(this);
  auto* malla = new QGridLayout(arriba);
  malla->setContentsMargins(0, 0, 0, 0);
  primera_ = std::make_unique<EntradaEstudio>(*arriba, *malla, 0, QStringLiteral("Va&ría:"), false);
  segunda_ = std::make_unique<EntradaEstudio>(*arriba, *malla, 1, QStringLiteral("y &también:"), true);
  primera_->tecleado = segunda_->tecleado = [this](const Entrada& e) {
    const auto visor = visor_.lock();
    const auto diseno = visor && visor->base ? visor->base() : std::nullopt;
    return diseno ? valorDe(*diseno, e) : std::string();
  };
  auto* derecha = new QVBoxLayout;
  calcular_ = boton(*arriba, QStringLiteral("C&alcular"), *derecha);
  detener_ = boton(*arriba, QStringLiteral("Dete&ner"), *derecha);
  detener_->setEnabled(false);
  malla->addLayout(derecha, 0, 8, 2, 1);
  progreso_ = new QProgressBar(arriba);
  progreso_->setVisible(false);
  malla->addWidget(progreso_, 2, 0, 1, 9);
  connect(calcular_, &QPushButton::clicked, this, &VistaEstudio::calcular);
  connect(detener_, &QPushButton::clicked, this, &VistaEstudio::detener);
  for (auto* campo : arriba->findChildren<QLineEdit*>())
    connect(campo, &QLineEdit::returnPressed, this, &VistaEstudio::calcular);
  return arriba;
}

QWidget* VistaEstudio::hacerTabla() {
  auto* lado = new QWidget(this);
  auto* columna = new QVBoxLayout(lado);
  columna->setContentsMargins(0, 0, 0, 0);
  tabla_ = new QTableView(lado);
  tabla_->setModel(modelo_);
  tabla_->setAccessibleName(QStringLiteral("Diseños del estudio"));
  tabla_->setSelectionBehavior(QAbstractItemView::SelectRows);
  tabla_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tabla_->setTabKeyNavigation(false);
  tabla_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  tabla_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  tabla_->setSortingEnabled(true);
  columna->addWidget(tabla_, 1);
  auto* botones = new QHBoxLayout;
  usar_ = boton(*lado, QStringLiteral("Usar &este diseño"), *botones);
  botones->addStretch();
  guardar_ = boton(*lado, QStringLiteral("&Guardar tabla..."), *botones);
  columna->addLayout(botones);
  for (QPushButton* b : {usar_, guardar_}) b->setEnabled(false);
  connect(usar_, &QPushButton::clicked, this, &VistaEstudio::usarElegido);
  connect(guardar_, &QPushButton::clicked, this, &VistaEstudio::pedirTabla);
  connect(tabla_, &QTableView::activated, this, &VistaEstudio::usarElegido);
  auto* copia = new QShortcut(QKeySequence::Copy, this);
  copia->setContext(Qt::WidgetWithChildrenShortcut);
  connect(copia, &QShortcut::activated, this, &VistaEstudio::copiar);
  return lado;
}

QWidget* VistaEstudio::hacerCurva() {
  auto* lado = new QWidget(this);
  auto* columna = new QVBoxLayout(lado);
  columna->setContentsMargins(0, 0, 0, 0);
  auto* arriba = new QHBoxLayout;
  auto* rotulo = new QLabel(QStringLiteral("Resu&ltado:"), lado);
  resultado_ = new QComboBox(lado);
  resultado_->setAccessibleName(QStringLiteral("Resultado de la curva y de la búsqueda"));
  resultado_->setMinimumContentsLength(8);
  resultado_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  rotulo->setBuddy(resultado_);
  arriba->addWidget(rotulo);
  arriba->addWidget(resultado_, 1);
  guardarCurva_ = boton(*lado, QStringLiteral("Guardar &curva..."), *arriba);
  guardarCurva_->setEnabled(false);
  columna->addLayout(arriba);
  curva_ = new CurvaEstudio(lado);
  columna->addWidget(curva_, 1);
  auto* abajo = new QHBoxLayout;
  auto* pedido = new QLabel(QStringLiteral("&Buscar dónde vale:"), lado);
  buscado_ = new CampoNumero(lado);
  buscado_->setAccessibleName(QStringLiteral("Valor que se busca"));
  pedido->setBuddy(buscado_);
  abajo->addWidget(pedido);
  abajo->addWidget(buscado_);
  auto* buscar = boton(*lado, QStringLiteral("Bu&scar"), *abajo);
  abajo->addStretch();
  columna->addLayout(abajo);
  connect(resultado_, &QComboBox::currentIndexChanged, this, &VistaEstudio::dibujar);
  connect(guardarCurva_, &QPushButton::clicked, this, &VistaEstudio::pedirCurva);
  connect(buscar, &QPushButton::clicked, this, &VistaEstudio::buscarValor);
  connect(buscado_, &QLineEdit::returnPressed, this, &VistaEstudio::buscarValor);
  curva_->alElegir = [this](std::size_t fila) { elegir(fila); };
  return lado;
}

void VistaEstudio::mostrar(VisorEstudio& visor) {
  visor_ = visor.vinculo();
  const Entrada* ancho = entradaDe(*visor.ficha, "bRapida");
  if (ancho == nullptr) ancho = entradaDe(*visor.ficha, std::string(visor.ficha->formato->ventana) + ".Text23");
  primera_->ofrecer(*visor.ficha, ancho == nullptr ? "" : ancho->nombre);
  segunda_->ofrecer(*visor.ficha, "");
  const auto& todas = columnas(*visor.ficha);
  const QSignalBlocker callado(resultado_);
  for (std::size_t c = 0; c < todas.size(); ++c)
    if (todas[c].numerica) resultado_->addItem(aQt(todas[c].titulo()), static_cast<qulonglong>(c));
  decir(QStringLiteral("Elija qué varía y pulse Calcular. Los campos de la ventana de datos no cambian."));
}

std::optional<Diseno> VistaEstudio::base() {
  const auto visor = visor_.lock();
  auto diseno = visor && visor->base ? visor->base() : std::nullopt;
  if (!diseno) decir(QStringLiteral("La ventana de datos está cerrada: ábrala con su diseño."), true);
  return diseno;
}

void VistaEstudio::calcular() {
  detener();
  auto diseno = base();
  if (!diseno) return;
  try {
    std::vector<Variacion> varian{*primera_->variacion()};
    if (auto otra = segunda_->variacion()) varian.push_back(std::move(*otra));
    auto estudio = std::make_unique<Estudio>(*diseno, std::move(varian));
    modelo_->mostrar(nullptr);
    base_ = std::make_unique<Diseno>(std::move(*diseno));
    estudio_ = std::move(estudio);
  } catch (const FalloEstudio& fallo) {
    return decir(aQt(fallo.what()), true);
  }
  tabla_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  modelo_->mostrar(estudio_.get());
  decir({});
  progreso_->setRange(0, static_cast<int>(estudio_->total()));
  detener_->setEnabled(true);
  turno_.start(0);
  seguir();
}

void VistaEstudio::seguir() {
  const bool primera = estudio_->filas().empty();
  const bool falta = estudio_->avanzar(rebanada);
  modelo_->crecer();
  if (primera) tabla_->resizeColumnsToContents();
  progreso_->setVisible(falta);
  progreso_->setValue(static_cast<int>(estudio_->filas().size()));
  if (falta) return;
  detener();
  tabla_->resizeColumnsToContents();
}

/// What is there stays.
void VistaEstudio::detener() {
  if (!turno_.isActive()) return;
  turno_.stop();
  progreso_->setVisible(false);
  if (detener_->hasFocus()) calcular_->setFocus();
  detener_->setEnabled(false);
  const auto& filas = estudio_->filas();
  const auto bien = std::count_if(filas.begin(), filas.end(), [](const Fila& f) { return f.calculado; });
  QString texto = QStringLiteral("%1 diseños, %2 con resultado.").arg(filas.size()).arg(bien);
  if (!estudio_->terminado()) texto += QStringLiteral(" Detenido: eran %1.").arg(estudio_->total());
  decir(texto);
  for (QPushButton* b : {usar_, guardar_, guardarCurva_}) b->setEnabled(!filas.empty());
  dibujar();
}

void VistaEstudio::dibujar() {
  if (!estudio_ || resultado_->currentIndex() < 0) return;
  curva_->mostrar(graficoDe(*estudio_, *base_, static_cast<std::size_t>(resultado_->currentData().toULongLong())));
}

void VistaEstudio::buscarValor() {
  const auto diseno = base();
  const Entrada* e = primera_->entrada();
  if (!diseno || e == nullptr) return;
  QElapsedTimer reloj;
  reloj.start();
  try {
    const Busqueda b =
        buscar(*diseno, *e, primera_->serie(), static_cast<std::size_t>(resultado_->currentData().toULongLong()),
               deQt(buscado_->text()), [&] { return reloj.elapsed() < plazoBusqueda; });
    decir(aQt(b.frase));
  } catch (const FalloEstudio& fallo) {
    decir(aQt(fallo.what()), true);
  }
}

void VistaEstudio::elegir(std::size_t fila) {
  const int renglon = modelo_->renglonDe(fila);
  if (renglon >= modelo_->rowCount()) return;
  tabla_->selectRow(renglon);
  tabla_->scrollTo(modelo_->index(renglon, 0));
}

void VistaEstudio::usarElegido() {
  const QModelIndex i = tabla_->currentIndex();
  if (!estudio_ || !i.isValid()) return decir(QStringLiteral("Elija antes una fila de la tabla."), true);
  if (!base()) return;
  // the calculation's own boxes may close this window
  const auto visor = visor_.lock();
  const std::vector<Puesto> puestos = estudio_->puestos(modelo_->filaDe(i.row()));
  visor->usar(puestos);
}

void VistaEstudio::copiar() const {
  QString texto;
  const int columnas = modelo_->columnCount();
  const auto celda = [&](const QString& t, int c) {
    texto += QString(t).replace(u'\n', u' ') + (c + 1 == columnas ? u'\n' : u'\t');
  };
  for (int c = 0; c < columnas; ++c) celda(modelo_->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString(), c);
  const auto elegidas = tabla_->selectionModel()->selectedRows();
  for (int r = 0; r < modelo_->rowCount(); ++r)
    if (elegidas.size() < 2 || tabla_->selectionModel()->isRowSelected(r, {}))
      for (int c = 0; c < columnas; ++c) celda(modelo_->index(r, c).data().toString(), c);
  QGuiApplication::clipboard()->setText(texto);
}

/// The decimal sign is asked once and remembered; the kinds of the file box change it.
void VistaEstudio::pedirTabla() {
  QSettings a = ajustes();
  const QString clave = QStringLiteral("estudio/coma");
  if (!a.contains(clave)) {
    QMessageBox caja(QMessageBox::Question, QStringLiteral("Calvento"),
                     QStringLiteral("¿Con qué signo decimal lee los números su hoja de cálculo?"),
                     QMessageBox::NoButton, this);
    auto* coma = caja.addButton(QStringLiteral("&Coma: 1,5"), QMessageBox::AcceptRole);
    caja.addButton(QStringLiteral("&Punto: 1.5"), QMessageBox::AcceptRole);
    auto* nada = caja.addButton(QStringLiteral("Cancelar"), QMessageBox::RejectRole);
    caja.exec();
    if (caja.clickedButton() == nada || caja.clickedButton() == nullptr) return;
    a.setValue(clave, caja.clickedButton() == coma);
  }
  const QStringList signos{QStringLiteral("CSV con coma decimal (*.csv)"),
                           QStringLiteral("CSV con punto decimal (*.csv)")};
  QString signo = signos[a.value(clave).toBool() ? 0 : 1];
  guardar(
      pedirArchivo(*this, QStringLiteral("Guardar la tabla del estudio"), signos, QStringLiteral("estudio"), &signo),
      [&](const QString& archivo) {
        const bool coma = signo == signos[0];
        a.setValue(clave, coma);
        guardarEntero(comoRuta(deQt(archivo)), comoCsv(*estudio_, coma));
      });
}

void VistaEstudio::pedirCurva() {
  guardar(pedirArchivo(*this, QStringLiteral("Guardar la curva"),
                       {QStringLiteral("SVG (*.svg)"), QStringLiteral("PDF (*.pdf)"), QStringLiteral("PNG (*.png)")},
                       QStringLiteral("curva")),
          [&](const QString& archivo) { curva_->guardar(deQt(archivo)); });
}

void VistaEstudio::guardar(const QString& archivo, const std::function<void(const QString&)>& escribir) {
  if (archivo.isEmpty()) return;
  try {
    escribir(archivo);
    decir(QStringLiteral("Guardado: ") + archivo);
  } catch (const std::exception& fallo) {
    decir(aQt(fallo.what()), true);
  }
}

void VistaEstudio::decir(const QString& texto, bool malo) {
  aviso_->setText(malo ? QStringLiteral("⚠ ") + texto : texto);
  aviso_->setVisible(!texto.isEmpty());
}

}  // namespace calvento
