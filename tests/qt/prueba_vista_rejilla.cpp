// Tables on the screen and on their way to a spreadsheet.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMimeData>
#include <QTableWidget>
#include <QTest>

#include "plataforma/ventana.h"
#include "qt/cadena.h"
#include "qt/colores.h"
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

class TablaEnPantalla : public testing::Test {
 protected:
  TablaEnPantalla() : vista(v.Grid1, widget, [](const std::function<void()>& accion) { accion(); }) {
    v.Grid1.alCambiar = [this] { vista.refrescar(); };
    v.Grid1.Click = [this] { filas.push_back(v.Grid1.MouseRow); };
    widget.resize(700, 300);
  }
  void mostrar() {
    vista.refrescar();
    widget.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
  }
  void pulsarCelda(int fila, int columna) {
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, {},
                      widget.visualItemRect(widget.item(fila, columna)).center());
  }

  ConTabla v;
  QTableWidget widget;
  VistaRejilla vista;
  std::vector<int> filas;
};

TEST_F(TablaEnPantalla, LaCabeceraEsLaFilaCero) {
  mostrar();
  EXPECT_EQ(widget.rowCount(), 3);
  EXPECT_EQ(widget.horizontalHeaderItem(0)->text(), "Tipo de Disipador");
  EXPECT_EQ(widget.item(0, 0)->text(), "USBR - I");
  pulsarCelda(1, 2);
  QTest::mouseClick(widget.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(20, 8));
  widget.setCurrentCell(2, 0);
  QTest::keyClick(&widget, Qt::Key_Space);
  EXPECT_EQ(filas, (std::vector<int>{2, 0, 3}));
}

TEST(TablaQueSePulsa, LaFilaElegidaNoQuedaBajoUnaSeleccion) {
  ConTabla v;
  v.Grid1.Click = [] {};
  QTableWidget widget;
  VistaRejilla vista(v.Grid1, widget, [](const std::function<void()>& accion) { accion(); });
  vista.refrescar();
  widget.resize(700, 300);
  widget.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
  QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, widget.visualItemRect(widget.item(1, 1)).center());
  QTest::mouseClick(widget.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(20, 8));
  EXPECT_TRUE(widget.selectedItems().isEmpty());
  QTest::keyClick(&widget, Qt::Key_Down);
  EXPECT_TRUE(widget.selectedItems().isEmpty());
  EXPECT_EQ(vista.copia()->text().count('\n'), 2) << "the whole table is copied";
}

TEST_F(TablaEnPantalla, LosTitulosIgualesSeUnenYSiguenSiendoLaFilaCero) {
  Rejilla& t = v.Grid1.tabla;
  t.unirTitulos = true;
  t.filasTitulo = 2;
  t.poner(0, 1, "Froude");
  t.poner(0, 2, "Froude");
  mostrar();
  EXPECT_EQ(widget.rowCount(), 4);
  EXPECT_TRUE(widget.horizontalHeader()->isHidden());
  EXPECT_EQ(widget.columnSpan(0, 1), 2);
  EXPECT_EQ(widget.columnSpan(0, 0), 1);
  pulsarCelda(0, 1);
  pulsarCelda(3, 0);
  EXPECT_EQ(filas, (std::vector<int>{0, 3}));
  t.poner(0, 2, "Causas");
  v.Grid1.cambiado();
  EXPECT_EQ(widget.columnSpan(0, 1), 1);
}

TEST_F(TablaEnPantalla, VariasFilasDeTitulosSonLineasDeLaCabecera) {
  v.Grid1.tabla.filasTitulo = 2;
  mostrar();
  EXPECT_EQ(widget.rowCount(), 2);
  EXPECT_EQ(widget.horizontalHeaderItem(0)->text(), "Tipo de Disipador\nUSBR - I");
  EXPECT_EQ(widget.item(0, 0)->text(), "SAF");
  EXPECT_GT(widget.horizontalHeader()->height(), 2 * widget.fontMetrics().lineSpacing());
  pulsarCelda(0, 2);
  EXPECT_EQ(filas, (std::vector<int>{2}));
  widget.clearSelection();
  // both go to the spreadsheet, and the row without texts stays behind
  EXPECT_EQ(deQt(vista.copia()->text()),
            "Tipo de Disipador\tFroude\tCausas\nUSBR - I\t2.5 <= Fr <4.5\ta & b\nSAF\t\tuna causa mucho más larga");
}

