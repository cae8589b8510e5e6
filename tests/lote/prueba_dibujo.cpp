#include <filesystem>
#include <gtest/gtest.h>

#include "corrida.h"
#include "lote/opciones.h"

namespace calvento::lote {
namespace {

namespace fs = std::filesystem;

class Dibujo : public ::testing::Test {
 protected:
  std::string ruta(const char* nombre) const { return carpeta.en(nombre); }
  std::string proyecto(const char* nombre) const { return carpeta.escribir(nombre, ProyectoRapida().contenido()); }
  const CarpetaPrueba carpeta;
};

TEST_F(Dibujo, EveryKindOfFileShowsTheView) {
  if (!conQt) GTEST_SKIP();
  const std::string canal = proyecto("canal.cvr");
  ASSERT_EQ(correr({"--dibujo", ruta("todo.svg"), canal}).estado, 0);
  const std::string todo = carpeta.leer("todo.svg");
  EXPECT_NE(todo.find("SECCION LONGITUDINAL"), std::string::npos);
  EXPECT_NE(todo.find("PLANTA"), std::string::npos);
  ASSERT_EQ(correr({"--dibujo", ruta("tanque.svg"), "--vista", "vistaTanque", canal}).estado, 0);
  EXPECT_NE(carpeta.leer("tanque.svg"), todo);
  ASSERT_EQ(correr({"--dibujo", ruta("a.PDF"), canal}).estado, 0);
  EXPECT_EQ(carpeta.leer("a.PDF").substr(0, 5), "%PDF-");
  ASSERT_EQ(correr({"--dibujo", ruta("a.png"), canal}).estado, 0);
  EXPECT_EQ(carpeta.leer("a.png").substr(1, 3), "PNG");
}

TEST_F(Dibujo, SeveralProjectsWantANameEach) {
  const std::string uno = proyecto("uno.cvr"), dos = proyecto("dos.cvr");
  fs::create_directory(ruta("otra"));
  const std::string tocayo = proyecto("otra/uno.cvr");
  for (const char* opcion : {"--dibujo", "--dxf"}) {
    if (!conQt && opcion == std::string("--dibujo")) continue;
    const std::string ext = opcion == std::string("--dxf") ? ".dxf" : ".svg";
    const Corrida mal = correr({opcion, carpeta.en("x" + ext), uno, dos});
    EXPECT_EQ(mal.estado, 2) << opcion;
    EXPECT_TRUE(mal.salida.empty()) << opcion;
    EXPECT_EQ(correr({opcion, carpeta.en("{}" + ext), uno, dos}).estado, 0) << opcion;
    EXPECT_TRUE(fs::exists(carpeta.en("uno" + ext)) && fs::exists(carpeta.en("dos" + ext))) << opcion;
    const Corrida tocayos = correr({opcion, carpeta.en("n-{}" + ext), uno, dos, tocayo});
    EXPECT_EQ(tocayos.estado, 2) << opcion;
    EXPECT_NE(tocayos.errores.find("darían el mismo archivo"), std::string::npos) << tocayos.errores;
    EXPECT_FALSE(fs::exists(carpeta.en("n-dos" + ext))) << "told before anything is opened";
  }
}

TEST_F(Dibujo, ACadDrawingReplacesTheFormerOneWithoutAQuestion) {
  const std::string canal = proyecto("canal.cvr");
  // the run is alone with its file: nothing of a former run stays in it, and nobody is asked
  for (int i = 0; i < 2; ++i) {
    const Corrida corrida = correr({"--json", "--responder", "no", "--dxf", ruta("a.dxf"), canal});
    ASSERT_EQ(corrida.estado, 0) << corrida.errores;
    EXPECT_EQ(corrida.objetos()[0]["mensajes"].size(), 0u);
  }
  const std::string dxf = carpeta.leer("a.dxf");
  EXPECT_NE(dxf.find("\nEst:0+340.00\n"), std::string::npos);
  EXPECT_EQ(dxf.find("\nEst:0+340.00\n"), dxf.rfind("\nEst:0+340.00\n"));
}

#ifndef _WIN32
TEST_F(Dibujo, NothingOfTheCommandIsWrittenOver) {
  if (!conQt) GTEST_SKIP();
  const std::string canal = proyecto("canal.cvr");
  fs::create_symlink("canal.cvr", ruta("enlace.dxf"));
  fs::create_hard_link(canal, ruta("duro.svg"));
  fs::create_symlink("nuevo.dxf", ruta("colgado.svg"));
  fs::create_symlink(".", ruta("aqui"));
  const struct {
    std::vector<std::string> opciones;
    std::string dice;
  } casos[] = {
      {{"--dxf", canal}, "canal.cvr: el nombre debe terminar en .dxf"},
      {{"--dibujo", ruta("x.dxf")}, "x.dxf: el nombre debe terminar en .svg, .pdf, .png"},
      {{"--dibujo", ruta("x")}, "debe terminar en .svg"},
      {{"--dxf", ruta("enlace.dxf")}, "escribiría encima del proyecto " + canal},
      {{"--dibujo", ruta("duro.svg")}, "escribiría encima del proyecto " + canal},
      {{"--dxf", ruta("aqui/nuevo.dxf"), "--dibujo", ruta("colgado.svg")}, "--dibujo y --dxf darían el mismo archivo"},
  };
  for (const auto& [opciones, dice] : casos) {
    std::vector<std::string> argumentos = opciones;
    argumentos.push_back(canal);
    const Corrida c = correr(argumentos);
    EXPECT_EQ(c.estado, 2) << dice;
    EXPECT_EQ(c.salida, "") << dice;
    EXPECT_NE(c.errores.find(dice), std::string::npos) << c.errores;
  }
  EXPECT_EQ(carpeta.leer("canal.cvr"), ProyectoRapida().contenido());
  EXPECT_EQ(carpeta.entradas(), 5);
}

TEST_F(Dibujo, NamesOfOldCodePagesStayDifferent) {
  if (!conQt) GTEST_SKIP();
  // "año" and "aÑo" in Windows-1252: neither is UTF-8
  EXPECT_EQ(correr({"--dibujo", ruta("{}.svg"), proyecto("a\xF1o.cvr"), proyecto("a\xD1o.cvr")}).estado, 0);
  EXPECT_TRUE(fs::exists(ruta("a\xF1o.svg")) && fs::exists(ruta("a\xD1o.svg")));
}
#endif

}  // namespace
}  // namespace calvento::lote
