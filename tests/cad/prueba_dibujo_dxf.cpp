// The DXF drawing as a CAD application: what it holds, what it refuses, and what becomes of its file.
#include <filesystem>
#include <gtest/gtest.h>
#include <limits>

#include "apoyo/carpeta_prueba.h"
#include "apoyo/dialogos_guion.h"
#include "apoyo/disco_lleno.h"
#include "cad/cota_dxf.h"
#include "cad/dibujo_dxf.h"

namespace calvento {
namespace {

namespace fs = std::filesystem;
constexpr double ninguno = std::numeric_limits<double>::quiet_NaN();

std::size_t veces(std::string texto, const std::string& parte) {
  std::erase(texto, '\r');  // lines end as they do on the system
  std::size_t n = 0;
  for (std::size_t i = texto.find(parte); i != std::string::npos; i = texto.find(parte, i + 1)) ++n;
  return n;
}

/// A run of one line.
void correr(AplicacionCad& cad) {
  cad.ActiveDocument().capa("RAS").color(1);
  cad.ActiveDocument().ModelSpace().AddLine({0, 0}, {3, 4}).Layer("RAS");
  cad.soltar();
}

TEST(ConexionDxf, ASecondRunInTheSameFileAddsAnotherFileBeginsAnew) {
  const CarpetaPrueba carpeta;
  DialogosGuion dialogos;
  ConexionDxf conexion(dialogos);
  dialogos.guarda(carpeta.en("a.dxf")).guarda(carpeta.en("a")).guarda(carpeta.en("b.dxf"));
  correr(*conexion.obtener());
  EXPECT_EQ(veces(carpeta.leer("a.dxf"), "\nAcDbLine\n"), 1u);
  EXPECT_EQ(dialogos.ultimasOpciones.extension, "dxf");
  correr(*conexion.obtener());
  EXPECT_EQ(dialogos.ultimasOpciones.sugerido, carpeta.en("a.dxf"));
  EXPECT_EQ(veces(carpeta.leer("a.dxf"), "\nAcDbLine\n"), 2u);
  EXPECT_EQ(veces(carpeta.leer("a.dxf"), "AcDbLayerTableRecord"), 2u) << "0 and RAS, once each";
  correr(*conexion.obtener());
  EXPECT_EQ(veces(carpeta.leer("b.dxf"), "\nAcDbLine\n"), 1u);
  EXPECT_EQ(carpeta.entradas(), 2) << "no leftovers";
}

TEST(ConexionDxf, AForeignFileIsReplacedOnlyAfterAQuestion) {
  const CarpetaPrueba carpeta;
  const std::string ruta = carpeta.escribir("ajeno.dxf", "de otro");
  DialogosGuion dialogos;
  ConexionDxf conexion(dialogos);
  const char* pregunta = "El archivo ajeno.dxf ya existe. ¿Desea reemplazarlo?";
  dialogos.guarda(ruta).responde(false, pregunta);
  EXPECT_EQ(conexion.obtener(), nullptr);
  EXPECT_EQ(conexion.crear(), nullptr);
  EXPECT_FALSE(conexion.error().empty());
  EXPECT_EQ(carpeta.leer("ajeno.dxf"), "de otro");

  dialogos.guarda(ruta).responde(true, pregunta);
  AplicacionCad* cad = conexion.obtener();
  ASSERT_NE(cad, nullptr);
  EXPECT_EQ(carpeta.leer("ajeno.dxf"), "de otro") << "only the end of a run writes";
  correr(*cad);
  EXPECT_EQ(veces(carpeta.leer("ajeno.dxf"), "\nAcDbLine\n"), 1u);
}

TEST(ConexionDxf, NoNameNoDrawing) {
  DialogosGuion dialogos;
  ConexionDxf conexion(dialogos);
  dialogos.guarda(std::nullopt);
  EXPECT_EQ(conexion.obtener(), nullptr);
  EXPECT_EQ(conexion.crear(), nullptr);
  EXPECT_EQ(conexion.error(), "No se ha elegido el archivo del dibujo");
}

TEST(ConexionDxf, ADrawingWhoseFileHasGoneBeginsAnew) {
  const CarpetaPrueba carpeta;
  DialogosGuion dialogos;
  ConexionDxf conexion(dialogos);
  dialogos.guarda(carpeta.en("a.dxf")).guarda(carpeta.en("a.dxf"));
  correr(*conexion.obtener());
  fs::remove(carpeta.en("a.dxf"));
  correr(*conexion.obtener());
  EXPECT_EQ(veces(carpeta.leer("a.dxf"), "\nAcDbLine\n"), 1u);
}

#ifndef _WIN32  // a full device
TEST(ConexionDxf, ARunThatCannotBeWrittenLeavesTheFormerFileWhole) {
  const CarpetaPrueba carpeta;
  DialogosGuion dialogos;
  ConexionDxf conexion(dialogos);
  dialogos.guarda(carpeta.en("a.dxf")).guarda(carpeta.en("a.dxf")).guarda(carpeta.en("a.dxf"));
  correr(*conexion.obtener());
  const std::string antes = carpeta.leer("a.dxf");

  {
    const DiscoLleno lleno(1000);
    EXPECT_THROW(correr(*conexion.obtener()), FalloCad);
  }
  EXPECT_EQ(carpeta.leer("a.dxf"), antes);
  EXPECT_EQ(carpeta.entradas(), 1) << "no leftovers";

  correr(*conexion.obtener());  // there is room again
  EXPECT_EQ(veces(carpeta.leer("a.dxf"), "\nAcDbLine\n"), 2u) << "the run that was lost does not come back";
}
#endif

TEST(ConexionDxf, PlacesThatCannotBeWrittenFail) {
  const CarpetaPrueba carpeta;
  fs::create_directory(carpeta.en("carpeta.dxf"));
  for (const std::string& ruta : {carpeta.en("no/hay/a.dxf"), carpeta.en("carpeta.dxf"), std::string("/dev/full")}) {
    DibujoDxf dibujo(ruta);
    EXPECT_THROW(correr(dibujo), FalloCad) << ruta;
    EXPECT_TRUE(dibujo.datos().entidades.empty()) << ruta;
    EXPECT_FALSE(dibujo.guardado()) << ruta;
  }
}

TEST(DibujoDxf, RefusesEntitiesThatSpoilAFile) {
  DibujoDxf d("x.dxf");
  EXPECT_THROW(d.AddPolyline({}), FalloCad);
  EXPECT_THROW(d.AddPolyline({1, 2, 0}), FalloCad);
  EXPECT_THROW(d.AddPolyline({1, 2, 0, 3, ninguno, 0}), FalloCad);
  EXPECT_THROW(d.AddLine({0, 0}, {std::numeric_limits<double>::infinity(), 0}), FalloCad);
  EXPECT_THROW(d.AddText("a", {0, 0}, 0), FalloCad);
  EXPECT_THROW(d.AddText("a", {0, 0}, -1), FalloCad);
  EXPECT_THROW(d.AddCircle({0, 0}, 0), FalloCad);
  EXPECT_THROW(d.AddDimAligned({0, 0}, {1, 0}, {ninguno, 0}), FalloCad);
  EXPECT_TRUE(d.datos().entidades.empty());
}

TEST(CotaDxf, LineIsBrokenByItsTextAndTheArrowsLieInside) {
  const DibujoCota d = dibujarCota({{0, 5}, {4, 5}, {2, 4.6}, 0.075, 0.075, 0.2, 0.1, 0});
  EXPECT_EQ(d.medida, 4);
  EXPECT_EQ(d.texto.texto, "4");
  EXPECT_EQ(d.texto.giro, 0);
  EXPECT_NEAR(d.enLinea.x, 4, 1e-12);
  EXPECT_NEAR(d.enLinea.y, 4.6, 1e-12);
  ASSERT_EQ(d.lineas.size(), 4u);  // two extension lines, two pieces of the dimension line
  EXPECT_NEAR(d.lineas[0].a.y, 4.8, 1e-12);
  EXPECT_NEAR(d.lineas[0].b.y, 4.525, 1e-12);
  EXPECT_NEAR(d.lineas[2].a.x, 0, 1e-12);
  EXPECT_LT(d.lineas[2].b.x, 2);
  EXPECT_NEAR(d.lineas[2].b.x + d.lineas[3].a.x, 4, 1e-12) << "the room is even on both sides";
  ASSERT_EQ(d.flechas.size(), 2u);
  EXPECT_NEAR(d.flechas[0].izquierda.x, 0.075, 1e-12);
  EXPECT_NEAR(d.flechas[1].izquierda.x, 4 - 0.075, 1e-12);
}

TEST(CotaDxf, AVerticalOneIsReadFromTheRightAndAShortOneHasItsArrowsOutside) {
  for (const bool subiendo : {true, false}) {
    const CotaDxf c{{7, subiendo ? 1.0 : 2.5}, {7, subiendo ? 2.5 : 1.0}, {7, 1.75}, 0.075, 0.075, 0.1, 0.075, 0};
    const DibujoCota d = dibujarCota(c);
    EXPECT_NEAR(d.texto.giro, 1.5707963, 1e-6);
    EXPECT_EQ(d.texto.texto, "1.5");
    EXPECT_EQ(d.lineas.size(), 2u) << "no extension lines on the measured line itself";
  }
  const DibujoCota corta = dibujarCota({{0, 0}, {0.1, 0}, {0.05, -0.4}, 0.075, 0.075, 0.2, 0.075, 1});
  EXPECT_LT(corta.flechas[0].izquierda.x, 0);
  EXPECT_GT(corta.flechas[1].izquierda.x, 0.1);
  ASSERT_EQ(corta.lineas.size(), 5u);  // two extension lines, the whole dimension line, behind each arrow its tail
  EXPECT_NEAR(corta.lineas[2].b.x - corta.lineas[2].a.x, 0.1, 1e-12) << "a text above breaks nothing";
  EXPECT_EQ(dibujarCota({{3, 3}, {3, 3}, {3, 3}}).medida, 0);
}

}  // namespace
}  // namespace calvento
