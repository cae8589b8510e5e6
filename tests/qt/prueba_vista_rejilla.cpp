// Tables on the screen and on their way to a spreadsheet.
#include <gtest/gtest.h>
#include <memory>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "apoyo/mesas.h"
#include "pantalla.h"
#include "plataforma/ventana.h"
#include "qt/cadena.h"
#include "qt/dialogos_qt.h"
#include "qt/programa.h"
#include "qt/vista_rejilla.h"

namespace calvento {
namespace {

struct ConTabla : Ventana {
  ConTabla() : Ventana("ConTabla") {
    Rejilla& t = Grid1.tabla;
    t.formatoColumnas("^Tipo de Disipador |<Froude|>Causas");
    t.dimensionar(4, 3);
    const char* textos[3][3] = {{"USBR - I", "2.5 <= Fr <4.5", "a & b"}, {"SAF", "", "una causa mucho más larga"}, {}};
    for (int f = 1; f < 4; ++f)
      for (int c = 0; c < 3; ++c) {
        t.poner(f, c, textos[f - 1][c] == nullptr ? "" : textos[f - 1][c]);
        t.pintar(f, c, color::celda);
      }
  }
  Grid Grid1{*this, "Grid1"};
};

/// Headings, and no row for the empty one at the end.
constexpr const char* todoElTexto =
    "Tipo de Disipador\tFroude\tCausas\nUSBR - I\t2.5 <= Fr <4.5\ta & b\nSAF\t\tuna causa mucho más larga";

class TablaEnPantalla : public testing::Test {
 protected:
  void mostrar(bool sePulsa = false) {
    if (sePulsa)
      v->Grid1.Click = [this] {
        filas.push_back(v->Grid1.MouseRow);
        for (int c = 0; c < 3; ++c) v->Grid1.tabla.pintar(v->Grid1.MouseRow, c, color::celdaElegida);
      };
    widget.mostrar(v->Grid1, [](const std::function<void()>& accion) { accion(); });
    widget.resize(700, 300);
    widget.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
  }
  QModelIndex celda(int fila, int columna) { return widget.model()->index(fila, columna); }
  std::string texto(int fila, int columna) { return deQt(celda(fila, columna).data().toString()); }
  std::string titulo(int columna) { return deQt(widget.model()->headerData(columna, Qt::Horizontal).toString()); }
  void pulsarCelda(int fila, int columna) {
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, widget.visualRect(celda(fila, columna)).center());
  }
  void pulsarCabecera() { QTest::mouseClick(widget.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(20, 8)); }

  std::unique_ptr<ConTabla> v = std::make_unique<ConTabla>();
  VistaRejilla widget;
  std::vector<int> filas;
};

TEST_F(TablaEnPantalla, LaCabeceraEsLaFilaCeroYNoDejaMarca) {
  mostrar(true);
  EXPECT_EQ(widget.model()->rowCount(), 3);
  EXPECT_EQ(titulo(0), "Tipo de Disipador");
  EXPECT_EQ(texto(0, 0), "USBR - I");
  const auto espacio = [&] { QTest::keyClick(&widget, Qt::Key_Space); };
  const struct {
    const char* que;
    std::function<void()> accion;
    std::vector<int> filas;
    int actual;
  } casos[] = {
      {"the header", [&] { pulsarCabecera(), espacio(); }, {0}, -1},
      {"a box that goes",
       [&] { widget.clearFocus(), widget.setFocus(Qt::ActiveWindowFocusReason), espacio(); },
       {},
       -1},
      {"a row", [&] { pulsarCelda(1, 2), espacio(); }, {2, 2}, 1},
      {"the header after it", [&] { pulsarCabecera(), espacio(); }, {0}, -1},
      {"an arrow", [&] { QTest::keyClick(&widget, Qt::Key_Down), espacio(); }, {1}, 0},
      {"the next", [&] { QTest::keyClick(&widget, Qt::Key_Down), espacio(); }, {2}, 1},
      {"below the rows",
       [&] {
         pulsarCabecera(), QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, {9, 200});
       },
       {0},
       -1},
      {"the tab key", [&] { widget.clearFocus(), widget.setFocus(Qt::TabFocusReason), espacio(); }, {1}, 0},
  };
  for (const auto& c : casos) {
    filas.clear();
    c.accion();
    EXPECT_EQ(filas, c.filas) << c.que;
    EXPECT_EQ(widget.currentIndex().row(), c.actual) << c.que;
    EXPECT_FALSE(widget.selectionModel()->hasSelection()) << c.que;
  }
  // nor is anything typed into the table
  QTest::mouseDClick(widget.viewport(), Qt::LeftButton, {}, widget.visualRect(celda(0, 0)).center());
  QTest::keyClicks(&widget, "xyz");
  EXPECT_EQ(texto(0, 0), "USBR - I");
}

