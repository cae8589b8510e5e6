#include "qt/resguardo.h"

#include <algorithm>
#include <utility>

#include <QDateTime>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLineEdit>
#include <QLockFile>
#include <QMainWindow>

#include "modelo/rutas.h"
#include "qt/ajustes.h"
#include "qt/cadena.h"
#include "qt/recientes.h"

namespace calvento {

namespace {

constexpr int esperaCopia = 1000;         // ms
constexpr std::size_t pasosMayores = 20;  // back by Ctrl+Z

QString cerrojoDe(const QString& carpeta, const QString& programa) {
  return carpeta + u'/' + programa + QStringLiteral(".corre");
}

}  // namespace

QString horaDicha(std::chrono::system_clock::time_point hora) {
  const auto t = QDateTime::fromSecsSinceEpoch(std::chrono::system_clock::to_time_t(hora));
  const qint64 dias = t.date().daysTo(QDate::currentDate());
  const QString dia = dias == 0                                        ? QStringLiteral("hoy")
                      : dias == 1                                      ? QStringLiteral("ayer")
                      : t.date().year() == QDate::currentDate().year() ? t.toString(QStringLiteral("d/M"))
                                                                       : t.toString(QStringLiteral("d/M/yyyy"));
  return dia + t.toString(QStringLiteral(" H:mm"));
}

Resguardo::Resguardo()
    : carpeta_(carpetaDatos() + QStringLiteral("/recuperar")),
      programa_(QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmsszzz-")) +
                QString::number(QCoreApplication::applicationPid())),
      copias_({comoRuta(deQt(carpeta_)), deQt(programa_), [] { return Copias::Hora::clock::now(); },
               [this](const std::string& programa) { return corre(programa); }}) {
  alMirar_.setSingleShot(true);
  alCopiar_.setSingleShot(true);
  alCopiar_.setInterval(esperaCopia);
  connect(&alMirar_, &QTimer::timeout, this, &Resguardo::mirar);
  connect(&alCopiar_, &QTimer::timeout, this, &Resguardo::guardarTodo);
  connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &Resguardo::guardarTodo, Qt::DirectConnection);
}

Resguardo::~Resguardo() = default;

/// A program holds its own lock from its first copy to its end, also an end by a fault or a signal.
bool Resguardo::corre(const std::string& programa) const {
  if (aQt(programa) == programa_) return true;
  const QString archivo = cerrojoDe(carpeta_, aQt(programa));
  if (!QFileInfo::exists(archivo)) return false;
  QLockFile suyo(archivo);
  suyo.setStaleLockTime(0);
  return !suyo.tryLock(0) && suyo.error() == QLockFile::LockFailedError;
}

void Resguardo::echarCerrojo() {
  if (cerrojo_ && cerrojo_->isLocked()) return;
  copias_.hacerCarpeta();
  cerrojo_ = std::make_unique<QLockFile>(cerrojoDe(carpeta_, programa_));
  cerrojo_->tryLock(0);
}

void Resguardo::vigilar(VentanaEstructura& ventana, QMainWindow& vista) {
  auto nueva = std::make_unique<Vigilada>();
  Vigilada& v = *nueva;
  v.ventana = &ventana;
  v.vista = &vista;
  v.inicial = ventana.trabajo().contenido;
  v.base = v.inicial;
  ventana.vigilar([this, &v] { alSustituir(v); }, [this, &v] { alCoincidir(v); });
  vigiladas_.push_back(std::move(nueva));
  // the window is seen first
  QTimer::singleShot(0, &vista, [this, &ventana] {
    if (Vigilada* suya = buscar(ventana)) avisarSinDejar(*suya);
  });
}

Resguardo::Vigilada* Resguardo::buscar(const Ventana& ventana) {
  const auto it =
      std::find_if(vigiladas_.begin(), vigiladas_.end(), [&](const auto& v) { return v->ventana == &ventana; });
  return it == vigiladas_.end() ? nullptr : it->get();
}

void Resguardo::olvidar(const Ventana& ventana) {
  Vigilada* v = buscar(ventana);
  if (v == nullptr) return;
  dejar(*v);
  v->ventana->vigilar(nullptr, nullptr);
  std::erase_if(vigiladas_, [&](const auto& otra) { return otra.get() == v; });
}

void Resguardo::tocada(const Ventana& ventana) {
  for (const auto& v : vigiladas_) {
    if (v->ventana != &ventana && &v->ventana->parametros() != &ventana) continue;
    v->sucia = true;
    v->dejada = false;
    if (!alMirar_.isActive()) alMirar_.start(0);
    // from the first change on: who types without a pause is to lose no more than that either
    if (!alCopiar_.isActive()) alCopiar_.start();
  }
}

void Resguardo::mirar() {
  for (const auto& v : vigiladas_)
    if (v->vista) v->vista->setWindowModified(v->base != v->ventana->trabajo().contenido);
}

