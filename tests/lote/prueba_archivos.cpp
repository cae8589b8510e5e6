#include <gtest/gtest.h>
#include <streambuf>
#include <unistd.h>

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
      {carpeta.escribir("sin_extension", entero), 2, "extensión"},
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
    EXPECT_FALSE(objetos[0]["mensajes"].empty()) << caso.archivo;
    EXPECT_EQ(c.errores.rfind(caso.archivo + ": ", 0), 0U) << c.errores;
    EXPECT_NE(c.errores.find(caso.dice), std::string::npos) << c.errores;
  }
}

TEST_F(Archivos, AnUnreadableFileCountsAsNotReadable) {
  if (geteuid() == 0) GTEST_SKIP() << "the superuser reads everything";
  const std::string cerrado = carpeta.escribir("cerrado.cvr", ProyectoRapida().contenido());
  std::filesystem::permissions(cerrado, std::filesystem::perms::none);
  EXPECT_EQ(correr({cerrado}).estado, 2);
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

TEST_F(Archivos, ExtensionsMayBeInCapitals) {
  EXPECT_EQ(correr({carpeta.escribir("CANAL.CVR", ProyectoRapida().contenido())}).estado, 0);
}

TEST_F(Archivos, OneThatFailsNeverStopsTheOthers) {
  const std::string lento = carpeta.escribir("lento.cvr", ProyectoRapida().poner("Text13", "0.0001").contenido());
  const Corrida uno = correr({"--json", canal, lento, canal});
  EXPECT_EQ(uno.estado, 1);
  EXPECT_EQ(uno.objetos().size(), 3U);
  EXPECT_EQ(uno.errores.rfind(lento + ": aviso: FLUJO SUB CRITICO", 0), 0U) << uno.errores;

  const Corrida dos = correr({"--json", carpeta.en("no-esta.cvr"), lento, canal});
  EXPECT_EQ(dos.estado, 2);
  EXPECT_EQ(dos.objetos().size(), 3U);
  EXPECT_EQ(dos.objetos().at(2)["calculado"], true);
}

TEST_F(Archivos, AProjectGivesTheSameWhateverCameBefore) {
  // each of these leaves other fields, parameters, table and record behind
  const std::vector<std::string> todos = {
      canal,
      carpeta.escribir("tres.cvr", ProyectoRapida()
                                       .poner("Text17", "3")
                                       .poner("Text3", "1819")
                                       .poner("Text27", "1817")
                                       .poner("Text15", "0.3")
                                       .poner("Text14", "0.25")
                                       .poner("Form2.Text8", "0.5")
                                       .contenido()),
      carpeta.escribir("roto.cvr", ProyectoRapida().poner("Text11", "0.5").poner("Text23", "0").contenido()),
      carpeta.escribir("cortado.cvr", ProyectoRapida().poner("Text5", "9").contenido().substr(0, 40)),
      carpeta.escribir("rapido.cvr", ProyectoRapida().poner("Text9", "0.03").contenido()),
      carpeta.escribir("talud.cvr", ProyectoRapida().poner("Text11", "0.5").poner("Form2.Text1", "9").contenido()),
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

TEST_F(Archivos, WorkGoesToStandardOutputAndTroubleToStandardError) {
  const Corrida bien = correr({canal});
  EXPECT_EQ(bien.errores, "");
  for (const char* parte :
       {"Rápida - canal.cvr", "DATOS", "Q = 1.5 m³/s", "RESULTADOS", "> USBR - II", "MENSAJES\n  ninguno"})
    EXPECT_NE(bien.salida.find(parte), std::string::npos) << parte;

  const Corrida mal = correr({carpeta.en("no-esta.cvr"), canal});
  EXPECT_NE(mal.salida.find("no-esta.cvr (no calculado)"), std::string::npos);
  EXPECT_EQ(mal.salida.find("DATOS"), mal.salida.rfind("DATOS")) << "an empty design was printed";
  const std::string lento = carpeta.escribir("lento.cvr", ProyectoRapida().poner("Text13", "0.0001").contenido());
  EXPECT_NE(correr({lento}).salida.find("El cálculo no llegó a su fin"), std::string::npos);
  EXPECT_EQ(mal.errores.find("canal.cvr: aviso"), std::string::npos);
}

/// A disk that is full from the first byte.
class DiscoLleno : public std::streambuf {
 protected:
  int_type overflow(int_type) override { return traits_type::eof(); }
};

TEST_F(Archivos, OutputThatCannotBeWrittenIsAnError) {
  DiscoLleno lleno;
  std::ostream salida(&lleno);
  std::ostringstream errores;
  const char* argv[] = {"calvento-lote", "--json", canal.c_str()};
  EXPECT_EQ(ejecutar(3, argv, salida, errores), 2);
  EXPECT_NE(errores.str().find("no se pudo escribir"), std::string::npos);
}

}  // namespace
}  // namespace calvento::lote