TEST_F(TablaEnPantalla, LaFilaElegidaTieneSuColorSinMezcla) {
  mostrar(true);
  pulsarCelda(1, 1);
  QTest::keyClick(&widget, Qt::Key_Up);
  QTest::keyClick(&widget, Qt::Key_Down);  // the keyboard is on the row, and so is the pointer
  QTest::mouseMove(widget.viewport(), widget.visualRect(celda(1, 1)).center());
  const QImage vista = enPantalla(*widget.viewport());
  for (int c = 0; c < 3; ++c) {
    const QRect r = widget.visualRect(celda(1, c));
    EXPECT_EQ(vista.pixelColor(r.bottomLeft() + QPoint(3, -3)), QColor(0, 255, 255)) << c;
    EXPECT_EQ(vista.pixelColor(r.topRight() + QPoint(-3, 3)), QColor(0, 255, 255)) << c;
  }
}

TEST_F(TablaEnPantalla, DiceSolaQueCambio) {
  mostrar();
  Rejilla& t = v->Grid1.tabla;
  const std::pair<const char*, std::function<void()>> cambios[] = {
      {"a text", [&] { t.poner(2, 1, "otro"); }},
      {"a colour", [&] { t.pintar(2, 1, color::celdaElegida); }},
      {"a heading", [&] { t.poner(0, 1, "Fr"); }},
      {"a width", [&] { t.ponerAncho(1, 3000); }},
      {"an alignment", [&] { t.alinear(0, Alineacion::derecha); }},
      {"a row less", [&] { t.dimensionar(3, 3); }},
      {"two rows of titles", [&] { t.ponerTitulos(2); }},
      {"joined", [&] { t.ponerTitulos(1, true); }},
      {"another table", [&] { t = Rejilla(7, 2), t.poner(6, 1, "nueva"); }},
  };
  QImage antes = enPantalla(widget);
  for (const auto& [que, cambiar] : cambios) {
    cambiar();
    const QImage ahora = enPantalla(widget);
    EXPECT_NE(ahora, antes) << que;
    antes = ahora;
  }
  EXPECT_EQ(widget.model()->rowCount(), 6);
  // a picture that is taken in the event of the change has it already
  t.dimensionar(3, 2);
  EXPECT_NE(widget.grab().toImage(), antes);
  EXPECT_EQ(widget.model()->rowCount(), 2);
  v.reset();  // the window goes first
  EXPECT_EQ(texto(0, 0) + titulo(0), "");
  EXPECT_EQ(enPantalla(widget).size(), widget.size());
}

TEST_F(TablaEnPantalla, LosTitulosIgualesSeUnenYSiguenSiendoLaFilaCero) {
  Rejilla& t = v->Grid1.tabla;
  t.ponerTitulos(2, true);
  t.poner(0, 1, "Froude");
  t.poner(0, 2, "Froude");
  mostrar(true);
  EXPECT_EQ(widget.model()->rowCount(), 4);
  EXPECT_EQ(widget.columnSpan(0, 1), 2);
  EXPECT_EQ(widget.columnSpan(0, 0), 1);
  pulsarCelda(0, 1);
  pulsarCelda(3, 0);
  EXPECT_EQ(filas, (std::vector<int>{0, 3}));
  const int ancho = widget.columnWidth(1);
  for (const int c : {1, 2}) t.poner(0, c, "Un título que corre sobre más que su propia columna");
  QTest::qWait(0);
  EXPECT_EQ(widget.columnWidth(1), ancho);
  t.poner(0, 2, "Causas");
  QTest::qWait(0);
  EXPECT_EQ(widget.columnSpan(0, 1), 1);
}

TEST_F(TablaEnPantalla, VariasFilasDeTitulosSonLineasDeLaCabecera) {
  v->Grid1.tabla.ponerTitulos(2);
  mostrar(true);
  EXPECT_EQ(widget.model()->rowCount(), 2);
  EXPECT_EQ(titulo(0), "Tipo de Disipador\nUSBR - I");
  EXPECT_GT(widget.horizontalHeader()->height(), 2 * widget.fontMetrics().lineSpacing());
  pulsarCelda(0, 2);
  EXPECT_EQ(filas, (std::vector<int>{2}));
  EXPECT_EQ(deQt(widget.copia()->text()), todoElTexto) << "both go to the spreadsheet";
}