void Resguardo::copiar(Vigilada& v) {
  if (!std::exchange(v.sucia, false)) return;
  Trabajo t = v.ventana->trabajo();
  if (v.base == t.contenido) {
    if (v.copiada) copias_.soltar(v.ventana->formato(), t.contenido);
    v.copiada.reset();
    return;
  }
  if (v.copiada == t.contenido) return;
  sinFallo(v, [&] {
    echarCerrojo();
    copias_.guardar(v.ventana->formato(), t);
    v.copiada = std::move(t.contenido);
    falloDicho_ = false;
  });
}

void Resguardo::guardarTodo() {
  for (const auto& v : vigiladas_) copiar(*v);
}

/// What is unsaved stays as a state that can be brought back.
void Resguardo::dejar(Vigilada& v) {
  if (std::exchange(v.dejada, true)) return;
  v.sucia = true;
  copiar(v);
  if (!v.copiada) return;
  sinFallo(v, [&] { copias_.dejar(v.ventana->formato()); });
  v.copiada.reset();
}

void Resguardo::terminar() {
  alCopiar_.stop();
  for (const auto& v : vigiladas_) dejar(*v);
}

void Resguardo::alSustituir(Vigilada& v) {
  const Trabajo t = v.ventana->trabajo();
  avisar(v, {});
  dejar(v);
  if (t.nombre.empty() && t.contenido == v.inicial) return;
  if (v.atras.size() == pasosMayores) v.atras.erase(v.atras.begin());
  v.atras.push_back({t, v.base});
  v.adelante.clear();
}

void Resguardo::alCoincidir(Vigilada& v) {
  v.base = v.ventana->trabajo().contenido;
  v.copiada.reset();
  v.sucia = false;
  sinFallo(v, [&] { copias_.soltar(v.ventana->formato(), *v.base); });
  if (!v.ventana->archivo().empty()) anotarReciente(*v.ventana);
}

std::vector<Copia> Resguardo::copias(const VentanaEstructura& ventana) const {
  return copias_.lista(ventana.formato());
}

void Resguardo::recuperar(VentanaEstructura& ventana, const std::string& id) {
  Vigilada* v = buscar(ventana);
  if (v == nullptr) return;
  Trabajo t = copias_.leer(ventana.formato(), id);
  t.archivo.clear();  // it is in no file: Guardar asks
  alSustituir(*v);
  v->base.reset();
  ventana.reponer(t);
  tocada(ventana);
}

bool Resguardo::deshacer(const Ventana& ventana, bool rehacer) {
  Vigilada* v = buscar(ventana);
  if (v == nullptr || !v->vista) return false;
  std::vector<Paso>& desde = rehacer ? v->adelante : v->atras;
  if (desde.empty()) return false;
  for (const QLineEdit* campo : v->vista->findChildren<QLineEdit*>())
    if (campo->isEnabled() && campo->isVisible() && (rehacer ? campo->isRedoAvailable() : campo->isUndoAvailable()))
      return false;
  Paso paso = std::move(desde.back());
  desde.pop_back();
  (rehacer ? v->atras : v->adelante).push_back({v->ventana->trabajo(), v->base});
  dejar(*v);
  v->base = std::move(paso.base);
  v->ventana->reponer(paso.trabajo);
  tocada(ventana);
  return true;
}

void Resguardo::avisarSinDejar(Vigilada& v) {
  sinFallo(v, [&] {
    if (const auto copia = copias_.sinDejar(v.ventana->formato()))
      avisar(v, "Hay datos sin guardar de " + deQt(horaDicha(copia->hora)) + ": Archivo, Recuperar");
  });
}

/// In the note of the status bar, where the running event may write too; an empty text takes back what was said.
void Resguardo::avisar(Vigilada& v, const std::string& texto) {
  if (texto.empty() && v.ventana->sbStatusBar.Nota.valor() == v.aviso) v.ventana->sbStatusBar.Nota = texto;
  v.aviso = texto;
  QTimer::singleShot(0, this, [this, ventana = v.ventana] {
    const Vigilada* suya = buscar(*ventana);
    if (suya != nullptr && !suya->aviso.empty()) ventana->sbStatusBar.Nota = suya->aviso;
  });
}

/// A copy that cannot be written is told once, and nothing else stops for it.
void Resguardo::sinFallo(Vigilada& v, const std::function<void()>& accion) {
  try {
    accion();
  } catch (const std::exception& fallo) {
    const std::string motivo = fallo.what();  // the file that it names before the colon is no matter of the user's
    const std::size_t dosPuntos = motivo.rfind(": ");
    if (!std::exchange(falloDicho_, true))
      avisar(v, "Sin copia de seguridad: " + motivo.substr(dosPuntos == std::string::npos ? 0 : dosPuntos + 2));
  }
}

}  // namespace calvento
