// Tables on the screen and on their way to a spreadsheet.
#include <gtest/gtest.h>
#include <memory>

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

/// Headings, and no row for the empty one at the end.
constexpr const char* todoElTexto =
    "Tipo de Disipador\tFroude\tCausas\nUSBR - I\t2.5 <= Fr <4.5\ta & b\nSAF\t\tuna causa mucho más larga";

class TablaEnPantalla : public testing::Test {
 protected:
  void mostrar(bool sePulsa = false) {
    if (sePulsa) v.Grid1.Click = [this] { filas.push_back(v.Grid1.MouseRow); };
    vista = std::make_unique<VistaRejilla>(v.Grid1, widget, [](const std::function<void()>& accion) { accion(); });
    v.Grid1.alCambiar = [this] { vista->refrescar(); };
    vista->refrescar();
    widget.resize(700, 300);
    widget.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
  }
  void pulsarCelda(int fila, int columna) {
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, {},
                      widget.visualItemRect(widget.item(fila, columna)).center());
  }

  ConTabla v;
  QTableWidget widget;
  std::unique_ptr<VistaRejilla> vista;
  std::vector<int> filas;
};

TEST_F(TablaEnPantalla, LaCabeceraEsLaFilaCero) {
  mostrar(true);
  EXPECT_EQ(widget.rowCount(), 3);
  EXPECT_EQ(widget.horizontalHeaderItem(0)->text(), "Tipo de Disipador");
  EXPECT_EQ(widget.item(0, 0)->text(), "USBR - I");
  pulsarCelda(1, 2);
  QTest::mouseClick(widget.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(20, 8));
  widget.setCurrentCell(2, 0);
  QTest::keyClick(&widget, Qt::Key_Space);
  EXPECT_EQ(filas, (std::vector<int>{2, 0, 3}));
  EXPECT_TRUE(widget.selectedItems().isEmpty()) << "the colour of the chosen row lies under a selection";
  // nor is anything typed into the table
  QTest::mouseDClick(widget.viewport(), Qt::LeftButton, {}, widget.visualItemRect(widget.item(0, 0)).center());
  QTest::keyClicks(&widget, "xyz");
  EXPECT_EQ(widget.item(0, 0)->text(), "USBR - I");
}

TEST_F(TablaEnPantalla, LosTitulosIgualesSeUnenYSiguenSiendoLaFilaCero) {
  Rejilla& t = v.Grid1.tabla;
  t.unirTitulos = true;
  t.filasTitulo = 2;
  t.poner(0, 1, "Froude");
  t.poner(0, 2, "Froude");
  mostrar(true);
  EXPECT_EQ(widget.rowCount(), 4);
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
  mostrar(true);
  EXPECT_EQ(widget.rowCount(), 2);
  EXPECT_EQ(widget.horizontalHeaderItem(0)->text(), "Tipo de Disipador\nUSBR - I");
  EXPECT_GT(widget.horizontalHeader()->height(), 2 * widget.fontMetrics().lineSpacing());
  pulsarCelda(0, 2);
  EXPECT_EQ(filas, (std::vector<int>{2}));
  EXPECT_EQ(deQt(vista->copia()->text()), todoElTexto) << "both go to the spreadsheet";
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
  EXPECT_EQ(deQt(datos->text()), todoElTexto);
  EXPECT_TRUE(datos->html().contains("<th>Causas</th>"));
  EXPECT_TRUE(datos->html().contains("<td>2.5 &lt;= Fr &lt;4.5</td><td>a &amp; b</td></tr>"));
  EXPECT_EQ(datos->html().count("<tr>"), 3);

  widget.clearSelection();
  EXPECT_EQ(vista->copia()->text(), datos->text()) << "without a choice the whole table goes";
  widget.setRangeSelected({0, 1, 1, 2}, true);
  EXPECT_EQ(deQt(vista->copia()->text()), "2.5 <= Fr <4.5\ta & b\n\tuna causa mucho más larga");
}

}  // namespace
}  // namespace calvento
