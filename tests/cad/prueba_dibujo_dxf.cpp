// The DXF drawing as a CAD application: what it holds, what it refuses, and what becomes of its file.
#include <filesystem>
#include <gtest/gtest.h>
#include <limits>

#include "apoyo/carpeta_prueba.h"
#include "apoyo/dialogos_guion.h"
#include "apoyo/disco_lleno.h"
#include "apoyo/tablas.h"
#include "apoyo/textos.h"
#include "cad/cota_dxf.h"
#include "cad/dibujo_dxf.h"

namespace calvento {
namespace {

namespace fs = std::filesystem;
constexpr double ninguno = std::numeric_limits<double>::quiet_NaN();

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

TEST(CotaDxf, LooksAsTheTableTells) {
  porCadaFila("cad.txt", "cota", [](const FilaTabla& f) {
    const auto n = numeros(f[0]);
    const DibujoCota d =
        dibujarCota({{n[0], n[1]}, {n[2], n[3]}, {n[4], n[5]}, 0.075, 0.075, n[6], n[7], static_cast<int>(n[8])});
    EXPECT_EQ(d.texto.texto, f[1]);
    std::vector<double> hallados = {d.texto.giro};
    const auto puntos = [&](const std::vector<PuntoCad>& todos) {
      for (const PuntoCad& p : todos) hallados.insert(hallados.end(), {p.x, p.y});
    };
    for (const LineaDxf& l : d.lineas) puntos({l.a, l.b});
    for (const FlechaDxf& p : d.flechas) puntos({p.punta, p.izquierda, p.derecha});
    compararNumeros(hallados, f[2] + ' ' + f[3] + ' ' + f[4], 3e-4);
  });
}

}  // namespace
}  // namespace calvento
