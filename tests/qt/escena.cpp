#include "escena.h"

#include <algorithm>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

#include "apoyo/cajas_escritas.h"
#include "apoyo/tablas.h"
#include "comun/numeros.h"
#include "qt/cadena.h"

namespace calvento {

namespace {

/// Clicks where a user would: on the mark of an option, else in the middle.
void pulsarWidget(QWidget& w) {
  const auto* boton = qobject_cast<QAbstractButton*>(&w);
  const bool marca = boton != nullptr && boton->isCheckable() && qobject_cast<QPushButton*>(&w) == nullptr;
  QTest::mouseClick(&w, Qt::LeftButton, {}, marca ? QPoint(8, w.height() / 2) : w.rect().center());
}

/// What stands on it, or how a screen reader calls it, as a scene writes it.
bool seLlama(const QObject& o, const std::string& nombre) {
  const auto llamado = [&](const char* p) {
    return o.property(p).toString().remove(u'&').remove(u'.').replace(u' ', u'_') == aQt(nombre);
  };
  return llamado("accessibleName") || llamado("text");
}

}  // namespace

std::pair<std::string, std::string> partidoEn(const std::string& s, char c) {
  const auto i = s.find(c);
  return i == std::string::npos ? std::pair(s, std::string())
                                : std::pair(sinBlancos(s.substr(0, i)), sinBlancos(s.substr(i + 1)));
}

void Escena::Cajas::fallo(const std::string& texto) {
  DialogosGuion::fallo(texto);
  for (const VentanaUi& v : ventanasUi())
    if (const std::string m = escena.marcados(std::string(v.nombre)); !m.empty()) escena.conLaCaja_ = m;
}

void Escena::arrancar() {
  programa_.reset();
  programa_ = std::make_unique<Programa>(cajas_);
  programa_->aplicacion.arrancar();
  if (!QTest::qWaitFor([this] { return programa_->sistema.vista("frmAbout") != nullptr; }))
    throw std::runtime_error("the program does not start");
  programa_->aplicacion.descargar(*programa_->aplicacion.cargada("frmAbout"));
  EXPECT_TRUE(QTest::qWaitForWindowActive(programa_->sistema.vista("frmMain")));
}

Escena::Escena(const std::vector<std::string>& lineas) {
  qputenv("CALVENTO_DATOS", carpeta_.en("datos").c_str());
  QObject::connect(&reloj_, &QTimer::timeout, [this] { responder(); });
  arrancar();
  for (const std::string& l : lineas) {
    SCOPED_TRACE(l);
    const auto [orden, resto] = partidoEn(l, ' ');
    dar(orden, resto);
    if (testing::Test::HasFatalFailure()) return;
  }
}

void Escena::dar(const std::string& orden, const std::string& resto) {
  const auto [primero, demas] = partidoEn(resto, ' ');
  if (orden == "ve") return comprobar(resto);
  if (orden == "reinicia") return arrancar();
  Aplicacion& a = programa_->aplicacion;
  if (orden == "caja") {
    const auto k = resto.find("{}");
    prepararCaja(cajas_, k == std::string::npos ? resto : std::string(resto).replace(k, 2, carpeta_.en("")));
  } else if (orden == "responde") {
    respuestas_.emplace_back(primero, demas);
    reloj_.start(10);
  } else if (orden == "tolera") {
    cajas_.tolera(resto == "fallo" ? DialogosGuion::Clase::fallo : DialogosGuion::Clase::aviso);
    if (resto == "todo") cajas_.tolera(DialogosGuion::Clase::fallo).tolera(DialogosGuion::Clase::pregunta);
  } else if (orden == "archivo") {
    std::string contenido;
    for (const std::string& l : partido(demas, '/')) contenido += l + "\n";
    carpeta_.escribir(primero, contenido);
  } else if (orden == "borra") {
    EXPECT_TRUE(std::filesystem::remove(carpeta_.en(resto)));
  } else if (orden == "abre") {
    EXPECT_TRUE(a.abrirProyecto(resto.starts_with("ejemplos/") ? RAIZ_PROYECTO "/" + resto : resto));
  } else if (orden == "muestra") {
    a.mostrar(resto);
  } else if (orden == "oculta") {
    a.ocultar(*a.cargada(resto));
  } else if (orden == "cierra") {
    programa_->sistema.marco(resto)->close();
  } else if (orden == "anota") {
    notas_[primero] = valor(demas);
  } else if (orden == "espia") {
    const auto [ventana, control] = partidoEn(resto, '.');
    a.cargada(ventana)->buscar<Menu>(control)->Click = [this, quien = control] { hecho_ += quien + " "; };
  } else if (orden == "banco") {
    banco_ = std::make_unique<BancoEnPantalla>();
  } else if (orden == "enlaza") {
    banco_->enlazar();
  } else if (orden == "programa") {
    programa(primero, demas);
  } else if (orden == "espera") {
    QTest::qWait(std::stoi(primero));
  } else if (orden == "teclea") {
    teclear(resto);
  } else if (orden == "tecla") {
    tecla(resto);
  } else if (orden == "raton") {
    raton(resto);
  } else if (QObject* o = objeto(primero); o == nullptr) {
    FAIL() << "no " << primero;
  } else if (orden == "elige") {
    auto* accion = qobject_cast<QAction*>(o);
    if (accion != nullptr) return accion->trigger();
    for (const char* p : {"currentIndex", "currentRow", "currentText"}) o->setProperty(p, aQt(demas));
  } else if (orden == "llama") {
    EXPECT_TRUE(QMetaObject::invokeMethod(o, demas.c_str()));
  } else if (auto* w = qobject_cast<QWidget*>(o); orden == "enfoca") {
    w->setFocus();
  } else if (orden == "contexto" || orden == "rueda") {
    QWidget* dentro = qobject_cast<QAbstractScrollArea*>(w)->viewport();
    const QPoint lugar = dentro->rect().center(), global = dentro->mapToGlobal(lugar);
    if (orden == "contexto") return QCoreApplication::postEvent(dentro, new QContextMenuEvent({}, lugar, global));
    QWheelEvent rueda(lugar, global, {}, {0, std::stoi(demas)}, {}, Qt::ControlModifier, {}, false);
    QCoreApplication::sendEvent(dentro, &rueda);
  } else if (orden == "mueve") {
    const auto n = partido(demas, ' ');
    w->setGeometry(std::stoi(n.at(0)), std::stoi(n.at(1)), w->width() + std::stoi(n.at(2)),
                   w->height() + std::stoi(n.at(3)));
  } else if (orden == "apunta") {
    QTest::mouseMove(w);
  } else if (orden == "pulsa") {
    pulsarWidget(*w);
  } else if (orden == "pon") {
    w->setFocus();
    qobject_cast<QLineEdit*>(w)->selectAll();
    demas.empty() ? QTest::keyClick(w, Qt::Key_Delete) : QTest::keyClicks(w, aQt(demas));
  } else if (auto* campo = qobject_cast<QLineEdit*>(w); orden == "pega") {
    QGuiApplication::clipboard()->setText(aQt(demas));
    campo->setFocus();
    campo->selectAll();
    campo->paste();
  } else if (orden == "arroba") {  // by the key beside the space bar of a Spanish keyboard
    campo->selectAll();
    QKeyEvent arroba(QEvent::KeyPress, Qt::Key_At, Qt::GroupSwitchModifier, "@");
    QCoreApplication::sendEvent(campo, &arroba);
  } else {
    FAIL() << "no such order";
  }
  QTest::qWait(5);
}

/// What the user does with the dialog or the menu that stands: a name for the file, and the button or entry so called.
void Escena::responder() {
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  QWidget* caja = menu != nullptr ? menu : QApplication::activeModalWidget();
  if (caja == nullptr || respuestas_.empty()) return;
  const auto [boton, demas] = respuestas_.front();
  const auto [archivo, tipo] = partidoEn(demas, '|');
  respuestas_.pop_front();
  visto_ = deQt(caja->windowTitle() + ": " + caja->property("text").toString());
  for (const QAction* a : menu == nullptr ? QList<QAction*>() : menu->actions()) visto_ += deQt(a->text()) + " | ";
  if (const auto* d = qobject_cast<QFileDialog*>(caja)) {
    visto_ += deQt(d->nameFilters().join(u' ') + " " + d->findChild<QLineEdit*>("fileNameEdit")->text());
    for (int l = QFileDialog::LookIn; l <= QFileDialog::Reject; ++l)
      visto_ += " | " + deQt(d->labelText(static_cast<QFileDialog::DialogLabel>(l)));
  }
  if (const auto* d = caja->findChild<QPrintPreviewWidget*>()) visto_ += std::to_string(d->pageCount());
  if (auto* nombre = caja->findChild<QLineEdit*>("fileNameEdit"); nombre != nullptr && !archivo.empty())
    nombre->setText(aQt(carpeta_.en(archivo)));
  for (auto* tipos : caja->findChildren<QComboBox*>("fileTypeCombo"))
    if (!tipo.empty()) QTest::keyClicks(tipos, aQt(tipo));
  if (boton == "cierra") return (void)QMetaObject::invokeMethod(caja, "close", Qt::QueuedConnection);
  for (QAction* a : menu == nullptr ? QList<QAction*>() : menu->actions())
    if (seLlama(*a, boton)) return menu->setActiveAction(a), QTest::keyClick(menu, Qt::Key_Return);
  for (auto* b : caja->findChildren<QAbstractButton*>())
    if (seLlama(*b, boton)) return (void)QMetaObject::invokeMethod(b, "click", Qt::QueuedConnection);
  ADD_FAILURE() << "no " << boton;
}

/// All keys are sent to the main window, as the desktop sends them, or to the menu that is down: Qt finds who gets
/// them.
void Escena::teclear(const std::string& texto) {
  for (const char c : texto) {
    if (QWidget* menu = QApplication::activePopupWidget())
      QTest::keyClick(menu, c);
    else
      QTest::keyClick(vista(banco_ ? "Banco" : "frmMain")->windowHandle(), c);
  }
}

void Escena::tecla(const std::string& cual) {
  QWindow* w = vista(banco_ ? "Banco" : "frmMain")->windowHandle();
  if (cual == "Alt") {
    QTest::keyPress(w, Qt::Key_Alt, Qt::AltModifier);
    QTest::keyRelease(w, Qt::Key_Alt);
    return;
  }
  const QKeyCombination k = QKeySequence(aQt(cual))[0];
  QTest::keyClick(w, k.key(), k.keyboardModifiers());
  if (k.keyboardModifiers() & Qt::ControlModifier) QTest::keyRelease(w, Qt::Key_Control);
}

/// Clicks on a menu of a menu bar, on an entry of the menu that is down, or on a row of a table, 0 its heading.
void Escena::raton(const std::string& donde) {
  const auto [nombre, fila] = partidoEn(donde, '[');
  QObject* o = objeto(nombre);
  if (auto* t = qobject_cast<QTableView*>(o)) {
    const int n = std::stoi(fila);
    if (n == 0) return QTest::mouseClick(t->horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(20, 8));
    const QPoint celda = t->visualRect(t->model()->index(n - 1, 0)).center();
    return QTest::mouseClick(t->viewport(), Qt::LeftButton, {}, celda);
  }
  if (auto* menu = qobject_cast<QMenu*>(o)) {
    auto* barra = qobject_cast<QMenuBar*>(menu->parentWidget());
    QTest::mouseClick(barra, Qt::LeftButton, {}, barra->actionGeometry(menu->menuAction()).center());
    EXPECT_TRUE(QTest::qWaitFor([&] { return menu->isVisible(); }));
    return;
  }
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  // by keys: newer versions of Qt without a screen take a click on the entry for one beside the menu
  for (int i = 0; menu->activeAction() != o && i < menu->actions().size(); ++i) QTest::keyClick(menu, Qt::Key_Down);
  QTest::keyClick(menu, Qt::Key_Return);
}

/// "NAME = TEXT", "!=", "<", "~" or "!~" for a part of it; "(a b)" in the name stands for each of them, "@nota" for
/// what was noted.
void Escena::comprobar(const std::string& que) {
  const std::size_t i = std::min({que.find(" ="), que.find(" !"), que.find(" <"), que.find(" ~")});
  ASSERT_NE(i, std::string::npos);
  std::string nombre = sinBlancos(que.substr(0, i)), debe = que.substr(i + 1);
  const std::string signo = debe.substr(0, debe[0] == '!' ? 2 : 1);
  debe = sinBlancos(debe.substr(signo.size()));
  for (auto nota = notas_.rbegin(); nota != notas_.rend(); ++nota)
    for (std::string* s : {&nombre, &debe})
      if (const auto k = s->find("@" + nota->first); k != std::string::npos)
        s->replace(k, nota->first.size() + 1, nota->second);
  const auto abre = nombre.find('('), cierra = nombre.find(')');
  for (const std::string& uno : abre == std::string::npos ? std::vector<std::string>{""}
                                                          : partido(nombre.substr(abre + 1, cierra - abre - 1), ' ')) {
    const std::string este =
        abre == std::string::npos ? nombre : nombre.substr(0, abre) + uno + nombre.substr(cierra + 1);
    std::string es;
    const bool bien = QTest::qWaitFor(
        [&] {
          es = valor(este);
          if (signo == "<") return std::stod(es) < std::stod(esNumero(debe) ? debe : valor(debe));
          return (signo.back() == '~' ? es.find(debe) != std::string::npos : es == debe) == (signo[0] != '!');
        },
        1000);
    EXPECT_TRUE(bien) << este << " is \"" << es << "\"";
  }
}

QMainWindow* Escena::vista(const std::string& nombre) const {
  return nombre == "Banco" && banco_ ? &banco_->vista : programa_->sistema.vista(nombre);
}

/// A property of the control as a program sets it: "Text2.Enabled" of the bench.
void Escena::programa(const std::string& propiedad, const std::string& texto) {
  Mostrador& v = banco_->v;
  const auto [nombre, cual] = partidoEn(propiedad, '.');
  if (nombre == "Banco") v.Caption = texto;
  Control* c = v.buscar(nombre);
  if (cual == "Enabled") c->Enabled = texto == "sí";
  if (cual == "Visible") c->Visible = texto == "sí";
  if (cual == "ToolTipText") c->ToolTipText = texto;
  if (cual == "Text") v.buscar<TextBox>(nombre)->Text = texto;
  if (propiedad == "Command1.Caption") v.Command1.Caption = texto;
  if (propiedad == "Label1.Caption") v.Label1.Caption = texto;
  if (cual == "Panel1") v.Barra.Panel1 = texto;
  if (cual == "Max") v.Bar1.Max = std::stoi(texto);
  if (propiedad == "Bar1.Value") v.Bar1.Value = std::stod(texto);
  if (propiedad == "Option2.Value") v.Option2.Value = texto == "sí";
  if (propiedad == "Check1.Value") v.Check1.Value = texto == "sí";
  if (cual == "List") v.Combo1.List = partido(texto, '/');
  if (cual == "ListIndex") v.Combo1.ListIndex = std::stoi(texto);
}

QObject* Escena::objeto(const std::string& nombre) const {
  const auto [ventana, resto] = partidoEn(nombre, '.');
  QMainWindow* suya = vista(ventana);
  if (suya == nullptr || resto.empty() || ventana == "Banco")
    return suya == nullptr || resto.empty() ? suya : suya->findChild<QObject*>(aQt(resto));
  QWidget* marco = programa_->sistema.marco(ventana);
  if (resto == "marco") return marco;
  auto* franja = marco->findChild<QWidget*>("franja");
  if (franja != nullptr && !franja->isVisible()) franja = nullptr;
  if (resto == "franja") return franja == nullptr ? nullptr : franja->findChild<QLabel*>();
  if (auto* o = suya->findChild<QObject*>(aQt(resto))) return o;
  for (const QWidget* w : {suya->findChild<QWidget*>("Visor1"), franja})
    for (QObject* o : w == nullptr ? QObjectList() : w->findChildren<QObject*>())
      if (seLlama(*o, resto)) return o;
  return nullptr;
}

}  // namespace calvento
