#include <gtest/gtest.h>

#include "corrida.h"

namespace calvento::lote {
namespace {

class Archivos : public testing::Test {
 protected:
  const CarpetaPrueba carpeta;
  const std::string canal = carpeta.escribir("canal.cvr", ProyectoRapida().contenido());
};

TEST_F(Archivos, WhatIsNoProjectIsToldAndCountedByItsKind) {
  std::filesystem::create_directory(carpeta.en("carpeta.cvr"));
  const std::string entero = ProyectoRapida().contenido();
  const struct {
    std::string archivo;
    int estado;
    const char* dice;
  } casos[] = {
      {carpeta.en("no-esta.cvr"), 2, "no-esta.cvr"},
      {carpeta.en("carpeta.cvr"), 2, "carpeta"},
      {carpeta.escribir("canal.txt", entero), 2, "extensión"},
      {carpeta.escribir("vacio.cvr", ""), 1, "incompleto"},
      {carpeta.escribir("cortado.cvr", entero.substr(0, 60)), 1, "incompleto"},
      {carpeta.escribir("binario.cvr", std::string("\x7f"
                                                   "ELF\0\1\2\3\n\0\0",
                                                   11)),
       1, "no es un archivo de proyecto"},
      {carpeta.escribir("largo.cvr", std::string(1 << 20, '7') + "\n" + entero), 1, "no es un archivo de proyecto"},
      {carpeta.escribir("letras.cvr", ProyectoRapida().poner("Text5", "abc").contenido()), 1, "SUB CRITICO"},
  };
  for (const auto& caso : casos) {
    const Corrida c = correr({"--json", "--veces", "2", caso.archivo});
    EXPECT_EQ(c.estado, caso.estado) << caso.archivo;
    const auto objetos = c.objetos();
    ASSERT_EQ(objetos.size(), 1U) << caso.archivo;
    EXPECT_EQ(objetos[0]["archivo"], caso.archivo);
    EXPECT_EQ(objetos[0]["calculado"], false) << caso.archivo;
    EXPECT_EQ(objetos[0].contains("reportes"), false) << caso.archivo;
    EXPECT_EQ(objetos[0]["estructura"].is_null(), caso.dice == std::string("extensión")) << caso.archivo;
    EXPECT_FALSE(objetos[0]["mensajes"].empty()) << caso.archivo;
    EXPECT_EQ(c.errores.rfind(caso.archivo + ": ", 0), 0U) << c.errores;
    EXPECT_NE(c.errores.find(caso.dice), std::string::npos) << c.errores;
  }
}

TEST_F(Archivos, AProjectThatWasNotReadIsNotCalculatedByAnOption) {
  // the lines up to the basin stand, and the fields of the option would make it calculate
  const std::string entero = ProyectoRapida().contenido();
  const std::string cortado = carpeta.escribir("cortado.cvr", entero.substr(0, entero.size() - 6));
  const Corrida c = correr({"--json", "--campo", "Form10.Text17=1", "--veces", "1", cortado});
  EXPECT_EQ(c.estado, 1);
  EXPECT_EQ(c.objetos().at(0)["estado"]["ynArriba"].is_null(), false);
  EXPECT_TRUE(c.objetos().at(0)["perfil"].empty());
}

TEST_F(Archivos, OneThatFailsNeverStopsTheOthersAndTroubleGoesToStandardError) {
  const Corrida bien = correr({carpeta.escribir("CANAL.CVR", ProyectoRapida().contenido())});
  EXPECT_EQ(bien.estado, 0);
  EXPECT_EQ(bien.errores, "");
  for (const char* parte :
       {"Rápida - CANAL.CVR", "DATOS", "Q = 1.5 m³/s", "RESULTADOS", "> USBR - II", "MENSAJES\n  ninguno"})
    EXPECT_NE(bien.salida.find(parte), std::string::npos) << parte;

  const std::string lento = carpeta.escribir("lento.cvr", ProyectoRapida().poner("Text13", "0.0001").contenido());
  const Corrida uno = correr({canal, lento, canal});
  EXPECT_EQ(uno.estado, 1);
  EXPECT_EQ(uno.errores.rfind(lento + ": aviso: FLUJO SUB CRITICO", 0), 0U) << uno.errores;
  EXPECT_NE(uno.salida.find("El cálculo no llegó a su fin"), std::string::npos);

  const Corrida dos = correr({carpeta.en("no-esta.cvr"), canal});
  EXPECT_EQ(dos.estado, 2);
  EXPECT_NE(dos.salida.find("no-esta.cvr (no calculado)"), std::string::npos);
  EXPECT_EQ(dos.salida.find("DATOS"), dos.salida.rfind("DATOS")) << "an empty design was printed";

  const auto tres = correr({"--json", carpeta.en("no-esta.cvr"), lento, canal}).objetos();
  ASSERT_EQ(tres.size(), 3U);
  EXPECT_EQ(tres[2]["calculado"], true);
}

TEST_F(Archivos, AProjectGivesTheSameWhateverCameBefore) {
  // each of these leaves other fields, parameters, table and record behind
  ProyectoRapida tres, roto, cortado, rapido;
  tres.poner("Text17", "3")
      .poner("Text3", "1819")
      .poner("Text27", "1817")
      .poner("Text15", "0.3")
      .poner("Text14", "0.25");
  roto.poner("Text11", "0.5").poner("Text23", "0").poner("Form2.Text1", "9").poner("Form2.Text8", "0.5");
  const std::vector<std::string> todos = {
      canal,
      carpeta.escribir("tres.cvr", tres.contenido()),
      carpeta.escribir("roto.cvr", roto.contenido()),
      carpeta.escribir("cortado.cvr", cortado.poner("Text5", "9").contenido().substr(0, 40)),
      carpeta.escribir("rapido.cvr", rapido.poner("Text9", "0.03").contenido()),
  };
  std::vector<std::string> orden;
  std::string esperado;
  for (std::size_t i = 0; i < todos.size(); ++i)
    for (std::size_t k = 0; k < todos.size(); ++k) {
      orden.push_back(todos[(i * k + k) % todos.size()]);
      esperado += correr({"--json", orden.back()}).salida;
    }
  std::vector<std::string> argumentos = {"--json"};
  argumentos.insert(argumentos.end(), orden.begin(), orden.end());
  EXPECT_EQ(correr(argumentos).salida, esperado);
}

#ifndef _WIN32
TEST_F(Archivos, OutputThatCannotBeWrittenIsAnError) {
  std::ofstream lleno("/dev/full");
  std::ostringstream errores;
  const std::string vacio = carpeta.escribir("vacio.cvr", "");
  const char* argv[] = {"calvento-lote", vacio.c_str()};  // its output is so short that it waits in the buffer
  EXPECT_EQ(ejecutar(2, argv, lleno, errores), 2);
  EXPECT_NE(errores.str().find("no se pudo escribir"), std::string::npos);
}
#endif

}  // namespace
}  // namespace calvento::lote
