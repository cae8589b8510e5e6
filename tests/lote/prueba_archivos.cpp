#include <gtest/gtest.h>

#include "corrida.h"

namespace calvento::lote {
namespace {

class Archivos : public testing::Test {
 protected:
  const CarpetaPrueba carpeta;
  const std::string canal = carpeta.escribir("canal.cvr", ProyectoRapida().contenido());
};

TEST_F(Archivos, AProjectThatWasNotReadIsNotCalculatedByAnOption) {
  // the lines up to the basin stand, and the fields of the option would make it calculate
  const std::string entero = ProyectoRapida().contenido();
  const std::string cortado = carpeta.escribir("cortado.cvr", entero.substr(0, entero.size() - 6));
  const Corrida c = correr({"--json", "--campo", "Form10.Text17=1", "--veces", "1", cortado});
  EXPECT_EQ(c.estado, 1);
  EXPECT_EQ(c.objetos().at(0)["estado"]["ynArriba"].is_null(), false);
  EXPECT_TRUE(c.objetos().at(0)["perfil"].empty());
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
