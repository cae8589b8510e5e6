#include "apoyo/dialogos_guion.h"
#include "apoyo/navegador_mudo.h"
#include "apoyo/seccion_desnuda.h"
#include "apoyo/tablas.h"
#include "comun/numeros.h"
#include "reportes/ventana_verificacion.h"

namespace calvento {
namespace {

using desnuda::critico;
using desnuda::impulso;

DesignState rapida() { return registro("verificacion de la rapida"); }

struct Verificacion : testing::Test {
  NavegadorMudo navegador;
  DialogosGuion dialogos;
  Form2 form2{navegador};
  /// The tables of the three windows.
  Rejilla tabla13(const DesignState& e) { return Form13(e, form2, dialogos, navegador).Grid1.tabla; }
  Rejilla tabla7(const DesignState& e) { return Form7(e, form2, dialogos, navegador).Grid1.tabla; }
  Rejilla tabla26(const DesignState& e) { return Form26(e, navegador).Grid1.tabla; }
};

double de(const Rejilla& t, int fila, int columna) { return std::stod(t.texto(fila, columna)); }
/// Discharge of a row: ten tenths of 4 m³/s, from the greatest on.
double caudal(int fila) { return 4.0 * (13 - fila) / 10; }

TEST_F(Verificacion, IgualMomentoEnCadaFila) {
  for (const double z : {0.0, 0.5, 1.5}) {
    DesignState e = rapida();
    e.zPoza = e.zPozaCaida = z;
    e.tipoTanque = z == 0 ? 1 : 6;
    const Rejilla t = tabla13(e);
    EXPECT_EQ(std::tuple(t.anchoTwips(0), t.anchoTwips(9), t.alineacion(0)), std::tuple(250, 1600, Alineacion::centro));
    for (int fila = 3; fila <= 12; ++fila) {
      const double Q = caudal(fila);
      EXPECT_NEAR(de(t, fila, 1), Q, 1e-9);
      const double y1 = de(t, fila, 2);  // what the row goes on with is the rounded depth itself
      const double y2 = de(t, fila, 4), M = impulso(Q, 2.5, z, y1);
      EXPECT_NEAR(de(t, fila, 3), M, 6e-4) << z;
      EXPECT_NEAR(de(t, fila, 5), M, 6e-4) << z;
      EXPECT_NEAR(impulso(Q, 2.5, z, y2), M, desnuda::area(2.5, z, y2) * 6e-4) << z;
      EXPECT_GT(y2, critico(Q, 2.5) * (z == 0 ? 1 : 0.6)) << "on the slow side";
      EXPECT_NEAR(de(t, fila, 7), 97 + desnuda::energia(Q, 2.5, z, y2), 1.5e-3);
      EXPECT_EQ(t.texto(fila, 9), de(t, fila, 8) > de(t, fila, 7) ? "OK" : "--");
    }
  }
}

TEST_F(Verificacion, LaMarchaConcuerdaConUnaIntegracionFina) {
  const Rejilla t = tabla13(rapida());
  for (const int fila : {3, 7, 12}) {
    const double Q = caudal(fila);
    const double y = desnuda::marchaFina(0.999 * critico(Q, 2), 80, Q, 2, 0, 0.014, 0.25).y;
    // the jump's start in the basin, with a tenth of its velocity head lost
    EXPECT_NEAR(de(t, fila, 2), desnuda::tiranteRapido(Q, 2.5, 3 + desnuda::energia(Q, 2, 0, y), 1.1), 0.0011) << Q;
  }
}

TEST_F(Verificacion, VeredictoListaDesdeElMayorCaudal) {
  const std::pair<const EstiloVerificacion&, const char*> casos[] = {
      {verificacionRapida, "SE RECOMIENDA INCREMENTAR EL % DE AHOGAMIENTO DEL RESALTO"},
      {verificacionInclinada, "SE RECOMIENDA INCREMENTAR EL % DE AHOGAMIENTO DEL RESALTO"},
      {verificacionVertical, "SE RECOMIENDA INCREMENTAR LA PROFUNDIDAD DE LA POZA"}};
  for (const auto& [estilo, recomendacion] : casos) {
    Rejilla t;
    prepararVerificacion(t, estilo);
    FilaVerificacion f;
    for (int n = 1; n <= 10; ++n) {
      f.Q = 1.1 - n / 10.0;
      f.Ep = 100;
      f.Ea = n == 1 ? 99.99999 : n == 2 ? 100 : 100.00001;  // equal levels fail; the fourth decimal is not shown
      escribirVerificacion(t, n, f, estilo);
    }
    EXPECT_EQ(t.texto(5, 7), t.texto(5, 8));
    EXPECT_EQ(t.texto(5, 9), "OK");
    EXPECT_EQ(
        VEREDICTOPOZA(t, estilo),
        std::string("EL DISEÑO NO ES ACEPTABLE.\r\n\r\n"
                    "Para Q=1.000, La energía al final del resalto es mayor que aguas abajo, resalto barrido!!\r\n"
                    "Para Q=0.900, La energía al final del resalto es mayor que aguas abajo, resalto barrido!!\r\n"
                    "\r\n") +
            recomendacion);
  }
}

TEST_F(Verificacion, LoQueFallaEnLaRapidaQuedaComoEnLaFilaAnterior) {
  DesignState e = rapida();
  e.nAbajo = 0;
  e.sAbajo = -1;  // no downstream depth at all
  const Rejilla sinCanal = tabla13(e);
  for (int fila = 3; fila <= 12; ++fila) {
    EXPECT_EQ(sinCanal.texto(fila, 8), "98.4000") << "the bare elevation: the velocity stayed 0";
    EXPECT_NE(sinCanal.texto(fila, 7), "0.0000");
  }
  e = rapida();
  e.sTramo1 = 0;  // no march: the critical depth goes on
  EXPECT_NEAR(de(tabla13(e), 3, 2), desnuda::tiranteRapido(4, 2.5, 3 + 1.5 * critico(4, 2), 1.1), 1.1e-3);

  EXPECT_NO_THROW(tabla13(DesignState()));
  e = rapida();
  e.cotaPoza = 200;  // each row tells that its basin is out of reach
  const char* inalcanzable = "NO ES POSIBLE CALCULAR TIRANTE CONJUGADO MENOR DEL RESALTO, CORREGIR ENTRADA DE DATOS";
  for (int fila = 3; fila <= 12; ++fila) dialogos.esperaAviso(inalcanzable);
  EXPECT_EQ(tabla13(e).texto(3, 2), "0");
  dialogos.comprobarGastado();
  e = registro("verificacion de la inclinada");
  e.cotaPoza = 101;  // told once, and the window does not open
  dialogos.esperaAviso(inalcanzable);
  EXPECT_THROW(tabla7(e), FalloAritmetico);
}

TEST_F(Verificacion, CaidaLibrePorRand) {
  DesignState e = registro("verificacion de la vertical", "Q=1.4 cotaPoza=99");
  // 0.70 per metre over 1.00 m: the published sheet D 0.0499, Ld 1.91, y1 0.15, y2 0.74
  const Rejilla t = tabla26(e);
  EXPECT_NEAR(de(t, 3, 2), 0.15, 0.005);
  EXPECT_NEAR(de(t, 3, 4), 0.74, 0.005);
  EXPECT_NEAR(de(t, 3, 6), 1.91 + 6 * (0.74 - 0.15), 0.06);
  EXPECT_EQ(t.texto(1, 6), "DE POZA");
  EXPECT_NEAR(de(t, 3, 3), impulso(1.4, 2, 0, de(t, 3, 2)), 4e-3);

  // with the contraction the area is wider, and the centroid is reckoned with the plain bottom width
  e.longTransVert = 0.5;
  const Rejilla ancha = tabla26(e);
  const double y2 = de(ancha, 3, 4), W = 3;
  EXPECT_NEAR(de(ancha, 3, 5), 1.96 / (9.81 * W * y2) + W * y2 * y2 * (4 + W) / (2 + W) / 3, 2e-3);
  EXPECT_NEAR(de(ancha, 3, 7), 99 + desnuda::energia(1.4, W, 0, y2), 1.1e-3);
}

}  // namespace
}  // namespace calvento
