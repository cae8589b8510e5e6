#ifndef _WIN32

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <random>
#include <sys/stat.h>
#include <utility>

#include "modelo/atributos_posix.h"
#include "modelo/fallo_archivo.h"
#include "modelo/guardado.h"
#include "modelo/llamadas_disco.h"
#include "modelo/rutas.h"

namespace calvento {

namespace {

namespace fs = std::filesystem;

/// Repeats a call that a signal broke off.
template <class Llamada>
auto entera(Llamada llamada) {
  auto r = llamada();
  while (r == -1 && errno == EINTR) r = llamada();
  return r;
}

template <class Llamada>
auto exigida(Llamada llamada) {
  const auto r = entera(llamada);
  if (r == -1) throw std::system_error(ultimoFallo());
  return r;
}

/// An open file or folder; -1 for none.
class Descriptor {
 public:
  explicit Descriptor(int numero = -1) : numero_(numero) {}
  Descriptor(Descriptor&& otro) noexcept : numero_(std::exchange(otro.numero_, -1)) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (numero_ != -1) ::close(numero_);
  }
  operator int() const { return numero_; }
  /// Some systems tell only now of what did not fit.
  void cerrar() {
    if (::close(std::exchange(numero_, -1)) == -1 && errno != EINTR) throw std::system_error(ultimoFallo());
  }

