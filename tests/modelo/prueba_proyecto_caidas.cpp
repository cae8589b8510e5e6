#include <sstream>

#include "apoyo/carpeta_prueba.h"
#include "apoyo/mesa.h"
#include "caida_inclinada/form1.h"
#include "caida_vertical/form16.h"
#include "modelo/codificacion.h"

namespace calvento {
namespace {

using MesaInclinada = MesaDe<Form1, Form2>;
using MesaVertical = MesaDe<Form16, Form25>;
using Lineas = std::vector<std::pair<std::string, std::string>>;

Lineas lineasDe(const std::string& texto) {
  Lineas lineas;
  std::istringstream partes(texto);
  for (std::string par; std::getline(partes, par, '|');)
    lineas.emplace_back(par.substr(0, par.find(':')), par.substr(par.find(':') + 1));
  return lineas;
}
/// The lines of both kinds in their order, counted out by hand; "p." is the parameter window, "=" the record.
const Lineas inclinada = lineasDe(
    "Text5:1.5|Text2:1820.40|Text25:3150 ñ|Text21:1.9|Text22:1.4|Text4:1818.4|Text3:8|Text6:1.10|Text7:1|Text8:0.015|"
    "Text9:0.001|Text16:1.20|Text18:1.5|Text19:0.017|Text20:0.0011|Text23:1.35|Text24:0|p.Text1:5.1|p.Text2:6.2|"
    "p.Text3:2.9|p.Text4:4.3|p.Text5:0.25|p.Text6:0.35|p.Text7:0.4|p.Text8:0.15|p.Text10:6.3|=anguloTransicion:22.5|"
    "=tipoTanque:3");
const Lineas vertical = lineasDe(
    "Text5:1|Text25:1405 ñ|Text2:512.30|Text4:511.10|Text22:0.5|Text6:0.90|Text7:1|Text8:0.015|Text9:0.001|"
    "Text16:0.95|Text18:1.5|Text19:0.017|Text20:0.0011|Text23:1.25|p.Text2:0.15|p.Text1:5.5|p.Text5:0.25|p.Text8:0.35|"
    "=anguloTransicion:22.5|tubo:Tubería de Fierro|=longTubo:3|=diamTubo:0.1016|=tipoTransVert:1|=tipoTanque:0");

std::string contenido(const Lineas& lineas, std::string_view distinta = {}, const char* valor = "") {
  std::string s;
  for (const auto& [nombre, texto] : lineas) s.append(nombre == distinta ? std::string(valor) : texto).append("\r\n");
  return aWindows1252(s);
}

template <class M>
TextBox* campo(M& m, std::string_view nombre) {
  Ventana& v = nombre.starts_with("p.") ? static_cast<Ventana&>(m.parametros) : m.f;
  return v.buscar<TextBox>(nombre.starts_with("p.") ? nombre.substr(2) : nombre);
}

template <class M>
void idaYVuelta(const Lineas& lineas, const char* archivo, const char* filtro, const std::string& titulo) {
  CarpetaPrueba carpeta;
  carpeta.escribir(archivo, contenido(lineas));
  M m;
  m.dialogos.abre(carpeta.en(archivo));
  m.f.mnabrir.Click();
  EXPECT_EQ(m.dialogos.ultimasOpciones.filtro, filtro);
  EXPECT_TRUE(m.f.calculado());
  EXPECT_EQ(m.f.Caption.valor(), titulo + " - " + archivo);
  EXPECT_FALSE(m.estado.esNuevo);
  for (const auto& [nombre, texto] : lineas)
    if (const TextBox* c = campo(m, nombre)) {
      EXPECT_EQ(c->Text.valor(), texto) << nombre;
    }
  // the angle went into the record, and the calculation overwrote it from the field, which was not refilled
  EXPECT_EQ(m.parametros.Text9.Text.valor(), "12.5");
  EXPECT_EQ(m.valor(&DesignState::anguloTransicion), 12.5);

  // every line has its own source: each is changed in turn and only it differs in the file
  m.parametros.Text9.Text = "22.5";
  m.f.Command3.Click();
  m.f.mnguardar.Click();
  const std::string guardado = carpeta.leer(archivo);
  EXPECT_EQ(std::count(guardado.begin(), guardado.end(), '\n'), static_cast<long>(lineas.size()));
  std::vector<std::string> antes = leerLineas(archivo, 99);
  for (std::size_t i = 0; i < lineas.size(); ++i) {
    const std::string_view nombre = lineas[i].first;
    if (!nombre.ends_with("Tubo") && nombre != "tubo") {
      EXPECT_EQ(antes[i], lineas[i].second) << nombre;
    }
    if (TextBox* c = campo(m, nombre)) {
      c->Text = "x" + std::to_string(i);
      m.f.mnguardar.Click();
      antes[i] = c->Text;
      EXPECT_EQ(leerLineas(archivo, 99), antes) << nombre;
    }
  }
  // a file that ends early fills what it has and calculates nothing
  M corta;
  carpeta.escribir(archivo, "7\r\n8\r\n");
  corta.dialogos.esperaFallo(std::string("El archivo ") + archivo + " está incompleto: termina en la línea 2 de " +
                             std::to_string(lineas.size()));
  corta.f.abrir(archivo);
  EXPECT_EQ(campo(corta, lineas[0].first)->Text.valor() + campo(corta, lineas[1].first)->Text.valor(), "78");
  EXPECT_TRUE(corta.estado.esNuevo && !corta.f.calculado());
}

TEST(DropProjects, EveryLineGoesAndComes) {
  idaYVuelta<MesaInclinada>(inclinada, "a.cvi", "CVI File(*.CVI)|*.cvi", "Caída Inclinada");
  idaYVuelta<MesaVertical>(vertical, "a.cvv", "CVV File(*.CVV)|*.cvv", "Caída Vertical");
}

TEST(DropProjects, OpeningAnInclinedDropReturnsToTheSubcriticalFace) {
  CarpetaPrueba carpeta;
  for (const char* tipo : {"3", "0", "7"}) {
    carpeta.escribir("a.cvi", contenido(inclinada, "=tipoTanque", tipo));
    MesaInclinada m;
    m.f.mnsuper.Click();
    const bool deLaTabla = std::string(tipo) == "3";
    if (!deLaTabla)
      m.dialogos.esperaAviso(avisoSinTanque).esperaFallo("El proyecto no indica un tipo de tanque de la tabla (1 a 6)");
    m.f.abrir("a.cvi");
    EXPECT_TRUE(m.f.calculado() && !m.f.mnsuper.Checked) << tipo;
    EXPECT_TRUE(m.f.Frame1.Visible && m.f.LineasControl.Visible && m.f.Text4.Enabled && m.f.Text20.Enabled) << tipo;
    EXPECT_FALSE(m.f.LineasSuper.Visible || m.f.Label45.Visible) << tipo;
    EXPECT_NEAR(m.valor(&DesignState::cotaAbajo), 1818.4, 1e-3) << "calculated in the subcritical regime";
    EXPECT_EQ(m.f.Grid1.tabla.fondo(3, 0), deLaTabla ? color::celdaElegida : color::celda);
    if (deLaTabla) {
      EXPECT_NEAR(m.valor(&DesignState::longPoza), 2.9 * m.valor(&DesignState::y2), 1e-5) << "off the grid";
    }
  }
}

TEST(DropProjects, AVerticalDropSetsItsOptionsFromTheFile) {
  CarpetaPrueba carpeta;
  MesaVertical m;  // one window for all: each file finds the options of the one before
  for (const int i : {3, 0, 1, 2, 0}) {
    const char* ventilacion = i % 2 == 0 ? "0" : "1";
    std::string s = contenido(vertical, "=tipoTransVert", ventilacion);
    s.replace(s.rfind("0\r\n"), 1, i < 2 ? "0" : "1");
    carpeta.escribir("a.cvv", s);
    m.f.abrir("a.cvv");
    EXPECT_TRUE(m.f.calculado());
    EXPECT_EQ(m.f.Option1.Value, i >= 2) << i;
    EXPECT_EQ(m.f.Option2.Value, i < 2) << i;
    EXPECT_EQ(m.parametros.Option4.Value, i % 2 == 1) << i;
    EXPECT_EQ(m.parametros.Option3.Value, i % 2 == 0) << i;
    EXPECT_EQ(m.parametros.Combo2.Enabled, i % 2 == 1) << i;
    EXPECT_EQ(m.parametros.Text2.Enabled, i % 2 == 0) << i;
    EXPECT_EQ(m.valor(&DesignState::tipoTanque), i < 2 ? 0 : 1) << i;
    EXPECT_NEAR(m.valor(&DesignState::longTransVert), i % 2 == 0 ? 0.15 : 0, 1e-7) << i;
    // the pipe's data come from its fields, not from the file
    EXPECT_EQ(m.estado.tipoTubo, "Tubería de PVC");
    EXPECT_NEAR(m.valor(&DesignState::diamTubo), 0.0508, 1e-8);
  }
  // a calculation that stops before the pipes leaves those of the file
  carpeta.escribir("a.cvv", contenido(vertical, "Text9", "0.05"));
  m.dialogos.esperaAviso();
  m.f.abrir("a.cvv");
  EXPECT_EQ(m.estado.tipoTubo, "Tubería de Fierro");
  EXPECT_EQ(m.valor(&DesignState::longTubo), 3);
  EXPECT_NEAR(m.valor(&DesignState::diamTubo), 0.1016, 1e-8);
  m.f.mnguardar.Click();
  EXPECT_EQ(leerLineas("a.cvv", 99)[20], "3");
  EXPECT_EQ(leerLineas("a.cvv", 99)[21], "0.1016");
}

}  // namespace
}  // namespace calvento
