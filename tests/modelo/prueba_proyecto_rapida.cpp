#include <filesystem>
#include <map>
#include <random>

#include "apoyo/carpeta_prueba.h"
#include "apoyo/mesas.h"
#include "modelo/codificacion.h"

namespace calvento {
namespace {

namespace fs = std::filesystem;

/// The fields in the order of the lines, counted out by hand; line 36 is the basin type.
const std::vector<std::string_view> ordenEscritoAMano = {
    "Text5",   "Text6",   "Text7",   "Text8",   "Text9",    "Text10",     "Text11",  "Text12",  "Text13",  "Text15",
    "Text14",  "Text16",  "Text18",  "Text19",  "Text20",   "Text23",     "Text24",  "Text1",   "Text3",   "Text27",
    "Text2",   "Text4",   "Text21",  "Text22",  "Text25",   "Text26",     "2.Text1", "2.Text2", "2.Text3", "2.Text4",
    "2.Text5", "2.Text6", "2.Text7", "2.Text8", "2.Text10", "tipoTanque", "Text17"};

TextBox& campo(MesaRapida& m, std::string_view nombre) {
  return nombre.starts_with("2.") ? *m.parametros.buscar<TextBox>(nombre.substr(2)) : *m.f.buscar<TextBox>(nombre);
}

/// A calculable project of one reach with basin type 3, its lines ended by `fin`.
std::string proyecto(std::string_view fin, const std::string& progresiva = "1250") {
  std::string s;
  for (const std::string& linea : std::vector<std::string>{
           "1.8",     "1.20",    "1",    "0.015", "0.001",    "0.95", "0", "0.015",   "0.25", "",
           "",        "1.20",    "1",    "0.015", "0.001",    "1.00", "0", "2534.60", "",     "",
           "2524.60", "2524.10", "2",    "1.5",   progresiva, "10",   "5", "6.2",     "2.8",  "4.4",
           "0.25",    "0.30",    "0.30", "0.20",  "6",        "3",    "1"})
    s.append(linea).append(fin);
  return s;
}

void sinTocar(const MesaRapida& m, const char* que) {
  EXPECT_FALSE(m.f.calculado()) << que;
  EXPECT_EQ(m.estado.rutaArchivo, "") << que;
  EXPECT_TRUE(m.estado.esNuevo) << que;
  EXPECT_EQ(m.f.Caption.valor(), "Rápida") << que;
}

TEST(ChuteProject, ReadsWhatOtherEditorsWrite) {
  CarpetaPrueba carpeta;
  const std::string latina = "1250 \xF1\xB3\x80";  // Windows-1252
  const struct {
    const char* que;
    std::string contenido;
    const char* progresiva;
  } casos[] = {
      {"CRLF", proyecto("\r\n"), "1250"},
      {"LF", proyecto("\n"), "1250"},
      {"mark and UTF-8", "\xEF\xBB\xBF" + proyecto("\r\n", "1250 ñ³€"), "1250 ñ³€"},
      {"UTF-8", proyecto("\n", "1250 ñ³€"), "1250 ñ³€"},
      {"code page", proyecto("\r\n", latina), "1250 ñ³€"},
      {"extra lines", proyecto("\r\n") + "77\r\n" + std::string(5000, '\0'), "1250"},
      {"no end of the last line", proyecto("\n").substr(0, proyecto("\n").size() - 1), "1250"},
  };
  for (const auto& c : casos) {
    MesaRapida m;
    m.f.Text3.Text = m.f.Text15.Text = "5";
    carpeta.escribir("b.cvr", c.contenido);
    m.f.abrir("b.cvr");
    EXPECT_TRUE(m.f.calculado()) << c.que;
    EXPECT_EQ(m.f.Text25.Text.valor(), c.progresiva) << c.que;
    EXPECT_EQ(m.f.Text3.Text.valor() + m.f.Text15.Text.valor(), "") << "empty lines are empty fields, " << c.que;
    EXPECT_EQ(m.parametros.Text2.Text.valor() + m.parametros.Text5.Text.valor(), "6.20.25") << c.que;
    EXPECT_EQ(m.f.Caption.valor(), "Rápida - b.cvr") << c.que;
    EXPECT_FALSE(m.estado.esNuevo) << c.que;
    EXPECT_EQ(m.estado.numTramos, 1) << c.que;
    // type 3 is USBR II: its row is painted, its rule sets the length, its sheet can be opened
    EXPECT_EQ(m.f.Grid1.tabla.fondo(3, 0), color::celdaElegida) << c.que;
    EXPECT_EQ(m.f.Grid1.tabla.fondo(2, 3), color::celda) << c.que;
    EXPECT_NEAR(m.valor(&DesignState::longPoza), 2.8 * m.valor(&DesignState::y2), 1e-5) << c.que;
    EXPECT_TRUE(m.f.mntabla.Enabled) << c.que;
  }
}

TEST(ChuteProject, WhatIsNoProjectLosesNothingAndCalculatesNothing) {
  CarpetaPrueba carpeta;
  fs::create_directory("carpeta.cvr");
  const bool hayTuberias = carpeta.tuberia("tubo.cvr");
  carpeta.escribir("binario.cvr", proyecto("\r\n").substr(0, 60) + std::string("\0\1\2\xFF", 4) + proyecto("\r\n"));
  carpeta.escribir("linea.cvr", std::string(1 << 20, '7'));
  carpeta.escribir("cortado.cvr", "5\r\n6\r\n7\r\n");
  carpeta.escribir("nada.cvr", "");
  carpeta.escribir("tipo.cvr", proyecto("\r\n").replace(proyecto("\r\n").rfind("3\r\n1"), 1, "1e999"));
  const struct {
    const char* ruta;
    const char* mensaje;
    int leidas;
  } casos[] = {
      {"carpeta.cvr", "No se puede leer el archivo carpeta.cvr: es una carpeta", 0},
      {"tubo.cvr", "No se puede leer el archivo tubo.cvr: no es un archivo de texto", 0},
      {"binario.cvr", "No se puede leer el archivo binario.cvr: no es un archivo de proyecto", 0},
      {"linea.cvr", "No se puede leer el archivo linea.cvr: no es un archivo de proyecto", 0},
      {"falta.cvr", "No se puede leer el archivo falta.cvr: no existe el archivo o la carpeta", 0},
#ifndef _WIN32  // says the same of the file
      {"nada.cvr/a.cvr", "No se puede leer el archivo a.cvr: no existe la carpeta", 0},
#endif
      {"cortado.cvr", "El archivo cortado.cvr está incompleto: termina en la línea 3 de 37", 3},
      {"nada.cvr", "El archivo nada.cvr está incompleto: termina en la línea 0 de 37", 0},
      {"tipo.cvr", "El archivo tipo.cvr tiene un número no válido: Desbordamiento: el número es demasiado grande", 35},
  };
  for (const auto& c : casos) {
    if (!hayTuberias && c.ruta == std::string("tubo.cvr")) continue;
    MesaRapida m;
    for (const auto nombre : ordenEscritoAMano)
      if (nombre != "tipoTanque") campo(m, nombre).Text = "tecleado";
    m.dialogos.esperaFallo(c.mensaje);
    m.f.abrir(c.ruta);
    int guardados = 0;
    for (const auto nombre : ordenEscritoAMano)
      if (nombre != "tipoTanque") guardados += campo(m, nombre).Text.valor() == "tecleado" ? 1 : 0;
    EXPECT_EQ(guardados, 36 - c.leidas) << c.ruta;
    sinTocar(m, c.ruta);
  }
}

TEST(ChuteProject, GarbageTextsComeBack) {
  CarpetaPrueba carpeta;
  std::mt19937 azar(7);
  const std::vector<std::string> trozos = {"1",  "2.5",    "-",      "e",      ",",
                                           " ",  "\t",     "ñ",      "€",      "²",
                                           "Ω",  "漢",     "😀",      "\"",     "'",
                                           "\\", "\u0081", "\u0085", "Ã©",     "é",
                                           "..", "1e9",    "\u00A0", "\u0152", std::string(5000, '8')};
  MesaRapida m;
  using Clase = DialogosGuion::Clase;
  m.dialogos.tolera(Clase::aviso).tolera(Clase::fallo).tolera(Clase::pregunta);
  for (int vuelta = 0; vuelta < 60; ++vuelta) {
    std::map<TextBox*, std::string> textos;
    for (const auto nombre : ordenEscritoAMano) {
      if (nombre == "tipoTanque") continue;
      std::string& texto = textos[&campo(m, nombre)];
      for (auto n = azar() % 6; n > 0; --n) texto += trozos[azar() % trozos.size()];
    }
    for (const auto& [c, texto] : textos) c->Text = texto;
    m.dialogos.guarda("g.cvr");
    m.f.mnguardarcomo.Click();
    for (const auto& [c, texto] : textos) c->Text = "?";
    m.f.abrir("g.cvr");
    for (const auto& [c, texto] : textos) EXPECT_EQ(c->Text.valor(), texto) << c->nombre();
    fs::remove("g.cvr");
  }
}

TEST(ChuteProject, ALineBreakInAFieldShiftsNoLine) {
  CarpetaPrueba carpeta;
  escribirLineas("s.cvr", {"1\n2", "a\rb\x01", "3"});
  EXPECT_EQ(leerLineas("s.cvr", 9), (std::vector<std::string>{"1 2", "a b ", "3"}));
}

}  // namespace
}  // namespace calvento
