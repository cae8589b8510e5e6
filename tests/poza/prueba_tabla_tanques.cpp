#include <cmath>

#include "apoyo/dialogos_guion.h"
#include "apoyo/navegador_mudo.h"
#include "apoyo/tablas.h"
#include "poza/tabla_tanques.h"

namespace calvento {
namespace {

struct Mesa {
  NavegadorMudo navegador;
  Form2 form2{navegador};
  DesignState e;
  Rejilla tabla;
  DialogosGuion dialogos;
  Mesa() { prepararTablaTanques(tabla); }
};

/// "4.5-" is the next smaller 4-byte number.
Single numero(const std::string& s) {
  const float f = std::stof(s);
  return Single::deFloat(s.ends_with('-') ? std::nextafter(f, 0.0F) : f);
}

TEST(BasinTable, AtTheLimitsOfEachType) {
  porCadaFila("poza.txt", "tabla", [](const FilaTabla& f) {
    Mesa m;
    for (int fila = 1; fila < 7; ++fila) m.tabla.poner(fila, 3, "of the calculation before");
    m.e.fr1 = numero(f[0]), m.e.v1 = numero(f[1]), m.e.Q = numero(f[2]), m.e.y1 = 0.31254;
    SELECCIONARTANQUE(
        m.tabla, m.e, m.form2,
        f[4] == "inclinada" ? CriterioTanques{f.num(3), 0, "Fr= "} : CriterioTanques{f.num(3), m.e.v1, "F= "});
    for (int fila = 1; fila < 7; ++fila) {
      const std::string debe = f[static_cast<std::size_t>(fila) + 4], si = debe.substr(0, debe.find(' '));
      EXPECT_EQ(m.tabla.texto(fila, 2), si == "Si"    ? "Factible"
                                        : si == "No"  ? "No Factible"
                                        : si == "_No" ? " No Factible"
                                                      : "");
      EXPECT_EQ(m.tabla.texto(fila, 3), debe == si ? "" : debe.substr(si.size() + 1)) << fila;
    }
  });
}

TEST(BasinTable, ItsColoursAndWidths) {
  const Mesa m;
  for (int c = 0; c < 4; ++c) {
    EXPECT_EQ(m.tabla.alineacion(c), Alineacion::centro);
    EXPECT_EQ(m.tabla.fondo(0, c).valor, -2147483633);
    EXPECT_EQ(m.tabla.fondo(4, c).valor, 12648447);
  }
  // the widths follow the blanks of the titles: 57, 32, 18 and 82 characters
  EXPECT_GT(m.tabla.anchoTwips(3), m.tabla.anchoTwips(0));
  EXPECT_GT(m.tabla.anchoTwips(1), m.tabla.anchoTwips(2));
}

TEST(BasinLength, ByClickOnTheGridOfTheWorksAndByCalculationOffIt) {
  porCadaFila("poza.txt", "longitud", [](const FilaTabla& f) {
    const int tipo = std::stoi(f[0]);
    const double longitud = f.num(1);
    for (const bool rapida : {true, false}) {
      Mesa m;
      ponerCampos(m.e, "y1=0.25 y2=1.83 fr1=6 kLongPoza=77");
      EXPECT_EQ(pulsarTabla(m.tabla, tipo, m.e, m.form2, rapida),
                f.si(3) ? MenuBloques::activo : MenuBloques::inactivo);
      EXPECT_NEAR(Real(m.e.longPoza).valor(), rapida ? 0.05 * std::round(longitud / 0.05) : longitud, 1e-4);
      EXPECT_FLOAT_EQ(m.e.kLongPoza.valor(), static_cast<float>(f.num(2)));
      EXPECT_EQ(m.e.tipoTanque.valor(), static_cast<float>(tipo));
      for (int fila = 1; fila < 7; ++fila)
        EXPECT_EQ(m.tabla.fondo(fila, 2), fila == tipo ? color::celdaElegida : color::celda);
      EXPECT_EQ(tieneBloques(m.e), f.si(3));
      LONGPOZA(m.e, m.form2, m.dialogos);
      EXPECT_NEAR(Real(m.e.longPoza).valor(), longitud, 1e-4) << "the calculation does not round";
    }
  });
}

TEST(BasinLength, HeaderRowMissedClickAndFailure) {
  Mesa m;
  m.e.y2 = 2;
  pulsarTabla(m.tabla, 3, m.e, m.form2, true);
  EXPECT_EQ(pulsarTabla(m.tabla, -1, m.e, m.form2, true), MenuBloques::igual);
  EXPECT_EQ(m.e.tipoTanque.valor(), 3);
  EXPECT_EQ(pulsarTabla(m.tabla, 0, m.e, m.form2, true), MenuBloques::igual);
  EXPECT_EQ(m.e.tipoTanque.valor(), 0);
  EXPECT_FLOAT_EQ(m.e.longPoza.valor(), 5.6F);
  for (int fila = 0; fila < 7; ++fila)
    EXPECT_EQ(m.tabla.fondo(fila, 0), fila == 0 ? color::caraBoton : color::celda) << "no mark on the header";
  m.dialogos.esperaAviso("Seleccione el Tipo de Tanque Amortiguador a utilizar");
  LONGPOZA(m.e, m.form2, m.dialogos);
  EXPECT_FLOAT_EQ(m.e.longPoza.valor(), 5.6F);
  m.e.fr1 = 0;  // no Froude number, no length of a SAF basin; the click tells nothing
  EXPECT_EQ(pulsarTabla(m.tabla, 5, m.e, m.form2, true), MenuBloques::activo);
  EXPECT_EQ(m.e.tipoTanque.valor(), 5);
  EXPECT_THROW(LONGPOZA(m.e, m.form2, m.dialogos), FalloAritmetico);
}

}  // namespace
}  // namespace calvento