TEST_F(TablaEnPantalla, NingunTextoSeCorta) {
  v.Grid1.tabla.ponerAncho(2, 300);
  v.Grid1.tabla.ponerAncho(1, 6000);
  mostrar();
  for (int c = 0; c < 3; ++c)
    for (int f = 0; f < 3; ++f)
      EXPECT_GT(widget.columnWidth(c), widget.fontMetrics().horizontalAdvance(widget.item(f, c)->text())) << c;
  EXPECT_EQ(widget.columnWidth(1), 400);  // 6000 twips
}

TEST_F(TablaEnPantalla, LasCeldasDeColorSeLeenEnUnEscritorioOscuro) {
  const QPalette antes = QGuiApplication::palette();
  QApplication::setPalette(QPalette(QColor(0x2b, 0x2b, 0x2b)));
  v.Grid1.tabla.pintar(2, 1, color::celdaElegida);
  v.Grid1.tabla.pintar(3, 1, color::ventana);
  mostrar();
  EXPECT_EQ(widget.item(0, 0)->background().color(), QColor(255, 255, 192));
  EXPECT_EQ(widget.item(0, 0)->foreground().color(), QColor(Qt::black));
  EXPECT_EQ(widget.item(1, 1)->background().color(), QColor(0, 255, 255));
  EXPECT_EQ(widget.item(1, 1)->foreground().color(), QColor(Qt::black));
  EXPECT_EQ(widget.item(2, 1)->background(), QBrush());  // neither colour set: the desktop's own pair
  EXPECT_EQ(widget.item(2, 1)->foreground(), QBrush());
  QApplication::setPalette(antes);
}

TEST_F(TablaEnPantalla, CopiarLlevaTextoYHtml) {
  mostrar();
  widget.selectAll();
  QTest::keyClick(&widget, Qt::Key_C, Qt::ControlModifier);
  const QMimeData* datos = QGuiApplication::clipboard()->mimeData();
  // headings, and no row for the empty one at the end
  EXPECT_EQ(deQt(datos->text()),
            "Tipo de Disipador\tFroude\tCausas\n"
            "USBR - I\t2.5 <= Fr <4.5\ta & b\n"
            "SAF\t\tuna causa mucho más larga");
  EXPECT_TRUE(datos->html().contains("<th>Causas</th>"));
  EXPECT_TRUE(datos->html().contains("<td>2.5 &lt;= Fr &lt;4.5</td><td>a &amp; b</td></tr>"));
  EXPECT_EQ(datos->html().count("<tr>"), 3);

  widget.clearSelection();
  EXPECT_EQ(vista.copia()->text(), datos->text()) << "without a choice the whole table goes";
  widget.setRangeSelected({0, 1, 1, 2}, true);
  EXPECT_EQ(deQt(vista.copia()->text()), "2.5 <= Fr <4.5\ta & b\n\tuna causa mucho más larga");
}

TEST_F(TablaEnPantalla, ElTecladoNoEscribeEnLaTabla) {
  mostrar();
  widget.setCurrentCell(0, 0);
  QTest::keyClicks(&widget, "xyz");
  QTest::mouseDClick(widget.viewport(), Qt::LeftButton, {}, widget.visualItemRect(widget.item(0, 0)).center());
  QTest::keyClicks(&widget, "xyz");
  EXPECT_EQ(widget.item(0, 0)->text(), "USBR - I");
}

}  // namespace
}  // namespace calvento
