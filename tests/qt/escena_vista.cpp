// What a scene can see of the windows.
#include <filesystem>
#include <set>

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QTableView>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolTip>

#include "apoyo/tablas.h"
#include "comun/numeros.h"
#include "escena.h"
#include "qt/cadena.h"

namespace calvento {

namespace {

constexpr auto noEsta = "no está";
std::string siNo(bool b) { return b ? "sí" : "no"; }

}  // namespace

std::vector<QMdiSubWindow*> Escena::enOrden() const {
  std::vector<QMdiSubWindow*> todas;
  for (QMdiSubWindow* h :
       programa_->sistema.vista("frmMain")->findChild<QMdiArea*>()->subWindowList(QMdiArea::StackingOrder))
    if (h->isVisible()) todas.insert(todas.begin(), h);
  return todas;
}

/// The window that is active, above all others and has the focus.
std::string Escena::enFrente() const {
  const auto* activa = programa_->sistema.vista("frmMain")->findChild<QMdiArea*>()->activeSubWindow();
  if (activa == nullptr || activa != enOrden().front()) return "not above the others";
  const QWidget* foco = QApplication::focusWidget();
  return (foco != nullptr && activa->isAncestorOf(foco) ? "" : "without the focus ") +
         deQt(activa->widget()->objectName());
}

std::string Escena::marcados(const std::string& ventana) const {
  std::set<std::string> todos;
  if (const QMainWindow* vista = programa_->sistema.vista(ventana))
    for (const QLineEdit* c : vista->findChildren<QLineEdit*>())
      if (!c->accessibleDescription().isEmpty()) todos.insert(deQt(c->objectName() + ": " + c->toolTip()));
  std::string s;
  for (const std::string& t : todos) s += (s.empty() ? "" : "; ") + t;
  return s;
}

std::string Escena::valor(const std::string& nombre) const {
  std::string s;
  if (nombre == "hecho") return sinBlancos(banco_ ? banco_->v.hecho : hecho_);
  if (nombre == "conLaCaja") return conLaCaja_;
  if (esNumero(nombre)) return nombre;
  if (nombre == "visto") return visto_;
  if (nombre == "bajoElPuntero") return deQt(QToolTip::text().replace(u'\n', u'/'));
  if (nombre == "enfrente") return enFrente();
  if (nombre == "sugerido") return cajas_.ultimasOpciones.sugerido;
  if (nombre == "copiado") {
    const QImage i = QGuiApplication::clipboard()->image();
    return i.isNull() ? deQt(QGuiApplication::clipboard()->text().replace(u'\t', u'¦').replace(u'\n', u'/'))
                      : "imagen " + std::to_string(i.width()) + " x " + std::to_string(i.height());
  }
  if (nombre == "foco") {
    const QWidget* f = QApplication::focusWidget();
    const QWidget* v = f;
    while (v != nullptr && qobject_cast<const QMainWindow*>(v) == nullptr) v = v->parentWidget();
    return v == nullptr ? "none" : deQt(v->objectName() + "." + f->objectName());
  }
  if (nombre == "orden") {
    for (const QMdiSubWindow* h : enOrden()) s += deQt(h->widget()->objectName()) + " ";
    return sinBlancos(s);
  }
  if (nombre == "lugares") {
    std::set<std::pair<int, int>> lugares;
    for (const QMdiSubWindow* h : enOrden()) lugares.emplace(h->x(), h->y());
    return std::to_string(lugares.size());
  }
  if (nombre == "menu") {  // whose menu bar the keys are in
    for (const VentanaUi& v : ventanasUi())
      if (const QMainWindow* vista = programa_->sistema.vista(v.nombre))
        if (const auto* barra = qobject_cast<QMenuBar*>(vista->menuWidget()); barra != nullptr && barra->hasFocus())
          s += barra->activeAction() != nullptr ? v.nombre : "nothing chosen";
    return s;
  }
  if (nombre == "desplegado") {
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    for (const QAction* a : menu == nullptr ? QList<QAction*>() : menu->actions())
      s += (s.empty() ? "" : " | ") + std::string(a->isChecked() ? "*" : a->isEnabled() ? "" : "-") + deQt(a->text());
    return s;
  }
  const auto [ventana, resto] = partidoEn(nombre, '.');
  if (ventana == "estado") {
    for (const CampoSingle& c : camposSingle())
      if (c.nombre == resto) return texto(programa_->aplicacion.estado.*c.campo);
  }
  if (ventana == "archivo" && !std::filesystem::exists(carpeta_.en(resto))) return noEsta;
  return ventana == "archivo" ? carpeta_.leer(resto) : deVentana(ventana, resto);
}

std::string Escena::deVentana(const std::string& ventana, const std::string& que) const {
  QMainWindow* suya = vista(ventana);
  if (que.empty()) {
    const QWidget* marco = programa_->sistema.marco(ventana);
    return marco == nullptr ? noEsta : marco->isVisible() ? "a la vista" : "oculta";
  }
  if (suya == nullptr) return noEsta;
  if (que == "marcados") return marcados(ventana);
  if (que == "rotulos") {
    std::string s;
    for (const QLabel* l : suya->findChildren<QLabel*>()) s += deQt(l->text()) + "|";
    return s;
  }
  const auto [nombre, propiedad] = partidoEn(que, '.');
  const auto [control, celda] = partidoEn(nombre, '[');
  const bool dePropia = control == "width" || control == "height" || control == "windowTitle";
  QObject* o = dePropia ? suya : objeto(ventana + "." + control);
  if (o == nullptr) return noEsta;
  if (auto* t = qobject_cast<QAbstractItemView*>(o); t != nullptr && !celda.empty()) {
    const auto n = partido(celda, '[');
    const int fila = std::stoi(n.at(0)), columna = std::stoi(n.at(1));
    const QVariant titulo = t->model()->headerData(columna, Qt::Horizontal);
    return deQt((fila < 0 ? titulo : t->model()->index(fila, columna).data()).toString().replace(u'\n', u' '));
  }
  return deWidget(ventana, *o, dePropia ? control : propiedad);
}

/// What Qt or a screen reader tells of a widget.
std::string Escena::deWidget(const std::string& ventana, QObject& o, const std::string& que) const {
  auto* w = qobject_cast<QWidget*>(&o);
  const auto* lista = qobject_cast<QAbstractItemView*>(w);
  const auto* area = qobject_cast<QAbstractScrollArea*>(w);
  if (que == "filas") return std::to_string(lista->model()->rowCount());
  if (que == "elegida") return std::to_string(lista->currentIndex().row());
  if (que == "desplazado") return std::to_string(area->verticalScrollBar()->value());
  if (que == "recorrido") return std::to_string(area->verticalScrollBar()->maximum());
  if (que == "hidden") return siNo(w->isHidden());
  if (auto* t = qobject_cast<QTextBrowser*>(w); t != nullptr && que == "letra")
    return deQt(QString::number(t->document()->defaultFont().pointSizeF()));
  if (auto* t = qobject_cast<QTextBrowser*>(w); t != nullptr && que == "arriba")
    return deQt(t->cursorForPosition(QPoint(1, 1)).block().text());
  if (auto* t = qobject_cast<QTextBrowser*>(w); t != nullptr && que == "elegido")
    return deQt(t->textCursor().selectedText());
  if (auto* t = qobject_cast<QTextBrowser*>(w); t != nullptr && que == "cursor")
    return std::to_string(t->textCursor().position());
  if (que == "fondo") return deQt(w->palette().color(QPalette::Base).name());
  if (que == "pintado") {
    const QImage imagen = w->grab().toImage();
    return std::to_string(qHashBits(imagen.constBits(), static_cast<std::size_t>(imagen.sizeInBytes())));
  }
  if (que == "indice") return std::to_string(w->parentWidget()->children().indexOf(w));
  if (que == "marcado")
    return siNo(w->palette().color(QPalette::Base) != vista(ventana)->palette().color(QPalette::Base));
  if (que == "Text") return banco_->v.buscar<TextBox>(deQt(o.objectName()))->Text;
  if (que == "SelLength") return std::to_string(banco_->v.buscar<TextBox>(deQt(o.objectName()))->SelLength);
  if (que == "dibujado")
    return std::to_string(
        programa_->aplicacion.cargada(ventana)->buscar<PictureBox>(deQt(o.objectName()))->lienzo.version());
  if (que == "leido") {
    auto* lector = QAccessible::queryAccessibleInterface(&o);
    if (lector->textInterface() == nullptr || !lector->state().readOnly) return "no result";
    const QString valor = lector->text(QAccessible::Value);
    auto& linea = *lector->textInterface();
    int desde = -1, hasta = -1;
    EXPECT_EQ(linea.text(0, 200) + linea.attributes(0, &desde, &hasta), valor);
    EXPECT_TRUE(desde == 0 && hasta == valor.size() && linea.characterCount() == hasta && linea.selectionCount() == 0);
    EXPECT_EQ(linea.text(1, 3), valor.mid(1, 2));
    return deQt(lector->text(QAccessible::Name) + ": " + lector->text(QAccessible::Value));
  }
  QVariant v = o.property(que.empty() ? "text" : que.c_str());
  if (que.empty() && !v.isValid()) v = o.property("currentText");
  if (!v.isValid()) return "no property " + que;
  return v.typeId() == QMetaType::Bool ? siNo(v.toBool()) : deQt(v.toString());
}

}  // namespace calvento
