// The window of a study, by real events: what is calculated, sorted, searched, saved and taken over.
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>

#include "apoyo/carpeta_prueba.h"
#include "qt/cadena.h"
#include "qt/escritorio.h"
#include "qt/vista_estudio.h"

namespace calvento {
namespace {

class VentanaDeEstudio : public EnElEscritorio {
 protected:
  void SetUp() override {
    EnElEscritorio::SetUp();
    quitarAcercaDe();
    programa.aplicacion.abrirProyecto(RAIZ_PROYECTO "/ejemplos/01-rapida-un-tramo.cvr");
    elegir("Form10", "mnestudio");
    QTest::qWait(20);
  }
  VistaEstudio& estudio() {
    return dynamic_cast<VistaEstudio&>(*vista("EstudioForm10")->findChild<QWidget*>(QStringLiteral("Visor1")));
  }
  QLineEdit* linea(const char* nombre) {
    for (auto* c : estudio().findChildren<QLineEdit*>())
      if (c->accessibleName() == aQt(nombre)) return c;
    return nullptr;
  }
  void pulsar(const char* rotulo) {
    for (auto* b : estudio().findChildren<QPushButton*>())
      if (QString(b->text()).remove(u'&') == aQt(rotulo)) return QTest::mouseClick(b, Qt::LeftButton);
    FAIL() << rotulo;
  }
  void serie(const char* desde, const char* hasta, const char* paso) {
    for (const auto& [nombre, texto] :
         {std::pair{"Varía desde", desde}, {"Varía hasta", hasta}, {"Varía paso", paso}}) {
      linea(nombre)->selectAll();
      *texto == '\0' ? QTest::keyClick(linea(nombre), Qt::Key_Delete) : QTest::keyClicks(linea(nombre), aQt(texto));
    }
  }
  bool calcular() {
    pulsar("Calcular");
    return QTest::qWaitFor([&] { return !estudio().findChild<QProgressBar*>()->isVisible() && filas() > 0; });
  }
  QTableView& tabla() { return *estudio().findChild<QTableView*>(); }
  int filas() { return tabla().model()->rowCount(); }
  std::string celda(int fila, int columna) { return deQt(tabla().model()->index(fila, columna).data().toString()); }
  bool dice(const char* texto) {
    for (const auto* l : estudio().findChildren<QLabel*>())
      if (l->text().contains(aQt(texto))) return true;
    return false;
  }

  CarpetaPrueba carpeta;
};

TEST_F(VentanaDeEstudio, CalculaOrdenaYUsaUnDiseno) {
  EXPECT_EQ(linea("Varía desde")->text().isEmpty(), false) << "limits are proposed";
  serie("1.5", "1.9", "0,1");
  ASSERT_TRUE(calcular());
  ASSERT_EQ(filas(), 5);
  EXPECT_EQ(celda(0, 0), "1.5");
  tabla().sortByColumn(0, Qt::DescendingOrder);
  EXPECT_EQ(celda(0, 0), "1.9");
  EXPECT_EQ(campo("Form10", "Text10")->text(), "1.65") << "nothing is put before the user takes it";
  dialogos.tolera(DialogosGuion::Clase::aviso);
  tabla().selectRow(1);
  const std::string y1 = celda(1, 2);
  pulsar("Usar este diseño");
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return vista("frmMain")->findChild<QMdiArea*>()->activeSubWindow()->widget() == vista("Form10"); }));
  EXPECT_EQ(campo("Form10", "Text10")->text(), "1.8");
  EXPECT_NEAR(std::stod(y1), programa.aplicacion.estado.y1.valor(), 0.0006);
}

TEST_F(VentanaDeEstudio, DosEntradasSonTodasLasCombinaciones) {
  serie("1.6", "1.7", "0.05");
  auto* tambien = estudio().findChildren<QComboBox*>().at(1);
  for (int i = 0; i < tambien->count(); ++i)
    if (tambien->itemData(i) == "tipoTanque") tambien->setCurrentIndex(i);
  ASSERT_TRUE(calcular());
  EXPECT_EQ(filas(), 3 * 6);
  EXPECT_EQ(celda(1, 1), "USBR - I");
  const std::string archivo = carpeta.en("tabla.csv");
  EXPECT_TRUE(estudio().guardarTabla(aQt(archivo), true));
  const std::string csv = carpeta.leer("tabla.csv");
  EXPECT_TRUE(csv.starts_with("\xEF\xBB\xBF")) << csv.substr(0, 40);
  EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 19);
  EXPECT_NE(csv.find("1,65;"), std::string::npos);
}

TEST_F(VentanaDeEstudio, LoQueNoTieneResultadoDicePorQue) {
  serie("0.1", "1.7", "1.6");
  ASSERT_TRUE(calcular());
  EXPECT_NE(celda(0, tabla().model()->columnCount() - 1), "");
  EXPECT_EQ(celda(0, 2), "") << "no figure of a calculation that stopped";
  EXPECT_EQ(celda(1, tabla().model()->columnCount() - 1), "");
}

TEST_F(VentanaDeEstudio, BuscaUnValorYDiceCuandoNoLoHay) {
  serie("1.2", "2.2", "0.1");
  QTest::keyClicks(linea("Valor que se busca"), "0");
  pulsar("Buscar");  // the rise, which comes first
  EXPECT_TRUE(dice("Sobreelevación = ")) << "found";
  EXPECT_TRUE(dice(" con "));
  QTest::keyClicks(linea("Valor que se busca"), "99");
  QTest::keyClick(linea("Valor que se busca"), Qt::Key_Return);
  EXPECT_TRUE(dice("no toma el valor"));
}

TEST_F(VentanaDeEstudio, LoMalEscritoSeDiceYNoQuitaLoQueHay) {
  serie("1.6", "1.8", "0.1");
  ASSERT_TRUE(calcular());
  const struct {
    const char *desde, *hasta, *paso, *mensaje;
  } malas[] = {{"", "2", "0.1", "Falta el valor"},
               {"1", "dos", "0.1", "no es un número"},
               {"1", "2", "0", "⚠"},
               {"2", "1", "0.1", "⚠"},
               {"1", "2", "0.0000001", "⚠"}};
  for (const auto& m : malas) {
    serie(m.desde, m.hasta, m.paso);
    pulsar("Calcular");
    EXPECT_TRUE(dice(m.mensaje)) << m.desde << " " << m.hasta << " " << m.paso;
    EXPECT_EQ(filas(), 3);
  }
}

TEST_F(VentanaDeEstudio, SeDetieneYSeCierraMientrasCalcula) {
  serie("1", "3", "0.001");
  pulsar("Calcular");
  pulsar("Detener");
  const int hay = filas();
  EXPECT_GT(hay, 0);
  EXPECT_LT(hay, 2001);
  EXPECT_TRUE(dice("Detenido: eran 2001"));
  QTest::qWait(50);
  EXPECT_EQ(filas(), hay);
  pulsar("Calcular");
  cerrarConLaX("EstudioForm10");
  QTest::qWait(50);
  EXPECT_EQ(vista("EstudioForm10"), nullptr);
  elegir("Form10", "mnestudio");
  elegir("Form10", "mncerrar");
  QTest::qWait(20);
  pulsar("Calcular");
  EXPECT_TRUE(dice("La ventana de datos está cerrada"));
}

}  // namespace
}  // namespace calvento
