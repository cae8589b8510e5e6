#include <gtest/gtest.h>
#include <regex>
#include <sstream>

#include "corrida.h"

namespace calvento::lote {
namespace {

class Opciones : public testing::Test {
 protected:
  const CarpetaPrueba carpeta;
  const std::string canal = carpeta.escribir("canal.cvr", ProyectoRapida().contenido());
  /// Side slope of the chute not 0: the inlet transition changes with every press, since it uses the former wall.
  const std::string inclinado = carpeta.escribir("inclinado.cvr", ProyectoRapida().poner("Text11", "0.5").contenido());

  nlohmann::ordered_json unico(std::vector<std::string> argumentos) const {
    argumentos.insert(argumentos.begin(), "--json");
    const Corrida c = correr(argumentos);
    EXPECT_EQ(c.estado, 0) << c.errores;
    const auto objetos = c.objetos();
    EXPECT_EQ(objetos.size(), 1U);
    return objetos.at(0);
  }
};

TEST_F(Opciones, WrongOnesAreToldBeforeAnythingIsOpened) {
  const struct {
    std::vector<std::string> argumentos;
    const char* dice;
  } casos[] = {
      {{}, "falta el archivo"},
      {{"--nada", canal}, "opción desconocida: --nada"},
      {{canal, "--campo"}, "--campo"},
      {{"--campo", "Form10.Text5", canal}, "se espera VENTANA.CONTROL=TEXTO"},
      {{"--campo", "Form10.=3", canal}, "se espera VENTANA.CONTROL=TEXTO"},
      {{"--campo", "Text5=2.5", canal}, "se espera VENTANA.CONTROL=TEXTO"},
      {{"--campo", "Form99.Text5=3", canal}, "no hay tal ventana"},
      {{"--campo", "frmMain.mnsalir=1", canal}, "no hay tal ventana"},
      {{"--campo", "Form10.Text99=3", canal}, "no tiene ese control"},
      {{"--campo", "Form10.Label27=3", canal}, "no recibe un valor"},
      {{"--campo", "Form10.mngrafico=1", canal}, "no recibe un valor"},
      {{"--campo", "Form2.Check1=si", canal}, "se espera 1 o 0"},
      {{"--campo", "Form10.Grid1=7", canal}, "una fila de 0 a 6"},
      {{"--campo", "Form10.Grid1=3x", canal}, "una fila de 0 a 6"},
      {{"--campo", "Form10.Text5=3", "otro.txt"}, "ninguno de los archivos"},
      {{"--veces", "-1", canal}, "--veces"},
      {{"--veces", "1.5", canal}, "--veces 1.5"},
      {{"--veces", "99999999999", canal}, "--veces"},
      {{"--veces", "", canal}, "--veces"},
      {{"--veces", "1", "--veces", "2", canal}, "--veces"},
      {{"--responder", "quizá", canal}, "se espera si o no"},
  };
  for (const auto& caso : casos) {
    const Corrida c = correr(caso.argumentos);
    const std::string linea = testing::PrintToString(caso.argumentos);
    EXPECT_EQ(c.estado, 2) << linea;
    EXPECT_EQ(c.salida, "") << linea;
    EXPECT_NE(c.errores.find(caso.dice), std::string::npos) << linea << " said: " << c.errores;
  }
}

TEST_F(Opciones, HelpIsSpanishAndOnStandardOutput) {
  const Corrida c = correr({"--ayuda"});
  EXPECT_EQ(c.estado, 0);
  EXPECT_EQ(c.errores, "");
  for (const char* parte : {"Uso:", "--campo VENTANA.CONTROL=TEXTO", "--veces N", "--responder si|no", ".cvr"})
    EXPECT_NE(c.salida.find(parte), std::string::npos) << parte;
  for (const char* ingles : {"Usage", "Options", "REQUIRED", "TEXT ", "Positionals", "Print"})
    EXPECT_EQ(c.salida.find(ingles), std::string::npos) << ingles;
}

TEST_F(Opciones, TheManualPageTellsEveryOptionOfTheHelp) {
  const std::string ayuda = correr({"--ayuda"}).salida;
  std::string pagina = correr({"--pagina-man"}).salida;
  for (std::size_t i; (i = pagina.find("\\-")) != std::string::npos;) pagina.replace(i, 2, "-");
  const std::regex opcion("\n {1,4}(-[^ \n]+)");
  int n = 0;
  for (std::sregex_iterator i(ayuda.begin(), ayuda.end(), opcion), fin; i != fin; ++i, ++n) {
    const std::string larga = "--" + (*i)[1].str().substr((*i)[1].str().rfind("--") + 2);
    EXPECT_NE(pagina.find(larga + "\\fR"), std::string::npos) << larga;
  }
  EXPECT_GE(n, 6);
  EXPECT_EQ(ayuda.find("pagina-man"), std::string::npos);
  // nothing of the texts is taken for a request
  std::istringstream lineas(pagina);
  const std::regex peticion("(\\.(TH|SH|SS|TP|PP|BR?|nf|fi)( .*)?)|[^.'].*");
  for (std::string l; std::getline(lineas, l);) EXPECT_TRUE(l.empty() || std::regex_match(l, peticion)) << l;
}

TEST_F(Opciones, ParameterFieldsGoInBeforeTheFileIsOpened) {
  const auto normal = unico({canal})["estado"];
  // the chute's file does not store the angle of the transitions, so what was put in stays
  const auto angulo = unico({"--campo", "Form2.Text9=25", canal})["estado"];
  EXPECT_FLOAT_EQ(angulo["anguloTransicion"], 25);
  EXPECT_LT(angulo["longTransSalida"], normal["longTransSalida"]);
  // it does store the freeboards, so the file's prevail
  EXPECT_EQ(unico({"--campo", "Form2.Text5=0.90", canal})["estado"]["hArriba"], normal["hArriba"]);
}

TEST_F(Opciones, DataFieldsGoInAfterTheFileAndThenOneMorePress) {
  EXPECT_FLOAT_EQ(unico({"--campo", "Form10.Text26=5", canal})["estado"]["ahogamiento"], 0.05F);
  const auto largo = [&](const std::vector<std::string>& a) { return unico(a)["estado"]["longTransEntrada"]; };
  const auto una = largo({inclinado});
  const auto dos = largo({"--veces", "1", inclinado});
  ASSERT_NE(una, dos);
  EXPECT_EQ(largo({"--campo", "Form10.Text25=340", inclinado}), dos);
  EXPECT_EQ(largo({"--campo", "Form2.Text1=5", inclinado}), una);
}

TEST_F(Opciones, TextsMayHoldAnyCharacterAndTheLastOneStands) {
  const auto progresiva = [&](const std::vector<std::string>& a) { return unico(a)["ventana"]["campos"]["Text25"]; };
  EXPECT_EQ(progresiva({"--campo", "Form10.Text25=34=0 [x] ñ.", canal}), "34=0 [x] ñ.");
  EXPECT_EQ(progresiva({"--campo=Form10.Text25=", canal}), "");
  EXPECT_EQ(progresiva({"--campo", "Form10.Text25=2,5", canal}), "2.5") << "as when it is typed";
  EXPECT_EQ(progresiva({"--campo", "Form10.Text25=5", "--campo", "Form10.Text25=7", canal}), "7");
}

TEST_F(Opciones, ARowOfTheTableIsClicked) {
  const auto antes = unico({canal});
  const auto d = unico({"--campo", "Form10.Grid1=1", canal});
  EXPECT_FLOAT_EQ(d["estado"]["tipoTanque"], 1);
  EXPECT_FLOAT_EQ(d["estado"]["kLongPoza"], 5);
  EXPECT_TRUE(antes["ventana"]["menus"]["mntabla"]);
  EXPECT_FALSE(d["ventana"]["menus"]["mntabla"]);
  // the heading row chooses no basin, which the calculation then asks for
  const auto ninguno = unico({"--campo", "Form10.Grid1=0", canal});
  EXPECT_FLOAT_EQ(ninguno["estado"]["tipoTanque"], 0);
  EXPECT_EQ(ninguno["mensajes"].size(), 1U);
}

TEST_F(Opciones, EveryPressTellsItsMessages) {
  // a narrow chute into a wide basin: the width warning comes with each press
  const std::string ancho = carpeta.escribir("ancho.cvr", ProyectoRapida().poner("Text23", "6").contenido());
  const auto avisos = [this](const std::vector<std::string>& argumentos) {
    int n = 0;
    const auto mensajes = unico(argumentos)["mensajes"];
    for (const auto& m : mensajes)
      if (m["texto"].get<std::string>().rfind("Ancho de poza debe ser menor", 0) == 0 && m["tipo"] == "aviso") ++n;
    return n;
  };
  EXPECT_EQ(avisos({ancho}), 1);
  EXPECT_EQ(avisos({"--veces", "3", ancho}), 4);
  EXPECT_EQ(avisos({"--veces", "3", "--campo", "Form10.Text25=1", ancho}), 5);
}

TEST_F(Opciones, EveryQuestionGetsTheSameAnswer) {
  const std::string rapido = carpeta.escribir("rapido.cvr", ProyectoRapida().poner("Text9", "0.03").contenido());
  const auto si = unico({rapido});
  EXPECT_EQ(si["mensajes"].at(0)["tipo"], "pregunta");
  EXPECT_EQ(si["mensajes"].at(0)["respuesta"], "si");
  const Corrida c = correr({"--json", "--responder", "no", rapido});
  EXPECT_EQ(c.estado, 1);
  const auto no = c.objetos().at(0);
  EXPECT_FALSE(no["calculado"]);
  EXPECT_EQ(no["mensajes"].at(0)["respuesta"], "no");
  EXPECT_NE(c.errores.find("rapido.cvr: pregunta: "), std::string::npos) << c.errores;
}

}  // namespace
}  // namespace calvento::lote
