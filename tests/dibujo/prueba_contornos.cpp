// Outlines of the drawings on records of round numbers; they are data, tests/tablas/contornos.txt.

#include "apoyo/tablas.h"
#include "dibujo/bloques.h"
#include "dibujo/geometria_inclinada.h"
#include "dibujo/geometria_rapida.h"
#include "dibujo/geometria_vertical.h"
#include "dibujo/puntos.h"

namespace calvento {
namespace {

using Contorno = std::vector<Punto>;
constexpr double eje = 120;

/// "bloques", "bloques 1 seccion" or "bloques 1 planta".
Contorno deBloques(const std::vector<HileraDibujada>& hileras, std::istream& cual) {
  std::size_t n = 0;
  std::string parte;
  Contorno c;
  if (!(cual >> n >> parte)) {
    for (const HileraDibujada& h : hileras) c.push_back(h.seccion.at(0));
  } else if (parte == "seccion") {
    c = hileras.at(n).seccion;
  } else {
    for (const CajaPlanta& caja : hileras.at(n).planta) c.push_back(caja.a), c.push_back(caja.b);
  }
  return c;
}

Contorno contorno(const std::string& figura, DesignState& e, const std::string& nombre, const MinimoBloques& minimo) {
  std::istringstream palabras(nombre);
  std::string que;
  palabras >> que;
  const Valores v(e);
  if (que == "obstaculos") return deBloques(bloquesDeCaida(v, eje, minimo), palabras);
  if (que == "bloques")
    return deBloques(bloquesDePoza(v, estacionesPoza(v, v.longRapida + v.xTrayectoria), e.bPoza, eje, minimo),
                     palabras);
  if (figura == "vertical") return GeometriaVertical(e).agua(e);
  if (figura == "inclinada") return que == "agua" ? GeometriaInclinada(e).agua() : GeometriaInclinada(e).concreto();
  const GeometriaRapida g(e);
  if (que == "umbral") return {g.puntoUmbral()};
  return que == "agua" ? g.agua() : que == "concreto" ? g.concreto() : g.energia();
}

TEST(Contornos, AreTheHandWorkedOnes) {
  porCadaFila("contornos.txt", "contornos", [](const FilaTabla& f) {
    std::string cambios = f[1];
    MinimoBloques minimo;
    if (const auto i = cambios.find("minimo="); i != std::string::npos) {
      minimo = {true, std::stod(cambios.substr(i + 7))};
      cambios.resize(i);
    }
    DesignState e = registro(f[0], cambios);
    const Contorno c = contorno(f[0], e, f[2], minimo);
    EXPECT_TRUE(f[3].empty() || c.size() == std::stoul(f[3])) << c.size() << " points";
    if (const auto a = f[3].find("area"); a != std::string::npos) {
      EXPECT_NEAR(area(c), std::stod(f[3].substr(a + 4)), 1e-5);
    }
    for (const std::string& punto : partido(f[4], ';')) {
      std::size_t i = 0;
      char dosPuntos = 0;
      Punto debe;
      std::istringstream(punto) >> i >> dosPuntos >> debe.x >> debe.y;
      ASSERT_LT(i, c.size());
      EXPECT_TRUE(cerca(c[i], debe)) << "point " << i << ": " << c[i].x << ' ' << c[i].y;
    }
    for (const std::string& p : partido(f.celdas.size() > 5 ? f[5] : "", ' '))
      for (const CampoSingle& campo : camposSingle())
        if (p.starts_with(std::string(campo.nombre) + "=")) {
          EXPECT_NEAR(Real(e.*campo.campo).valor(), std::stod(p.substr(p.find('=') + 1)), 1e-6) << campo.nombre;
        }
  });
}

}  // namespace
}  // namespace calvento
