#include "qt/sistema_qt.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPointer>
#include <QPrinter>
#include <QPrinterInfo>
#include <QScreen>
#include <QTimer>

#include "estructura/ventana_estructura.h"
#include "qt/cadena.h"
#include "qt/ejemplos.h"
#include "qt/impresion.h"
#include "qt/lugares.h"
#include "qt/menu_recuperar.h"
#include "qt/menu_ventana.h"
#include "qt/recientes.h"
#include "qt/teclado.h"

namespace calvento {

namespace {

constexpr QSize tamanoMayor{1600, 1000};              ///< the main window needs no more on a large screen
constexpr const char* lugarAlAbrir = "lugarAlAbrir";  ///< property of a child: where it came up
constexpr QSize marcoEscritorio{10, 38};              ///< what a desktop puts around a window, borders and title

/// Qt deletes an object "later" only in the event loop it was told in or outside of it, never in one that was opened
/// since: just when an event has really ended.
class Diferida : public QObject {
 public:
  explicit Diferida(std::function<void()> accion) : accion_(std::move(accion)) {}
  bool event(QEvent* evento) override {
    if (evento->type() == QEvent::DeferredDelete) std::exchange(accion_, nullptr)();
    return QObject::event(evento);
  }

 private:
  std::function<void()> accion_;
};

QPoint centrado(const QRect& lugar, const QSize& tamano) {
  return lugar.topLeft() +
         QPoint(std::max(0, (lugar.width() - tamano.width()) / 2), std::max(0, (lugar.height() - tamano.height()) / 2));
}

}  // namespace

SistemaQt::~SistemaQt() { cerrarTodo(); }

void SistemaQt::cerrarTodo() {
  resguardo_.terminar();
  for (auto& [nombre, abierta] : abiertas_) {
    dejar(abierta);
    if (abierta.enlace) abierta.enlace->soltar();
  }
  // a frame of its own each: the area need not hold one that is hidden
  for (auto& [nombre, abierta] : std::exchange(abiertas_, {}))
    if (abierta.marco != principal_) delete abierta.marco;
  enEspera_.clear();
  delete principal_;
}

SistemaQt::Abierta* SistemaQt::buscar(const Ventana& ventana) {
  const auto it = abiertas_.find(ventana.nombre());
  return it == abiertas_.end() || it->second.ventana != &ventana || !it->second.vista ? nullptr : &it->second;
}

QMainWindow* SistemaQt::vista(std::string_view nombre) const {
  const auto it = abiertas_.find(nombre);
  return it == abiertas_.end() ? nullptr : it->second.vista.data();
}

QWidget* SistemaQt::marco(std::string_view nombre) const {
  const auto it = abiertas_.find(nombre);
  return it == abiertas_.end() ? nullptr : it->second.marco.data();
}

SistemaQt::Abierta& SistemaQt::crear(Ventana& ventana) {
  const VentanaUi* diseno = ventanaUi(ventana.nombre());
  if (diseno == nullptr) throw std::runtime_error(ventana.nombre() + ": ventana sin diseño");
  QWidget* dueno = diseno->puesto == Acomodo::suelta ? principal_.data() : nullptr;
  auto vista = std::make_unique<QMainWindow>(dueno);
  diseno->construir(*vista);
  auto* enlace = new Enlace(ventana, *vista, [this](const std::string& texto) { dialogos_.fallo(texto); });
  enlace->setParent(vista.get());
  QMainWindow& v = *vista.release();
  QWidget* marco = &v;
  switch (diseno->puesto) {
    case Acomodo::principal:
      colocarPrincipal(v);
      break;
    case Acomodo::hija:
      marco = colocarHija(v, ventana.nombre());
      break;
    case Acomodo::suelta:
      colocarSuelta(v);
      break;
  }
  marco->installEventFilter(this);
  if (principal_) principal_->installEventFilter(this);  // ahead of the menu bar of the new child
  Abierta& abierta = abiertas_[ventana.nombre()] = Abierta{&ventana, &v, marco, enlace, ultimo_};
  unirTeclas(abierta);
  auto* datos = dynamic_cast<VentanaEstructura*>(&ventana);
  if (datos != nullptr) unirArchivo(*datos, v, *enlace);
  if (auto* dibujo = dynamic_cast<MarcoDibujo*>(&ventana)) vistasDibujo_.alAbrir(*dibujo);
  if (datos != nullptr || ventana.seOculta()) enlace->alTocar = [this, &ventana] { resguardo_.tocada(ventana); };
  return abierta;
}

/// What the desktop adds to the file menu of a data window, behind its own entries, and to the keys in its fields.
void SistemaQt::unirArchivo(VentanaEstructura& datos, QMainWindow& vista, Enlace& enlace) {
  resguardo_.vigilar(datos, vista);
  enlace.alDeshacer = [this, &datos](bool rehacer) { return resguardo_.deshacer(datos, rehacer); };
  auto* menu = vista.findChild<QMenu*>(QStringLiteral("mnarchivo"));
  const auto sinCaer = [this](const std::function<void()>& accion) {
    protegido([this](const std::string& texto) { dialogos_.fallo(texto); }, accion);
  };
  menu->addSeparator();
  anadirRecuperar(*menu, datos, resguardo_, [this, &datos, sinCaer](const std::string& id) {
    sinCaer([&] { resguardo_.recuperar(datos, id); });
  });
  anadirRecientes(*menu, datos, [&datos, sinCaer](const QString& archivo) {
    sinCaer([&] {
      usarCarpetaDe(deQt(archivo));
      datos.abrir(deQt(archivo));
    });
  });
  anadirEjemplos(*menu, datos.formato(),
                 [&datos, sinCaer](const QString& archivo) { sinCaer([&] { datos.abrirCopia(deQt(archivo)); }); });
}

void SistemaQt::colocarPrincipal(QMainWindow& vista) {
  principal_ = &vista;
  icono_ = vista.windowIcon();
  vista.setWindowIcon({});
  area_ = vista.findChild<QMdiArea*>();
  area_->setActivationOrder(QMdiArea::ActivationHistoryOrder);
  anadirMenuVentana(vista, *area_, [this](QMdiSubWindow& hija) { traerDespues(&hija); });
  const QRect pantalla = vista.screen()->availableGeometry();
  const QSize tamano = (pantalla.size() - marcoEscritorio).boundedTo(tamanoMayor);
  const QRect inicial(centrado(pantalla, tamano + marcoEscritorio), tamano);
  const auto lugar = lugarGuardado("frmMain", vista);
  const QRect donde =
      lugar ? dentroDe(pantalla.adjusted(0, 0, -marcoEscritorio.width(), -marcoEscritorio.height()), lugar->marco)
            : inicial;
  vista.resize(donde.size());
  vista.move(donde.topLeft());
  if (lugar && lugar->entera) vista.setWindowState(Qt::WindowMaximized);
}

/// For the next time it opens, and the next run. A child that nobody moved keeps coming up in the middle.
void SistemaQt::guardarLugarDe(const Abierta& abierta) const {
  const QWidget* marco = abierta.marco;
  if (marco == nullptr || ventanaUi(abierta.ventana->nombre())->puesto == Acomodo::suelta) return;
  if (marco == principal_) {
    const bool entera = marco->isMaximized();
    guardarLugar("frmMain", *marco, {entera ? QRect() : QRect(marco->pos(), marco->size()), entera});
    return;
  }
  const QRect lugar = marco->geometry() == abierta.conFranja ? abierta.sinFranja : marco->geometry();
  if (marco->isMaximized() || marco->isMinimized() || lugar == marco->property(lugarAlAbrir).toRect()) return;
  guardarLugar(abierta.ventana->nombre(), *marco, {lugar});
}

/// What is kept of a window that goes.
void SistemaQt::dejar(const Abierta& abierta) {
  resguardo_.olvidar(*abierta.ventana);
  guardarLugarDe(abierta);
  if (const auto* dibujo = dynamic_cast<const MarcoDibujo*>(abierta.ventana)) vistasDibujo_.alDejar(*dibujo);
}

/// A child stands where the user has left it before. Else it has the size of its design, or what the area offers as
/// long as nothing of it is lost, and stands in the middle; where its least size is larger the area scrolls.
QWidget* SistemaQt::colocarHija(QMainWindow& vista, const std::string& nombre) {
  if (area_ == nullptr) return &vista;
  const QSize diseno = vista.size();
  QMdiSubWindow* marco = area_->addSubWindow(&vista);
  marco->setWindowIcon(vista.windowIcon());
  const QMargins orla = marco->contentsMargins();
  const QSize deseado = diseno.grownBy(orla).boundedTo(area_->viewport()->size());
  const QSize minimo = vista.minimumSizeHint().expandedTo(vista.minimumSize()).grownBy(orla);
  marco->resize(deseado.expandedTo(minimo));
  marco->setProperty(tamanoAlAbrir, marco->size());
  marco->move(centrado(area_->viewport()->rect(), marco->size()));
  if (const auto lugar = lugarGuardado(nombre, *area_)) {
    const QRect donde = dentroDe(area_->viewport()->rect(), lugar->marco);
    marco->setGeometry(QRect(donde.topLeft(), donde.size().expandedTo(minimo)));
  }
  marco->setProperty(lugarAlAbrir, marco->geometry());
  return marco;
}

void SistemaQt::colocarSuelta(QMainWindow& vista) {
  vista.setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
  vista.setFixedSize(vista.size().expandedTo(vista.minimumSizeHint()));
  vista.move(centrado(vista.screen()->availableGeometry(), vista.size()));
}

/// The start is as fast as the main window alone: the rest is made when it can be seen.
void SistemaQt::alPintarPrincipal() {
  if (!principal_) return;
  principal_->setWindowIcon(icono_);
  for (Ventana* ventana : std::exchange(enEspera_, {})) presentar(*ventana);
}

void SistemaQt::cerrar(Ventana& ventana) {
  std::erase(enEspera_, &ventana);
  const Abierta* abierta = buscar(ventana);
  if (abierta == nullptr) return;
  dejar(*abierta);
  abierta->enlace->soltar();
  QWidget* marco = abierta->marco;
  abiertas_.erase(ventana.nombre());
  quitar(*marco);
  marco->deleteLater();
}

void SistemaQt::terminar() {
  resguardo_.terminar();
  QCoreApplication::exit(0);
}

void SistemaQt::despues(std::function<void()> accion) { (new Diferida(std::move(accion)))->deleteLater(); }

void SistemaQt::imprimir(Ventana& ventana) {
  const Abierta* abierta = buscar(ventana);
  if (abierta == nullptr) return;
  despues([this, vista = abierta->vista] {
    if (!vista) return;
    const QPrinterInfo destino = QPrinterInfo::defaultPrinter();
    if (destino.isNull()) {
      dialogos_.fallo("No hay una impresora predeterminada");
      return;
    }
    QPrinter impresora(destino, QPrinter::HighResolution);
    if (!imprimirVista(*vista, impresora)) dialogos_.fallo("La impresora no acepta el trabajo");
  });
}

void SistemaQt::copiar(Ventana& ventana) {
  const Abierta* abierta = buscar(ventana);
  if (abierta == nullptr) return;
  despues([marco = abierta->marco] {
    if (marco) QGuiApplication::clipboard()->setPixmap(marco->grab());
  });
}

bool SistemaQt::eventFilter(QObject* objeto, QEvent* evento) {
  if (esAltSola(*evento) && QApplication::activeWindow() == principal_) {
    // no further: the bars of all children listen to the area
    irAlMenu(*principal_, evento);
    evento->accept();
    return true;
  }
  if (evento->type() == QEvent::Paint && objeto == principal_ && !std::exchange(pintada_, true))
    QTimer::singleShot(0, this, &SistemaQt::alPintarPrincipal);
  if (evento->type() != QEvent::Close) return false;
  evento->ignore();
  protegido([this](const std::string& texto) { dialogos_.fallo(texto); }, [&] { alCerrar(objeto); });
  return true;
}

void SistemaQt::alCerrar(QObject* marco) {
  if (navegador_ == nullptr) return;
  if (marco == principal_) {
    navegador_->terminar();
    return;
  }
  const auto it =
      std::find_if(abiertas_.begin(), abiertas_.end(), [&](const auto& par) { return par.second.marco == marco; });
  if (it != abiertas_.end()) navegador_->descargar(*it->second.ventana);
}

}  // namespace calvento