 private:
  int numero_;
};

/// The target as it stands, opened for writing: the system itself decides whether the user may, for its links too.
/// Opened for reading as well where that is allowed. None where there is no file.
Descriptor abrirAnterior(const fs::path& archivo) {
  constexpr const char* noEsArchivo = "es una tubería o un dispositivo";
  std::error_code ec;
  const fs::file_status antes = fs::status(archivo, ec);  // a device must not even be opened
  if (fs::is_directory(antes)) fallarEscritura(archivo, "es una carpeta");
  if (fs::exists(antes) && !fs::is_regular_file(antes)) fallarEscritura(archivo, noEsArchivo);
  constexpr int modo = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;  // a pipe that has just come there does not block
  int fd = entera([&] { return ::open(archivo.c_str(), O_RDWR | modo); });
  if (fd == -1 && errno == EACCES) fd = entera([&] { return ::open(archivo.c_str(), O_WRONLY | modo); });
  if (fd == -1 && errno == ENOENT) return Descriptor();
  if (fd == -1 && fs::exists(antes) && (errno == EACCES || errno == EPERM))
    fallarEscritura(archivo, "el archivo es de solo lectura");
  if (fd == -1) throw std::system_error(ultimoFallo());
  Descriptor anterior(fd);
  struct stat estado {};
  exigida([&] { return ::fstat(anterior, &estado); });
  if (!S_ISREG(estado.st_mode)) fallarEscritura(archivo, noEsArchivo);
  return anterior;
}

/// Folders that may be entered but not listed can be named on some systems, though not flushed.
Descriptor abrirCarpeta(const fs::path& carpeta) {
  const std::string nombre = carpeta.empty() ? "." : carpeta.string();
  int fd = entera([&] { return ::open(nombre.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
#ifdef O_PATH
  if (fd == -1 && errno == EACCES)
    fd = entera([&] { return ::open(nombre.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC); });
#endif
  return Descriptor(fd);
}

/// One saving.
class Guardado {
 public:
  Guardado(const fs::path& archivo, std::string_view contenido, const LlamadasDisco& sistema)
      : contenido_(contenido), sistema_(sistema), anterior_(abrirAnterior(archivo)), destino_(destinoDe(archivo)) {
    if (hayAnterior()) exigida([&] { return ::fstat(anterior_, &estado_); });
  }

  void guardar() {
    const Descriptor carpeta = abrirCarpeta(destino_.parent_path());
    if (carpeta == -1) {
      const std::error_code ec = ultimoFallo();
      if (!hayAnterior()) throw std::system_error(ec);
      enSitio();
    } else if (!reemplazar(carpeta)) {
      enSitio();
    }
  }

 private:
  bool hayAnterior() const { return anterior_ != -1; }

  /// Where a file stands already that may be written, it is no failure that the folder refuses another one.
  bool quedaElSitio() const {
    return hayAnterior() && (errno == EACCES || errno == EPERM || errno == EROFS || errno == EBUSY || errno == EXDEV);
  }

  /// The temporary file, open to nobody else until it has the target's own permissions. A name that is taken, by
  /// whatever it be, is left alone.
  int crearTemporal(int carpeta, std::array<char, 40>& nombre) const {
    const mode_t permisos = hayAnterior() ? estado_.st_mode & S_IRWXU : 0666;
    std::random_device azar;
    int fd = -1;
    for (int intento = 0; intento < 100 && fd == -1; ++intento) {
      std::snprintf(nombre.data(), nombre.size(), ".calvento-%08x%04x.tmp~", azar(), azar() & 0xFFFFU);
      fd = entera([&] {
        return sistema_.openat(carpeta, nombre.data(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, permisos);
      });
      if (fd == -1 && errno != EEXIST) break;
    }
    return fd;
  }

  /// False where the target can only be written in place.
  bool reemplazar(int carpeta) const {
    std::array<char, 40> nombre{};
    Descriptor temporal(crearTemporal(carpeta, nombre));
    if (temporal == -1) {
      if (quedaElSitio()) return false;
      throw std::system_error(ultimoFallo());
    }
    struct Limpieza {
      int carpeta;
      const char* nombre;
      ~Limpieza() {
        if (nombre != nullptr) ::unlinkat(carpeta, nombre, 0);
      }
    } limpieza{carpeta, nombre.data()};
    if (hayAnterior() && !conservar(temporal)) return false;
    escribir(temporal, contenido_);
    asentar(temporal);
    temporal.cerrar();
    const std::string titulo = destino_.filename().string();
    if (entera([&] { return sistema_.renameat(carpeta, nombre.data(), carpeta, titulo.c_str()); }) == -1) {
      if (quedaElSitio()) return false;
      throw std::system_error(ultimoFallo());
    }
    limpieza.nombre = nullptr;
    asentar(carpeta);
    return true;
  }

  /// Gives the new file what the former one has beside its content. Its mode comes last: giving a file away takes bits
  /// of it, and until then nobody who may not read the former one may read the new one.
  bool conservar(int temporal) const {
    struct stat propio {};
    exigida([&] { return ::fstat(temporal, &propio); });
    const uid_t dueno = propio.st_uid == estado_.st_uid ? static_cast<uid_t>(-1) : estado_.st_uid;
    const gid_t grupo = propio.st_gid == estado_.st_gid ? static_cast<gid_t>(-1) : estado_.st_gid;
    if ((propio.st_uid != estado_.st_uid || propio.st_gid != estado_.st_gid) &&
        sistema_.fchown(temporal, dueno, grupo) == -1)
      return false;
    return copiarAtributos(anterior_, temporal) && ::fchmod(temporal, estado_.st_mode & 07777) == 0;
  }

  void escribir(int fd, std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t n = exigida([&] { return sistema_.write(fd, bytes.data(), bytes.size()); });
      bytes.remove_prefix(static_cast<std::size_t>(n));
    }
  }
  void escribirEn(int fd, std::size_t lugar, std::string_view bytes) const {
    exigida([&] { return ::lseek(fd, static_cast<off_t>(lugar), SEEK_SET); });
    escribir(fd, bytes);
  }

  /// Waits until the disk has it, where it can be asked to.
  void asentar(int fd) const {
#ifdef F_FULLFSYNC  // there fsync only reaches the cache of the disk
    if (::fcntl(fd, F_FULLFSYNC) == 0) return;
#endif
    if (entera([&] { return sistema_.fsync(fd); }) == 0) return;
    if (errno == EBADF)
      ::sync();  // a folder that may not be read
    else if (errno != EINVAL && errno != ENOTSUP && errno != ENOSYS)
      throw std::system_error(ultimoFallo());
  }

  /// What makes the file longer goes first: if it does not fit, cutting it off leaves the former content as it was.
  void enSitio() const {
    const auto largo = static_cast<std::size_t>(estado_.st_size);
    const std::size_t comun = std::min(largo, contenido_.size());
    std::string antes(comun, '\0');
    const bool leido =
        entera([&] { return ::pread(anterior_, antes.data(), comun, 0); }) == static_cast<ssize_t>(comun);
    bool empezado = false;
    try {
      escribirEn(anterior_, largo, contenido_.substr(comun));
      empezado = true;
      escribirEn(anterior_, 0, contenido_.substr(0, comun));
      exigida([&] { return ::ftruncate(anterior_, static_cast<off_t>(contenido_.size())); });
      asentar(anterior_);
    } catch (const std::system_error&) {
      if (empezado && leido) escribirEn(anterior_, 0, antes);
      if (contenido_.size() > largo) exigida([&] { return ::ftruncate(anterior_, static_cast<off_t>(largo)); });
      throw;
    }
  }

  std::string_view contenido_;
  const LlamadasDisco& sistema_;
  Descriptor anterior_;
  fs::path destino_;
  struct stat estado_ {};
};

}  // namespace

void guardarEntero(const fs::path& archivo, std::string_view contenido, const LlamadasDisco& sistema) {
  contarLimiteComoFallo();
  try {
    Guardado(archivo, contenido, sistema).guardar();
  } catch (const std::system_error& fallo) {
    fallarEscritura(archivo, razon(fallo.code()));
  }
}

void guardarEntero(const fs::path& archivo, std::string_view contenido) {
  guardarEntero(archivo, contenido, LlamadasDisco{});
}

void contarLimiteComoFallo() {
  static const bool hecho = [] {
    const auto antes = std::signal(SIGXFSZ, SIG_IGN);
    if (antes != SIG_DFL) std::signal(SIGXFSZ, antes);
    return true;
  }();
  static_cast<void>(hecho);
}

}  // namespace calvento

#endif
