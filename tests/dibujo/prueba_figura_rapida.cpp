#include <cmath>
#include <random>

#include "apoyo/tablas.h"
#include "dibujo/figura_rapida.h"
#include "dibujo/puntos.h"
#include "dibujo/rotulos.h"

namespace calvento {
namespace {

constexpr double eje = 120;
constexpr double anchoMayor = 6;

using Rutina = void (FiguraRapida::*)(Lienzo&) const;
constexpr Rutina todas[] = {&FiguraRapida::POLIGONO,      &FiguraRapida::PLANTA,
                            &FiguraRapida::RAPIDA,        &FiguraRapida::CANAL,
                            &FiguraRapida::CANALB,        &FiguraRapida::COTAS,
                            &FiguraRapida::EJESDIMENSION, &FiguraRapida::EJESDIMENSIONPLANTA,
                            &FiguraRapida::textrotate,    &FiguraRapida::DIMENSIONES,
                            &FiguraRapida::DIBUJACANAL};

/// What one routine paints on a canvas whose view is ten metres high.
template <class T>
std::vector<T> pintado(const DesignState& e, Rutina rutina, double altoVista = 10) {
  Lienzo lienzo(865, 433);
  lienzo.Scale(-10, 112, 10, 112 - altoVista);
  (FiguraRapida(e, eje, anchoMayor).*rutina)(lienzo);
  return pintadas<T>(lienzo);
}

std::string rotulos(const DesignState& e, Rutina rutina) { return rotulados(pintado<PrimTexto>(e, rutina)); }

TEST(FiguraRapida, TheFirstRoutineClearsTheCanvasAndTheLastOneLeavesASolidPen) {
  Lienzo lienzo(865, 433);
  lienzo.Scale(-10, 125, 45, 100);
  lienzo.Line({0, 0}, {1, 1});
  const DesignState e = registro("rapida");
  const FiguraRapida figura(e, eje, anchoMayor);
  figura.POLIGONO(lienzo);
  EXPECT_TRUE(pintadas<PrimLinea>(lienzo).empty());
  figura.DIBUJACANAL(lienzo);
  EXPECT_EQ(lienzo.DrawStyle, EstiloLinea::solida);
}

TEST(FiguraRapida, LabelsThatAreLeftOut) {
  const auto dice = [](const std::string& todos, const char* algo) { return todos.find(algo) != std::string::npos; };
  DesignState e = registro("rapida");
  e.sobreelevacion = 0;
  e.frArriba = 1;
  e.longTransEntrada = e.longTransSalida = 0;
  e.profPoza = 0;
  const std::string t = rotulos(e, &FiguraRapida::DIMENSIONES);
  for (const char* fuera : {"|h=0", "|Yc= ", "|0.000", "|1.875"}) EXPECT_FALSE(dice(t, fuera)) << fuera;
  EXPECT_TRUE(dice(t, "|h= 0.00|")) << "the depth of the basin stays";
  const std::string g = rotulos(e, &FiguraRapida::textrotate);
  EXPECT_TRUE(dice(g, "|1:2|"));
  EXPECT_FALSE(dice(g, "|1:1.5|")) << "a basin without depth has no ramp";
  e.frArriba = 1.0001;
  EXPECT_TRUE(dice(rotulos(e, &FiguraRapida::DIMENSIONES), "|Yc= "));
  // the lines without a length still stand, one on the other
  EXPECT_TRUE(hayLinea(pintado<PrimLinea>(e, &FiguraRapida::EJESDIMENSION), {0, 109.6}, {0, 109.6}));
  EXPECT_EQ(pintado<PrimLinea>(e, &FiguraRapida::DIBUJACANAL).size(), 18U);
  // a label without an angle is lost
  e = registro("rapida");
  e.zRampaEntrada = e.zRampaSalida = 0;
  EXPECT_FALSE(dice(rotulos(e, &FiguraRapida::textrotate), "|1:"));
}

TEST(FiguraRapida, FontsFollowTheViewDownToTheirSmallestSize) {
  const struct {
    double alto, derecha, girada;
  } casos[] = {{10, 4, 6}, {22, 40.0 / 22, 2}, {1000, 0.04, 1}, {1e6, 0.001, 1}, {0.5, 80, 110}};
  for (const auto& c : casos) {  // 5.5 pixels become the even 6
    const auto d = pintado<PrimTexto>(registro("rapida"), &FiguraRapida::DIMENSIONES, c.alto);
    const auto g = pintado<PrimTexto>(registro("rapida"), &FiguraRapida::textrotate, c.alto);
    EXPECT_NEAR(d.front().letra.puntos, c.derecha, 1e-9) << c.alto;
    EXPECT_NEAR(g.front().letra.puntos, c.girada / 1.117 * 0.75, 1e-9) << c.alto;
  }
}

TEST(FiguraRapida, AHalfComputedRecordNeverStopsTheFigure) {
  const auto finito = [](Punto p) { return std::isfinite(p.x) && std::isfinite(p.y); };
  std::mt19937 azar(20240611);
  const double valores[] = {0, 0, 1, -1, 0.05, -0.5, 2, 1e-30, 3e38, -3e38, 1e9, 2534.6};
  std::uniform_int_distribution<std::size_t> cual(0, std::size(valores) - 1);
  const DesignState enteros[] = {registro("rapida"), registro("rapida 2"), registro("rapida 3")};
  for (int vuelta = 0; vuelta < 300; ++vuelta) {
    DesignState e = vuelta % 2 == 0 ? DesignState() : enteros[vuelta % 3];
    for (const auto& c : camposSingle())
      if (vuelta > 0 && (vuelta % 2 == 0 || azar() % 8 == 0)) e.*c.campo = valores[cual(azar)];
    if (vuelta % 5 == 0) e.numTramos = static_cast<std::int16_t>(static_cast<int>(azar() % 12) - 4);
    if (vuelta % 3 == 0) e.perfil.assign(azar() % 150, {valores[cual(azar)], valores[cual(azar)], 0, 0, 0});
    Lienzo lienzo(865, 433);
    if (vuelta % 4 != 0) lienzo.Scale(-10, 120, 45, vuelta % 4 == 1 ? 120 : 100);
    const FiguraRapida figura(e, valores[cual(azar)], valores[cual(azar)]);
    for (const Rutina rutina : todas) (figura.*rutina)(lienzo);
    const auto& agua = std::get<PrimPoligono>(lienzo.primitivas().front());
    const auto tramos = static_cast<std::size_t>(std::clamp<int>(e.numTramos, 1, 3));
    EXPECT_EQ(agua.puntos.size(), e.perfil.size() + 53 + tramos);
    for (const Punto& p : agua.puntos) ASSERT_TRUE(finito(p)) << vuelta;
    for (const auto& t : pintadas<PrimTexto>(lienzo))
      ASSERT_TRUE(finito(t.en) && std::isfinite(t.letra.puntos)) << vuelta;
  }
}

}  // namespace
}  // namespace calvento
