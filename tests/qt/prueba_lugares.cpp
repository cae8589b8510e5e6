#include <QScreen>

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

TEST_F(Lugares, UnaVentanaVuelveADondeSeDejo) {
  quitarAcercaDe();
  vista("frmMain")->resize(1200, 900);
  alAbrir("Form14");
  QWidget* marco = programa.sistema.marco("Form14");
  const QRect dejada(QPoint(11, 7), marco->size() + QSize(30, 20));
  marco->setGeometry(dejada);
  cerrarConLaX("Form14");
  EXPECT_EQ(alAbrir("Form14"), dejada);
  cerrarConLaX("Form14");
  DialogosGuion cajas;
  Programa otra(cajas);
  otra.aplicacion.mostrar("frmMain");
  otra.sistema.vista("frmMain")->resize(1200, 900);
  QTest::qWait(10);
  otra.aplicacion.mostrar("Form14");
  EXPECT_EQ(otra.sistema.marco("Form14")->geometry(), dejada);
}

TEST_F(Lugares, NuncaFueraDeLaPantalla) {
  quitarAcercaDe();
  const QRect area = vista("frmMain")->findChild<QMdiArea*>()->viewport()->rect();
  const QSize menor = alAbrir("Form15").size();
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