TEST_F(TablaEnPantalla, NingunTextoSeCorta) {
  v->Grid1.tabla.ponerAncho(2, 300);
  v->Grid1.tabla.ponerAncho(1, 6000);
  mostrar();
  EXPECT_EQ(widget.columnWidth(1), 400);  // 6000 twips
  for (const int puntos : {9, 14}) {
    QFont letra = widget.font();
    letra.setPointSize(puntos);
    widget.setFont(letra);
    for (int c = 0; c < 3; ++c)
      for (int f = 0; f < 3; ++f) {
        EXPECT_GT(widget.columnWidth(c), widget.fontMetrics().horizontalAdvance(aQt(texto(f, c)))) << c;
        EXPECT_GE(widget.rowHeight(f), widget.fontMetrics().height());
      }
  }
}

TEST_F(TablaEnPantalla, LasCeldasDeColorSeLeenEnUnEscritorioOscuro) {
  const QPalette antes = QGuiApplication::palette();
  QApplication::setPalette(QPalette(QColor(0x2b, 0x2b, 0x2b)));
  v->Grid1.tabla.pintar(2, 1, color::celdaElegida);
  v->Grid1.tabla.pintar(3, 1, color::ventana);
  mostrar();
  const auto color = [&](int fila, int papel) { return celda(fila, 1).data(papel).value<QBrush>().color(); };
  EXPECT_EQ(color(0, Qt::BackgroundRole), QColor(255, 255, 192));
  EXPECT_EQ(color(0, Qt::ForegroundRole), QColor(Qt::black));
  EXPECT_EQ(color(1, Qt::BackgroundRole), QColor(0, 255, 255));
  EXPECT_EQ(color(1, Qt::ForegroundRole), QColor(Qt::black));
  EXPECT_FALSE(celda(2, 1).data(Qt::BackgroundRole).isValid());  // neither colour set: the desktop's own pair
  EXPECT_FALSE(celda(2, 1).data(Qt::ForegroundRole).isValid());
  QApplication::setPalette(antes);
}

TEST_F(TablaEnPantalla, CopiarLlevaTextoYHtml) {
  mostrar();
  widget.selectAll();
  QTest::keyClick(&widget, Qt::Key_C, Qt::ControlModifier);
  const QMimeData* datos = QGuiApplication::clipboard()->mimeData();
  EXPECT_EQ(deQt(datos->text()), todoElTexto);
  EXPECT_TRUE(datos->html().contains("<th>Causas</th>"));
  EXPECT_TRUE(datos->html().contains("<td>2.5 &lt;= Fr &lt;4.5</td><td>a &amp; b</td></tr>"));
  EXPECT_EQ(datos->html().count("<tr>"), 3);

  widget.clearSelection();
  EXPECT_EQ(widget.copia()->text(), datos->text()) << "without a choice the whole table goes";
  widget.selectionModel()->select(QItemSelection(celda(0, 1), celda(1, 2)), QItemSelectionModel::Select);
  EXPECT_EQ(deQt(widget.copia()->text()), "2.5 <= Fr <4.5\ta & b\n\tuna causa mucho más larga");
}

/// The chute on the desktop with real boxes: 'Seleccione el Tipo de Tanque' stands before the table it speaks of.
TEST(TablaAnteUnaCaja, MuestraLosVeredictosDelCalculoQueCorre) {
  DialogosQt dialogos;
  Programa programa{dialogos};
  programa.aplicacion.arrancar();
  programa.aplicacion.mostrar("Form10");
  Ventana& rapida = *programa.aplicacion.cargada("Form10");
  MesaRapida::ponerEn(rapida, datosDe("rapida de un tramo"));
  const QMainWindow* vista = programa.sistema.vista("Form10");
  auto* tabla = vista->findChild<QTableView*>("Grid1");
  ASSERT_TRUE(QTest::qWaitForWindowExposed(tabla->window()));
  for (const char* talud : {"0", "1"}) {  // each gives other verdicts
    rapida.buscar<TextBox>("Text24")->Text = talud;
    const QImage antes = enPantalla(*tabla);
    QImage conCaja;
    QTimer reloj;
    reloj.callOnTimeout([&] {
      const auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (caja == nullptr || !conCaja.isNull()) return;
      if (deQt(caja->text()) == avisoSinTanque) {
        conCaja = QImage(1, 1, QImage::Format_RGB32);  // not again while this one waits
        conCaja = enPantalla(*tabla);
      }
      QTest::mouseClick(caja->buttons().constFirst(), Qt::LeftButton);
    });
    reloj.start(5);
    QTest::mouseClick(vista->findChild<QPushButton*>("Command3"), Qt::LeftButton);
    EXPECT_NE(conCaja, antes) << talud;
    // the first result may give the status bar, and so take from the table, a little height
    const QImage despues = enPantalla(*tabla);
    const QRect comun = conCaja.rect() & despues.rect();
    EXPECT_EQ(conCaja.copy(comun.adjusted(0, 0, -2, -8)), despues.copy(comun.adjusted(0, 0, -2, -8))) << talud;
  }
}

}  // namespace
}  // namespace calvento
