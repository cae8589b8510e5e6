#include <fstream>
#include <gtest/gtest.h>
#include <set>

#include "aplicacion/aplicacion.h"
#include "apoyo/dialogos_guion.h"
#include "plataforma/sin_pantalla.h"

namespace calvento {
namespace {

TEST(Manual, HasAChapterForEveryWindow) {
  std::set<std::string> titulos;
  std::ifstream manual(RAIZ_PROYECTO "/docs/manual.md");
  for (std::string l; std::getline(manual, l);)
    if (l.starts_with("##")) titulos.insert(l.substr(l.find(' ') + 1));
  DialogosGuion dialogos;
  SinPantalla sistema;
  const Aplicacion a(dialogos, sistema);
  for (const std::string_view v : a.nombres()) {
    EXPECT_TRUE(titulos.contains(std::string(capituloDe(v)))) << v << ": " << capituloDe(v);
    EXPECT_TRUE(v.starts_with("frm") || capituloDe(v) != capituloDe("Form99")) << v << " is not in the table";
  }
}

}  // namespace
}  // namespace calvento
