#include <gtest/gtest.h>
#ifndef _WIN32
#include <csignal>
#include <sys/wait.h>
#endif

#include "corrida.h"
#include "lote/senales.h"

namespace calvento::lote {
namespace {

class Archivos : public testing::Test {
 protected:
  const CarpetaPrueba carpeta;
  const std::string canal = carpeta.escribir("canal.cvr", ProyectoRapida().contenido());
};

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
TEST_F(Archivos, NothingThatATerminalObeysReachesIt) {
  const std::string malo = carpeta.escribir("a\x1B[2J\n\xF1.cvr", ProyectoRapida().contenido());
  const Corrida c = correr({"--campo", "Form10.Text25=3\n4\x7F\u009B5", malo, carpeta.en("no\t\u0085.cvr")});
  const Corrida j = correr({"--json", "--campo", "Form10.Text25=\u009B\x7F", malo});
  EXPECT_NE(c.salida.find("a\\x1B[2J\\n\\xF1.cvr\n══"), std::string::npos) << c.salida;
  EXPECT_NE(c.salida.find("3\\n4\\x7F\\u009B5"), std::string::npos) << c.salida;
  EXPECT_NE(c.errores.find("no\\t\\u0085.cvr: fallo: No se puede leer"), std::string::npos) << c.errores;
  EXPECT_EQ(j.objetos().at(0)["ventana"]["campos"]["Text25"], "\u009B\x7F");
  for (const std::string& texto : {c.salida, c.errores, j.salida})
    for (const char* mando : {"\x1B", "\x7F", "\u009B", "\u0085", "\t"})
      EXPECT_EQ(texto.find(mando), std::string::npos) << texto;
}

TEST_F(Archivos, NamesOfOldCodePagesStayDifferent) {
  // "año" and "aÑo" in Windows-1252: neither is UTF-8
  for (const char* nombre : {"a\xF1o.cvr", "a\xD1o.cvr"}) carpeta.escribir(nombre, ProyectoRapida().contenido());
  EXPECT_EQ(correr({"--dxf", carpeta.en("{}.dxf"), "a\xF1o.cvr", "a\xD1o.cvr"}).estado, 0);
  EXPECT_TRUE(std::filesystem::exists("a\xF1o.dxf") && std::filesystem::exists("a\xD1o.dxf"));
}

TEST_F(Archivos, OutputThatCannotBeWrittenIsAnErrorAndEndsTheRun) {
  const std::string vacio = carpeta.escribir("vacio.cvr", "");
  for (const std::vector<const char*>& argumentos :
       {std::vector<const char*>{"", vacio.c_str(), "no-esta.cvr"}, {"", "--ayuda"}, {"", "--version"}}) {
    std::ofstream lleno("/dev/full");
    std::ostringstream errores;
    EXPECT_EQ(ejecutar(static_cast<int>(argumentos.size()), argumentos.data(), lleno, errores), 2);
    EXPECT_EQ(errores.str(), "calvento-lote: no se pudo escribir la salida: no queda espacio en el disco\n");
  }
}

TEST_F(Archivos, ARequestToEndLeavesWholeLinesAndWholeFiles) {
  std::vector<std::string> textos = {"", "--json", "--dxf", carpeta.en("{}.dxf")};
  for (int i = 0; i < 2000; ++i) {
    textos.push_back(carpeta.en("p" + std::to_string(i) + ".cvr"));
    std::filesystem::create_hard_link(canal, textos.back());
  }
  std::vector<const char*> argv;
  for (const std::string& t : textos) argv.push_back(t.c_str());
  for (const int senal : {SIGINT, SIGTERM}) {
    const pid_t pid = ::fork();
    if (pid == 0) {
      atenderSenales();
      std::ofstream salida("salida.jsonl"), errores("errores");
      ejecutar(static_cast<int>(argv.size()), argv.data(), salida, errores);
      salida.close(), errores.close();
      terminarComoPedido();
      ::_exit(0);
    }
    while (!std::filesystem::exists("p3.dxf")) ::usleep(500);
    ::kill(pid, senal);
    int estado = 0;
    ::waitpid(pid, &estado, 0);
    EXPECT_TRUE(WIFSIGNALED(estado) && WTERMSIG(estado) == senal) << estado;
    EXPECT_EQ(carpeta.leer("errores"), "calvento-lote: interrumpido\n");
    const Corrida c{0, carpeta.leer("salida.jsonl"), ""};
    long dibujos = 0;
    for (const auto& e : std::filesystem::directory_iterator(".")) {
      EXPECT_EQ(e.path().string().find(".tmp"), std::string::npos);
      if (e.path().extension() != ".dxf") continue;
      ++dibujos;
      EXPECT_TRUE(carpeta.leer(e.path().string()).ends_with("  0\nEOF\n")) << e.path();
      std::filesystem::remove(e.path());
    }
    EXPECT_TRUE(c.salida.ends_with("}\n") && dibujos < 2000);
    EXPECT_EQ(static_cast<long>(c.objetos().size()), dibujos);
  }
}
#endif

}  // namespace
}  // namespace calvento::lote
