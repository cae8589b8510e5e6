#include <QScreen>

#include "dibujo/marco_dibujo.h"
#include "qt/escritorio.h"
#include "qt/lugares.h"

namespace calvento {
namespace {

class Lugares : public EnElEscritorio {
 protected:
  QRect alAbrir(const char* nombre) {
    programa.aplicacion.mostrar(nombre);
    QTest::qWait(10);
    return programa.sistema.marco(nombre)->geometry();
  }
};

TEST_F(Lugares, UnaVistaGuardadaQueNoSirveNoEstorba) {
  const auto dibujo = [](Programa& p) { return dynamic_cast<MarcoDibujo*>(p.aplicacion.cargada("Form3")); };
  const auto abierto = [&](Programa& p, const char* ejemplo) {
    EXPECT_TRUE(p.aplicacion.abrirProyecto(std::string(RAIZ_PROYECTO "/ejemplos/") + ejemplo));
    p.aplicacion.mostrar("Form3");
    QTest::qWait(10);
    const Lienzo& l = dibujo(p)->GRAF.lienzo;
    return QRectF(l.ScaleLeft(), l.ScaleTop(), l.ScaleWidth(), -l.ScaleHeight());
  };
  quitarAcercaDe();
  const QRectF poza = abierto(programa, "01-rapida-un-tramo.cvr");
  dibujo(programa)->vistaMas();
  cerrarConLaX("Form3");
  // the figure lies elsewhere by now, or the settings are spoilt
  const QString proyecto = ajustes().value(QStringLiteral("dibujos")).toStringList()[0].section(u'\t', 0, 1);
  for (const char* mala : {"\t0 900 910 5 15", "\t0 nan 910 5 15", "\t1 2", "\t0 9 1 9 1"}) {
    ajustes().setValue(QStringLiteral("dibujos"), QStringList(proyecto + QLatin1String(mala)));
    DialogosGuion cajas;
    Programa otra(cajas);
    otra.aplicacion.mostrar("frmMain");
    EXPECT_EQ(abierto(otra, "01-rapida-un-tramo.cvr"), poza) << mala;
  }
}

TEST_F(Lugares, NuncaFueraDeLaPantalla) {
  quitarAcercaDe();
  const QRect area = vista("frmMain")->findChild<QMdiArea*>()->viewport()->rect();
  const QRect centrada = alAbrir("Form15");
  EXPECT_LE((centrada.center() - area.center()).manhattanLength(), 2);
  const QSize menor = centrada.size();
  cerrarConLaX("Form15");
  for (const QRect& lugar : {QRect(5000, -900, 300, 200), QRect(-400, 3000, 9000, 9000), QRect(-1, -1, 1, 1)}) {
    guardarLugar("Form15", *vista("frmMain"), {lugar});
    guardarLugar("frmMain", *vista("frmMain"), {lugar});
    const QRect ahora = alAbrir("Form15");
    EXPECT_TRUE(area.contains(ahora.topLeft())) << ahora.x() << " " << ahora.y();
    EXPECT_LE(ahora.height(), std::max(area.height(), menor.height()));
    cerrarConLaX("Form15");
    DialogosGuion cajas;
    Programa otra(cajas);
    otra.aplicacion.mostrar("frmMain");
    const QWidget* principal = otra.sistema.vista("frmMain");
    EXPECT_TRUE(principal->screen()->availableGeometry().contains(principal->geometry()));
  }
}

}  // namespace
}  // namespace calvento
