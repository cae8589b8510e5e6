#include <gtest/gtest.h>
#include <string>

#include "dibujo/recorte.h"
#include "dibujo/svg.h"

namespace calvento {
namespace {

TEST(Svg, CapasFormasYTextosEnPixelesDeLaHoja) {
  Lienzo l(400, 200);
  l.Scale(0, 110, 20, 100);  // 20 pixels to the metre
  l.capa("agua");
  l.Line({0, 105}, {10, 105});  // Cls takes it away, and the layer goes on
  l.Cls();
  l.FillStyle = EstiloRelleno::solido;
  l.FillColor = color::cianClaro;
  l.Circle({10, 105}, 2);
  l.capa("fuera");
  l.Line({1e6, 1e6}, {2e6, 1e6}, color::rojo);
  l.capa("agua");
  l.DrawStyle = EstiloLinea::puntos;
  l.Line({-1e9, 107.5}, {1e9, 107.5}, color::rojo);
  l.capa("rótulos");
  l.CurrentX = 2;
  l.CurrentY = 108;
  l.Font.puntos = 12;
  l.Font.angulo = 90;
  l.Print(" b < \"c\" & \x01\xF1");
  const std::string svg = comoSvg(l, {"A & B", "vista"});
  for (const char* parte :
       {R"x(width="400" height="200" viewBox="0 0 400 200")x", "<title>A &amp; B</title>\n<desc>vista</desc>",
        R"x(<g id="agua" class="capa agua">
<circle cx="200" cy="100" r="40" fill="#00ffff" stroke="#000000" stroke-linejoin="round"/>
</g>
<g id="agua-2" class="capa agua">
<line x1="-128" y1="50" x2="528" y2="50" stroke="#ff0000" stroke-dasharray="2 3" stroke-linejoin="round"/>
</g>
<g id="rótulos" class="capa rótulos">
<text x="54.48" y="40" transform="rotate(-90 54.48 40)")x",
        R"x(font-size="16" fill="#000000" xml:space="preserve"> b &lt; &quot;c&quot; &amp; ñ</text>)x"})
    EXPECT_NE(svg.find(parte), std::string::npos) << parte << "\n" << svg;
  // twice as large, lines too; in a page of HTML the names would be taken
  const std::string doble = comoSvg(l, {"t", {}, 800, true});
  EXPECT_TRUE(doble.starts_with("<svg") && doble.find(" id=") == std::string::npos) << doble;
  EXPECT_NE(doble.find(R"x(r="80" fill="#00ffff" stroke="#000000" stroke-width="2")x"), std::string::npos) << doble;

  // a text that is taken out does not move the layers
  l.cambiarTextos([](PrimTexto&) { return false; });
  l.capa("leyenda");
  l.Line({1, 101}, {2, 101});
  EXPECT_NE(comoSvg(l, {}).find("<g id=\"leyenda\" class=\"capa leyenda\">\n<line x1=\"20\" y1=\"180\""),
            std::string::npos);
}

TEST(Recorte, LineasYPoligonosEnSuMarco) {
  const Marco marco{0, 0, 10, 10};
  EXPECT_EQ(recortar(Raya{{-5, 5}, {15, 5}}, marco), (Raya{{0, 5}, {10, 5}}));
  EXPECT_EQ(recortar(Raya{{5, 15}, {5, 6}}, marco), (Raya{{5, 10}, {5, 6}}));
  EXPECT_FALSE(recortar(Raya{{11, 0}, {20, 9}}, marco));
  EXPECT_EQ(alrededor(recortar(Puntos{{-5, -5}, {20, -5}, {20, 5}, {-5, 5}}, marco)), (Marco{0, 0, 10, 5}));
}

}  // namespace
}  // namespace calvento
