// Every window with the fonts that desktops have: nothing on it is cut.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QStyleOptionFrame>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

#include "apoyo/dialogos_guion.h"
#include "plataforma/ventana_datos.h"
#include "qt/cadena.h"
#include "qt/programa.h"

namespace calvento {
namespace {

class Letra : public testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    QFont f = QApplication::font();
    f.setPointSize(GetParam());
    QApplication::setFont(f);
    for (const auto clase : {DialogosGuion::Clase::aviso, DialogosGuion::Clase::pregunta}) dialogos.tolera(clase);
  }
  void TearDown() override { QApplication::setFont(antes); }

  /// The texts of the window itself: the main one also holds the others.
  static bool seMide(const QWidget* w, const QMainWindow& vista) {
    const auto* boton = qobject_cast<const QAbstractButton*>(w);
    const bool conTexto = qobject_cast<const QLabel*>(w) || qobject_cast<const QLineEdit*>(w) ||
                          qobject_cast<const QGroupBox*>(w) || boton != nullptr;
    if (!conTexto || (boton != nullptr && boton->text().isEmpty())) return false;
    const QWidget* suya = w;
    while (suya != nullptr && qobject_cast<const QMainWindow*>(suya) == nullptr) suya = suya->parentWidget();
    return suya == &vista && w->isVisibleTo(&vista) && !w->objectName().startsWith("qt_");
  }
  static bool seVeEntero(const QWidget& w, const QMainWindow& vista) {
    for (const QWidget* padre = w.parentWidget(); padre != nullptr && padre != &vista; padre = padre->parentWidget())
      if (!padre->rect().contains(QRect(w.mapTo(padre, QPoint()), w.size()))) return false;
    return true;
  }
  static QSize pide(const QWidget& w) {
    if (const auto* linea = qobject_cast<const QLineEdit*>(&w)) {
      QStyleOptionFrame opcion;
      opcion.initFrom(linea);
      opcion.lineWidth = linea->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &opcion, linea);
      constexpr int margen = 2;  // of the text, on each side
      const QString texto = linea->text().isEmpty() ? QStringLiteral("0.0008") : linea->text();
      const QSize contenido(linea->fontMetrics().horizontalAdvance(texto) + 2 * margen, 0);
      return {linea->style()->sizeFromContents(QStyle::CT_LineEdit, &opcion, contenido, linea).width(),
              linea->minimumSizeHint().height()};
    }
    const auto* rotulo = qobject_cast<const QLabel*>(&w);
    if (rotulo != nullptr && rotulo->wordWrap()) return {w.minimumSizeHint().width(), w.heightForWidth(w.width())};
    return w.minimumSizeHint();
  }
  void medir(QMainWindow& vista) {
    QTest::qWait(0);
    for (const QWidget* w : vista.findChildren<QWidget*>()) {
      const std::string quien = deQt(vista.objectName() + "." + w->objectName() + w->property("text").toString());
      // what its parent's layout does not know lies in a corner, under something else
      const auto todas = w->parentWidget()->findChildren<QLayout*>();
      EXPECT_TRUE(!w->isVisible() || w->isWindow() || w->parentWidget()->layout() == nullptr ||
                  w->objectName().startsWith("qt_") || w->inherits("QMenuBar") ||
                  std::any_of(todas.begin(), todas.end(), [&](const QLayout* l) { return l->indexOf(w) >= 0; }))
          << quien << " " << w->metaObject()->className();
      if (!seMide(w, vista)) continue;
      const QSize falta = pide(*w);
      EXPECT_TRUE(falta.width() <= w->width() && falta.height() <= w->height())
          << quien << ": " << w->width() << "x" << w->height() << ", needs " << falta.width() << "x" << falta.height();
      EXPECT_TRUE(seVeEntero(*w, vista)) << quien;
    }
    for (const QTableView* t : vista.findChildren<QTableView*>())
      if (t->model()->rowCount() == 6) {
        const int fin = t->rowViewportPosition(5) + t->rowHeight(5);
        EXPECT_LE(fin, t->viewport()->height()) << deQt(vista.objectName()) << ": the last row is hidden";
      }
  }
  QMainWindow& abrir(const char* ejemplo) {
    const std::string ruta = std::string(RAIZ_PROYECTO "/ejemplos/") + ejemplo;
    programa.aplicacion.abrirProyecto(ruta);
    const std::string fin = ruta.substr(ruta.size() - 3);
    return *programa.sistema.vista(fin == "cvr" ? "Form10" : fin == "cvi" ? "Form1" : "Form16");
  }

  const QFont antes = QApplication::font();
  DialogosGuion dialogos;
  Programa programa{dialogos};
};

TEST_P(Letra, NadaSeCortaEnNingunaVentana) {
  programa.aplicacion.mostrar("frmMain");
  for (const char* ejemplo : {"14-inclinada-llegada-rapida.cvi", "13-inclinada-supercritica.cvi",
                              "22-vertical-con-obstaculos.cvv", "04-tres-tramos.cvr"}) {
    SCOPED_TRACE(ejemplo);
    QMainWindow& vista = abrir(ejemplo);
    medir(vista);
    // the longest that its results say
    auto* v = programa.aplicacion.cargar(deQt(vista.objectName()));
    for (const char* n : {"Label27", "Label48"})
      if (auto* l = v->buscar<Label>(n)) l->Caption = "-0.123";
    for (const char* n : {"Label35", "Label29"})
      if (auto* l = v->buscar<Label>(n); l != nullptr && !l->magnitud.nombre.empty())
        l->Caption = "k=  -102.34%  ;Y2=h+Yw";
    medir(vista);
    v->buscar<Frame>("Frame1")->Visible = false;
    v->buscar<Label>("Label41")->Caption = "FLUJO SUPER CRITICO, EN CANAL AGUAS ARRIBA";
    medir(vista);
  }
  for (const VentanaUi& ui : ventanasUi()) {
    programa.aplicacion.mostrar(ui.nombre);
    QMainWindow* vista = programa.sistema.vista(ui.nombre);
    ASSERT_NE(vista, nullptr) << ui.nombre;
    auto* pestanas = vista->findChild<QTabWidget*>();
    for (int i = 0; i < (pestanas != nullptr ? pestanas->count() : 1); ++i) {
      if (pestanas != nullptr) pestanas->setCurrentIndex(i);
      medir(*vista);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Puntos, Letra, testing::Values(9, 13));

}  // namespace
}  // namespace calvento
