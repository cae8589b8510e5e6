#pragma once

#include <atomic>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <string_view>
#ifdef _WIN32
#include <process.h>
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace calvento {

/// A folder of its own for one test, the current one meanwhile; both go with the object.
class CarpetaPrueba {
 public:
  CarpetaPrueba() : antes_(std::filesystem::current_path()) {
    static std::atomic<int> numero = 0;
    raiz_ = std::filesystem::temp_directory_path() /
            ("calvento-prueba-" + std::to_string(getpid()) + "-" + std::to_string(numero++));
    std::filesystem::remove_all(raiz_);  // of a run that was broken off, whose number comes again
    std::filesystem::create_directories(raiz_);
    std::filesystem::current_path(raiz_);
  }
  CarpetaPrueba(const CarpetaPrueba&) = delete;
  CarpetaPrueba& operator=(const CarpetaPrueba&) = delete;
  ~CarpetaPrueba() {
    std::error_code ec;
    std::filesystem::current_path(antes_, ec);
    std::filesystem::remove_all(raiz_, ec);
  }

  std::string en(std::string_view nombre) const { return (raiz_ / nombre).string(); }
  std::string escribir(std::string_view nombre, std::string_view contenido) const {
    std::ofstream(raiz_ / nombre, std::ios::binary) << contenido;
    return en(nombre);
  }
  std::string leer(std::string_view nombre) const {
    std::ifstream f(raiz_ / nombre, std::ios::binary);
    EXPECT_TRUE(f) << nombre;
    return std::string(std::istreambuf_iterator<char>(f), {});
  }
  /// How many entries the folder holds: leftovers of a failed writing would show.
  std::ptrdiff_t entradas() const {
    const std::filesystem::directory_iterator todas(raiz_);
    return std::distance(std::filesystem::begin(todas), std::filesystem::end(todas));
  }
  /// Makes a named pipe, which is a file of no text; false where the system has none among its files.
  bool tuberia([[maybe_unused]] std::string_view nombre) const {
#ifdef _WIN32
    return false;
#else
    return mkfifo(en(nombre).c_str(), 0600) == 0;
#endif
  }

 private:
  std::filesystem::path antes_, raiz_;
};

}  // namespace calvento
