#ifdef _WIN32

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <algorithm>
#include <windows.h>

#include "apoyo/carpeta_prueba.h"
#include "modelo/fallo_archivo.h"
#include "modelo/guardado.h"
#include "modelo/rutas.h"

namespace calvento {
namespace {

namespace fs = std::filesystem;

std::string guardar(const std::string& archivo, std::string_view contenido) {
  try {
    return guardarEntero(comoRuta(archivo), contenido), "";
  } catch (const FalloArchivo& f) {
    const std::string texto = f.what();
    return texto.substr(texto.rfind(": ") + 2);
  }
}

TEST(GuardadoWindows, AnyNameOfAFileMeansItAndWhatCannotBeReplacedStays) {
  const CarpetaPrueba carpeta;
  fs::create_directory(u8"peña nº 1");
  const fs::path archivo = fs::current_path() / u8"peña nº 1" / u8"cañón.cvr";
  const std::string plano = comoTexto(archivo);
  for (const std::string& nombre :
       {plano, R"(\\?\)" + plano, comoTexto(fs::relative(archivo)), comoTexto(archivo.generic_wstring())})
    for (const std::string& contenido : {"una\r\ndos\r\n" + nombre, std::string("corto\n")}) {
      EXPECT_EQ(guardar(nombre, contenido), "") << nombre;
      std::ifstream f(archivo, std::ios::binary);
      EXPECT_EQ(std::string(std::istreambuf_iterator<char>(f), {}), contenido) << nombre;
      EXPECT_TRUE(FileExists(nombre)) << nombre;
    }
  EXPECT_EQ(std::distance(fs::directory_iterator(archivo.parent_path()), {}), 1);

  const fs::path otro = carpeta.escribir("a.cvr", "antes");
  ::SetFileAttributesW(otro.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(guardar("a.cvr", "x"), "el archivo es de solo lectura");
  ::SetFileAttributesW(otro.c_str(), FILE_ATTRIBUTE_NORMAL);
  const HANDLE ajeno = ::CreateFileW(otro.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  EXPECT_NE(guardar("a.cvr", "x"), "") << "another program holds it";
  ::CloseHandle(ajeno);
  EXPECT_EQ(carpeta.leer("a.cvr"), "antes");
  EXPECT_EQ(guardar("no hay/a.cvr", "x"), "no existe el archivo o la carpeta");
  EXPECT_EQ(guardar(".", "x"), "es una carpeta");
  // the rf….tmp are what ReplaceFileW of Wine leaves where it fails
  const auto nuestra = [](const fs::directory_entry& e) { return !comoTexto(e.path().filename()).starts_with("rf"); };
  EXPECT_EQ(std::count_if(fs::directory_iterator(fs::current_path()), {}, nuestra), 2);
}

}  // namespace
}  // namespace calvento

#endif
