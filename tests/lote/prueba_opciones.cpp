#include <gtest/gtest.h>
#include <regex>
#include <sstream>

#include "corrida.h"

namespace calvento::lote {
namespace {

TEST(Opciones, TheManualPageTellsEveryOptionOfTheHelp) {
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

}  // namespace
}  // namespace calvento::lote
