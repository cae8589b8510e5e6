#include <gtest/gtest.h>
#include <set>

#include "apoyo/carpeta_prueba.h"
#include "apoyo/disco_lleno.h"
#include "sesion/copias.h"

namespace calvento {
namespace {

using namespace std::chrono_literals;

struct CopiasDeSeguridad : testing::Test {
  CarpetaPrueba carpeta;
  Copias::Hora reloj{1'700'000'000s};
  std::set<std::string> corren{"a", "b"};
  Copias programa(const std::string& nombre) {
    return Copias({carpeta.en("copias"), nombre, [this] { return reloj; },
                   [this](const std::string& p) { return corren.contains(p); }});
  }
  Copias a = programa("a");

  static Trabajo trabajo(const std::string& Q, const std::string& nombre = {}) {
    Trabajo t;
    t.contenido.lineas.assign(formatoRapida.lineas.size(), "1");
    t.contenido.lineas[0] = Q;
    t.contenido.otros = {{"Form2.Text9", "12,5\\n\n"}};
    t.nombre = nombre;
    return t;
  }
  void dejar(Copias& c, const Trabajo& t) {
    c.guardar(formatoRapida, t);
    c.dejar(formatoRapida);
    reloj += 1min;
  }
  static std::string caudales(const Copias& c) {
    std::string s;
    for (const Copia& copia : c.lista(formatoRapida)) s += copia.caudal + " ";
    return s;
  }
};

TEST_F(CopiasDeSeguridad, WhatWasLeftComesBackWhole) {
  Trabajo t = trabajo("2.5", "Ñuble [*].cvr");
  t.archivo = "/a\\b/Ñuble [*].cvr";
  t.calculado = true;
  dejar(a, t);
  const std::vector<Copia> lista = programa("b").lista(formatoRapida);
  ASSERT_EQ(lista.size(), 1U);
  EXPECT_EQ(lista[0].nombre, "Ñuble [*].cvr");
  EXPECT_EQ(lista[0].hora, Copias::Hora(1'700'000'000s));
  const Trabajo vuelto = programa("b").leer(formatoRapida, lista[0].id);
  EXPECT_EQ(vuelto.contenido, t.contenido);
  EXPECT_EQ(vuelto.nombre + vuelto.archivo, t.nombre + t.archivo);
  EXPECT_TRUE(vuelto.calculado);
  EXPECT_FALSE(lista[0].abierta);
  EXPECT_TRUE(a.lista(formatoCaidaVertical).empty());
}

TEST_F(CopiasDeSeguridad, TheLastTenOfAStructureStayAndNoneOlderThanNinetyDays) {
  for (int i = 1; i <= 12; ++i) dejar(a, trabajo(std::to_string(i)));
  EXPECT_EQ(caudales(a), "12 11 10 9 8 7 6 5 4 3 ");
  dejar(a, trabajo("5"));  // the same again takes its place
  EXPECT_EQ(caudales(a), "5 12 11 10 9 8 7 6 4 3 ");
  reloj += 24h * 89;
  dejar(a, trabajo("13"));
  EXPECT_EQ(caudales(a), "13 5 12 11 10 9 8 7 6 4 ");
  reloj += 25h;
  dejar(a, trabajo("14"));
  EXPECT_EQ(caudales(a), "14 13 ");
}

TEST_F(CopiasDeSeguridad, TwoProgramsLeaveEachOthersCopiesAlone) {
  Copias b = programa("b");
  a.guardar(formatoRapida, trabajo("1"));
  b.guardar(formatoRapida, trabajo("2"));
  EXPECT_EQ(caudales(a) + caudales(b), "");  // they stand in windows
  EXPECT_FALSE(b.sinDejar(formatoRapida));
  b.soltar(formatoRapida, trabajo("1").contenido);  // saved there, still unsaved here
  reloj += 2h;
  corren.erase("a");  // killed
  EXPECT_EQ(caudales(b), "1 ");
  const auto perdida = b.sinDejar(formatoRapida);
  ASSERT_TRUE(perdida);
  EXPECT_EQ(perdida->caudal, "1");
  EXPECT_EQ(perdida->hora, Copias::Hora(1'700'000'000s));
  EXPECT_EQ(b.leer(formatoRapida, perdida->id).contenido, trabajo("1").contenido);
  EXPECT_FALSE(programa("c").sinDejar(formatoRapida)) << "told twice";
  EXPECT_EQ(caudales(b), "1 ");
}

TEST_F(CopiasDeSeguridad, WhatWasSavedIsKeptNoMore) {
  dejar(a, trabajo("1"));
  dejar(a, trabajo("2"));
  a.guardar(formatoRapida, trabajo("1.9"));  // before the last change
  a.soltar(formatoRapida, trabajo("1").contenido);
  EXPECT_EQ(caudales(programa("b")), "2 ");
}

#ifndef _WIN32
TEST_F(CopiasDeSeguridad, AFullDiskLeavesTheFormerCopy) {
  a.guardar(formatoRapida, trabajo("1"));
  {
    const DiscoLleno lleno(10);
    EXPECT_THROW(a.guardar(formatoRapida, trabajo("2")), FalloArchivo);
  }
  corren.clear();
  EXPECT_EQ(caudales(programa("b")), "1 ");
  a.guardar(formatoRapida, trabajo("3"));
  EXPECT_EQ(caudales(programa("b")), "3 ");
}
#endif

TEST_F(CopiasDeSeguridad, OfABrokenWritingNothingStays) {
  dejar(a, trabajo("1"));
  namespace fs = std::filesystem;
#ifndef _WIN32
  EXPECT_EQ(fs::status(carpeta.en("copias")).permissions(), fs::perms::owner_all) << "nobody else reads it";
#endif
  for (const char* resto : {"viejo.tmp~", "viejo.cvr.datos", "joven.tmp~", "joven.cvr.datos"}) {
    const std::string archivo = carpeta.escribir(std::string("copias/") + resto, "");
    const auto edad = resto[0] == 'v' ? 61min : 59min;
    fs::last_write_time(archivo, fs::file_time_type::clock::now() - edad);
  }
  dejar(a, trabajo("2"));
  std::string restos;
  for (const char* r : {"viejo.tmp~", "viejo.cvr.datos", "joven.tmp~", "joven.cvr.datos"})
    if (fs::exists(carpeta.en(std::string("copias/") + r))) restos += r + std::string(" ");
  EXPECT_EQ(restos, "joven.tmp~ joven.cvr.datos ") << "another program may be writing them";
  EXPECT_EQ(caudales(a), "2 1 ");
}

TEST_F(CopiasDeSeguridad, ACopyWithoutItsTextOrWithADamagedOneIsStillListed) {
  dejar(a, trabajo("7"));
  const std::string id = a.lista(formatoRapida)[0].id;
  carpeta.escribir("copias/" + id + ".cvr.datos", "hora=\nsin sentido\n=\n");
  corren.clear();
  EXPECT_EQ(caudales(a), "7 ");
  std::filesystem::remove(carpeta.en("copias/" + id + ".cvr.datos"));
  EXPECT_EQ(caudales(a), "7 ");
}

}  // namespace
}  // namespace calvento
