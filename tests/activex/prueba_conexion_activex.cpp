// The running application as a connection, against one that is not there but writes down what it is asked.
#include <filesystem>
#include <thread>

#include "activex/hilo_llamadas.h"
#include "activex/registro.h"

namespace calvento {
namespace {

struct Fingida : SistemaObjetos {
  struct Objeto : ObjetoRemoto {
    Objeto(Fingida& f, std::string n) : fingida(f), nombre(std::move(n)) {}
    ValorRemoto dar(const std::string& linea, const std::string& miembro) {
      if (fingida.llamadas.size() + 1 == fingida.fallaEn) throw FalloCad("rechazado");
      fingida.llamadas.push_back(linea);
      if (miembro == fingida.noDa) return {};
      return ReferenciaRemota(std::make_shared<Objeto>(fingida, miembro));
    }
    ValorRemoto leer(const std::string& p) override { return dar(nombre + "." + p, p); }
    void poner(const std::string& p, const ValorRemoto& v) override {
      const double* giro = p == "Rotation" ? std::get_if<double>(&v) : nullptr;
      if (giro == nullptr || *giro != 0) dar(comoPuesta(nombre, p, v), p);
    }
    ValorRemoto llamar(const std::string& m, const std::vector<ValorRemoto>& a) override {
      return dar(comoLlamada(nombre, m, a), m);
    }
    Fingida& fingida;
    std::string nombre;
  };
  bool registrada(const std::string& clase) override { return clase == hay; }
  bool abierta(const std::string& clase) override { return clase == hay && corre; }
  ReferenciaRemota obtener(const std::string& clase) override {
    if (!abierta(clase)) throw FalloCad("no corre");
    return manejable ? std::make_shared<Objeto>(*this, "Application") : nullptr;
  }
  ReferenciaRemota crear(const std::string& clase) override {
    if (!seCrea) throw FalloCad("no se crea " + clase);
    return std::make_shared<Objeto>(*this, "Application");
  }
  std::string hay = "AutoCAD.Application.18", noDa;
  bool corre = true, manejable = true, seCrea = true;
  std::size_t fallaEn = 0;
  std::vector<std::string> llamadas;
};

constexpr const char* rapida = RAIZ_PROYECTO "/ejemplos/01-rapida-un-tramo.cvr";

TEST(ConexionActiveX, CallsWhatTheDxfHoldsOfEveryExample) {
  const CarpetaPrueba carpeta;
  int n = 0;
  for (const auto& f : std::filesystem::directory_iterator(RAIZ_PROYECTO "/ejemplos")) {
    const std::string ext = f.path().extension().string();
    if (ext != ".cvr" && ext != ".cvi" && ext != ".cvv") continue;
    SCOPED_TRACE(f.path().string());
    DisenoExportable d(f.path().string());
    ConexionFija dxf(carpeta.en("a" + std::to_string(++n) + ".dxf"));
    ASSERT_EQ(d.exportar(dxf), "");
    Fingida fingida;
    ConexionActiveX activex(fingida);
    ASSERT_EQ(d.exportar({dxf, &activex}), "");
    EXPECT_EQ(fingida.llamadas, llamadasDe(dxf.dibujo.datos()));
    EXPECT_GT(fingida.llamadas.size(), 200U);
  }
  EXPECT_GE(n, 10);
}

TEST(ConexionActiveX, WhatEndsARunIsToldAsWithAnyApplication) {
  DisenoExportable d(rapida);
  const CarpetaPrueba carpeta;
  ConexionFija dxf(carpeta.en("a.dxf"));
  const auto exportar = [&](Fingida& f) {
    // it is chosen as long as it runs; when it goes later, the window still asks for it
    ConexionActiveX activex(f);
    Form12 v(d.aplicacion.estado, *d.aplicacion.cargar<Form2>("Form2"), d.dialogos, d.aplicacion, {dxf, &activex});
    v.Option1.Value = true;
    v.Command3_Click();
    return v.motivo();
  };
  Fingida sana, cerrada, sorda, muda, enMedio, sinDibujo;
  EXPECT_EQ(exportar(sana), "");
  cerrada.corre = false;
  d.dialogos.esperaFallo("Problemas con la conexión");
  EXPECT_EQ(exportar(cerrada), "no corre") << "and none is started";
  sorda.manejable = false;
  EXPECT_EQ(exportar(sorda), "");
  EXPECT_EQ(sorda.llamadas, sana.llamadas) << "to one that was started";
  muda.manejable = muda.seCrea = false;
  d.dialogos.esperaAviso("no se crea AutoCAD.Application.18");
  EXPECT_EQ(exportar(muda), "no se crea AutoCAD.Application.18");
  enMedio.fallaEn = 100;
  d.dialogos.esperaFallo("Problemas con la conexión");
  EXPECT_EQ(exportar(enMedio), "rechazado");
  EXPECT_EQ(enMedio.llamadas.size(), 99U);
  sinDibujo.noDa = "ActiveDocument";
  d.dialogos.esperaFallo("Problemas con la conexión");
  EXPECT_EQ(exportar(sinDibujo), "La aplicación no da el dibujo abierto");
}

TEST(ConexionActiveX, TheChoiceIsOfferedWhereTheApplicationIs) {
  DisenoExportable d(rapida);
  const CarpetaPrueba carpeta;
  ConexionFija dxf(carpeta.en("a.dxf"));
  const struct {
    const char* hay;
    bool corre, seOfrece, elegida;
  } casos[] = {{"AutoCAD.Application.18", true, true, true},
               {"AutoCAD.Application.18", false, true, false},
               {"AutoCAD.Application.17", true, false, false}};
  for (const auto& c : casos) {
    Fingida f;
    f.hay = c.hay, f.corre = c.corre;
    ConexionActiveX activex(f);
    const Form12 v(d.aplicacion.estado, *d.aplicacion.cargar<Form2>("Form2"), d.dialogos, d.aplicacion,
                   {dxf, &activex});
    EXPECT_EQ(v.Option1.Visible, c.seOfrece);
    EXPECT_EQ(v.Option2.Visible, c.seOfrece);
    EXPECT_EQ(v.Option1.Value, c.elegida);
    EXPECT_EQ(v.Option2.Value, !c.elegida);
  }
}

TEST(HiloLlamadas, ACallThatDoesNotComeBackFailsAndTheNextOnesWaitForNothing) {
  using namespace std::chrono_literals;
  std::promise<void> suelta;
  HiloLlamadas hilo(
      50ms, [] {}, [] {});
  EXPECT_EQ(hilo.hacer([] { return 7; }), 7);
  EXPECT_THROW(hilo.hacer([]() -> int { throw FalloCad("x"); }), FalloCad);
  EXPECT_THROW(hilo.hacer([f = suelta.get_future().share()] { f.wait(); }), FalloCad);
  const auto antes = std::chrono::steady_clock::now();
  EXPECT_THROW(hilo.hacer([] { ADD_FAILURE() << "behind one that hangs"; }), FalloCad);
  EXPECT_LT(std::chrono::steady_clock::now() - antes, 40ms);
  suelta.set_value();
  for (int i = 0; i < 100; ++i) try {
      EXPECT_EQ(hilo.hacer([] { return 8; }), 8);
      return;
    } catch (const FalloCad&) {
      std::this_thread::sleep_for(10ms);
    }
  FAIL() << "it came back and is not used";
}

}  // namespace
}  // namespace calvento
