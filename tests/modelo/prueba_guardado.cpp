#ifndef _WIN32

#include <chrono>
#include <csignal>
#include <functional>
#include <random>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>

#include "apoyo/carpeta_prueba.h"
#include "apoyo/disco_lleno.h"
#include "modelo/fallo_archivo.h"
#include "modelo/guardado.h"
#include "modelo/llamadas_disco.h"
#ifdef __linux__
#include <sys/xattr.h>
#endif

namespace calvento {
namespace {

namespace fs = std::filesystem;

std::string fallo(const std::function<void()>& hacer) {
  try {
    hacer();
  } catch (const FalloArchivo& f) {
    const std::string texto = f.what();
    return texto.substr(texto.rfind(": ") + 2);
  }
  return "";
}

/// Runs a part in a process of its own, which may be killed; its exit status is that of the part.
pid_t aparte(const std::function<int()>& parte) {
  const pid_t pid = ::fork();
  if (pid == 0) ::_exit(parte());
  return pid;
}
int estadoDe(pid_t pid) {
  int estado = -1;
  ::waitpid(pid, &estado, 0);
  return estado;
}
/// As a user without rights of its own; root passes over all permissions.
int comoUsuario(const std::function<int()>& parte) {
  return estadoDe(aparte([&] { return ::geteuid() == 0 && (::setgid(65534) | ::setuid(65534)) != 0 ? 99 : parte(); }));
}

mode_t modoDe(const char* archivo) {
  struct stat s {};
  EXPECT_EQ(::stat(archivo, &s), 0) << archivo;
  return s.st_mode & 07777;
}

class Guardar : public testing::Test {
 protected:
  Guardar() { fs::permissions(".", fs::perms::all); }
  const CarpetaPrueba carpeta;
};

/// Writes down the calls, and lets those fail that were told to.
struct Testigo : LlamadasDisco {
  Testigo() {
    openat = [this](int c, const char* nombre, int modo, mode_t permisos) {
      dichas += "openat ";
      EXPECT_EQ(modo & (O_CREAT | O_EXCL | O_NOFOLLOW), O_CREAT | O_EXCL | O_NOFOLLOW);
      EXPECT_LE(std::string(nombre).size(), 40U);
      temporal = paso("openat") ? LlamadasDisco().openat(c, nombre, modo, permisos) : -1;
      return temporal;
    };
    write = [this](int fd, const void* datos, std::size_t n) -> ssize_t {
      dichas += "write ";
      if (interrumpidas-- > 0) return errno = EINTR, -1;
      return paso("write") ? ::write(fd, datos, std::min(n, trozo)) : -1;
    };
    fsync = [this](int fd) {
      dichas += fd == temporal ? "fsync " : "fsync-folder ";
      return paso(fd == temporal ? "fsync" : "fsync-folder") ? ::fsync(fd) : -1;
    };
    fchown = [this](int fd, uid_t u, gid_t g) { return paso("fchown") ? ::fchown(fd, u, g) : -1; };
    renameat = [this](int c, const char* de, int d, const char* a) {
      dichas += "rename ";
      return paso("rename") ? ::renameat(c, de, d, a) : -1;
    };
  }
  Testigo(const Testigo&) = delete;
  Testigo& operator=(const Testigo&) = delete;
  bool paso(std::string_view llamada) const {
    if (falla.find(llamada) == std::string::npos) return true;
    errno = motivo;
    return false;
  }
  std::string dichas, falla;
  int motivo = 0, interrumpidas = 0, temporal = -1;
  std::size_t trozo = 1U << 20U;
};

TEST_F(Guardar, TheContentIsOnTheDiskBeforeItHasTheName) {
  for (const char* antes : {"", "former"}) {
    if (*antes != '\0') carpeta.escribir("a", antes);
    Testigo t;
    t.interrumpidas = 1;
    t.trozo = 4;
    guardarEntero("a", "0123456789", t);
    EXPECT_EQ(t.dichas, "openat write write write write fsync rename fsync-folder ");
    EXPECT_EQ(carpeta.leer("a"), "0123456789");
    EXPECT_EQ(carpeta.entradas(), 1);
  }
}

TEST_F(Guardar, AFailureLeavesTheFormerContentAndNothingElse) {
  const struct {
    const char* llamada;
    int motivo;
    const char* dice;  // empty: written in place
  } casos[] = {{"openat", EMFILE, "hay demasiados archivos abiertos"},
               {"openat", EACCES, ""},
               {"openat fsync-folder", EACCES, "no hay permiso"},  // in place, and the disk does not take it
               {"write", ENOSPC, "no queda espacio en el disco"},
               {"write", EDQUOT, "se agotó la cuota de disco"},
               {"fsync", EIO, "el disco no responde"},
               {"rename", EIO, "el disco no responde"},
               {"rename", EBUSY, ""},
               {"rename", EPERM, ""}};
  for (const auto& [llamada, motivo, dice] : casos)
    for (const bool habia : {true, false}) {
      if (habia) carpeta.escribir("a", "former");
      Testigo t;
      t.falla = llamada;
      t.motivo = motivo;
      const std::string dicho = fallo([&] { guardarEntero("a", "new and longer", t); });
      if (*dice == '\0' && habia) {
        EXPECT_EQ(dicho + carpeta.leer("a"), "new and longer") << llamada;
      } else {
        EXPECT_TRUE(*dice == '\0' ? !dicho.empty() : dicho == dice) << llamada << ": " << dicho;
        if (habia) {
          EXPECT_EQ(carpeta.leer("a"), "former") << llamada;
        }
      }
      EXPECT_EQ(carpeta.entradas(), habia ? 1 : 0) << llamada;
      fs::remove("a");
    }
}

TEST_F(Guardar, AFullDiskLeavesTheFormerContentAlsoInPlace) {
  const std::string nuevo(200, 'n'), viejo(100, 'v');
  for (const char* sitio : {"", "openat"}) {
    carpeta.escribir("a", viejo);
    Testigo t;
    t.falla = sitio;
    t.motivo = EACCES;
    std::string dicho;
    {
      const DiscoLleno lleno(150);
      dicho = fallo([&] { guardarEntero("a", nuevo, t); });
    }
    EXPECT_EQ(dicho, "el archivo pasa del tamaño permitido");
    EXPECT_EQ(carpeta.leer("a"), viejo) << sitio;
    EXPECT_EQ(carpeta.entradas(), 1);
    guardarEntero("a", "short", t);
    EXPECT_EQ(carpeta.leer("a"), "short") << sitio;
  }
}

TEST_F(Guardar, WhatIsInTheWayIsToldAndLeftAlone) {
  fs::create_directory("folder");
  ASSERT_EQ(::mkfifo("pipe", 0600), 0);
  fs::create_symlink("b", "a");
  fs::create_symlink("a", "b");
  carpeta.escribir("file", "x");
  const std::pair<std::string, const char*> casos[] = {{"folder", "es una carpeta"},
                                                       {"pipe", "es una tubería o un dispositivo"},
                                                       {"/dev/full", "es una tubería o un dispositivo"},
                                                       {"a", "los enlaces forman un círculo"},
                                                       {"missing/x", "no existe el archivo o la carpeta"},
                                                       {"file/x", "no existe la carpeta"},
                                                       {std::string(256, 'n'), "el nombre es demasiado largo"}};
  for (const auto& [nombre, dice] : casos) EXPECT_EQ(fallo([&] { guardarEntero(nombre, "y"); }), dice) << nombre;
  EXPECT_EQ(carpeta.entradas(), 5);
}

TEST_F(Guardar, LinksAndLongNamesAreFollowedToTheirEnd) {
  fs::create_directory("sub");
  fs::create_symlink("sub/two", "one");
  fs::create_symlink("three", "sub/two");  // which does not exist
  for (const char* texto : {"first", "second"}) {
    guardarEntero("one", texto);
    EXPECT_EQ(carpeta.leer("sub/three"), texto);
  }
  EXPECT_TRUE(fs::is_symlink("one") && fs::is_symlink("sub/two"));
  const std::string largo(255, 'n');
  guardarEntero(largo, "long");
  EXPECT_EQ(carpeta.leer(largo), "long");
}

TEST_F(Guardar, TheNewFileIsTheFormerOneButForItsContent) {
  const mode_t umascara = ::umask(027);
  guardarEntero("new", "x");
  carpeta.escribir("a", "x");
  ASSERT_EQ(::chmod("a", 0666), 0);
  guardarEntero("a", "y");
  ::umask(umascara);
  EXPECT_EQ(modoDe("new"), 0640U);
  EXPECT_EQ(modoDe("a"), 0666U);
#ifdef __linux__
  if (::setxattr("a", "user.origin", "field", 5, 0) == 0) {
    guardarEntero("a", "z");
    char valor[8] = {};
    EXPECT_EQ(::getxattr("a", "user.origin", valor, sizeof valor), 5);
  }
#endif
  // what may not be given to a new file stays by writing in place
  struct stat antes {
  }, despues{};
  ::stat("a", &antes);
  for (const char* falla : {"", "fchown"}) {
    Testigo t;
    t.falla = falla;
    t.motivo = EPERM;
    ASSERT_TRUE(::geteuid() != 0 || ::chown("a", 65534, 65534) == 0);
    ::stat("a", &antes);
    guardarEntero("a", "w", t);
    ::stat("a", &despues);
    EXPECT_EQ(despues.st_uid, antes.st_uid);
    EXPECT_EQ(despues.st_gid, antes.st_gid);
    if (::geteuid() == 0) {
      EXPECT_EQ(despues.st_ino == antes.st_ino, *falla != '\0');
    }
  }
}

TEST_F(Guardar, TheRightOfTheUserDecides) {
  for (const char* nombre : {"closed", "shared"}) carpeta.escribir(nombre, "former");
  ASSERT_EQ(::chmod("closed", ::geteuid() == 0 ? 0644 : 0444), 0);  // root's own, in a folder open to all
  ASSERT_EQ(::chmod("shared", 0666), 0);
  fs::create_directory("locked");
  carpeta.escribir("locked/open", "former");
  ASSERT_EQ(::chmod("locked/open", 0666), 0);
  ASSERT_EQ(::chmod("locked", 0555), 0);
  EXPECT_EQ(comoUsuario([] {
              if (fallo([] { guardarEntero("closed", "x"); }) != "el archivo es de solo lectura") return 1;
              if (fallo([] { guardarEntero("locked/new", "x"); }) != "no hay permiso") return 2;
              if (!fallo([] { guardarEntero("locked/open", "mine"); }).empty()) return 3;
              return fallo([] { guardarEntero("shared", "ours"); }).empty() ? 0 : 4;
            }),
            0);
  EXPECT_EQ(carpeta.leer("closed"), "former");
  EXPECT_EQ(carpeta.leer("locked/open"), "mine");
  EXPECT_EQ(carpeta.leer("shared"), "ours");
  struct stat s {};
  ::stat("shared", &s);
  EXPECT_EQ(s.st_uid, ::geteuid());
  ::chmod("locked", 0755);
}

/// Two contents in turn, long enough to be seen half written.
const std::string contenidos[] = {std::string(60000, 'a'), std::string(40000, 'b')};
void guardarSinFin() {
  for (int i = 0;; ++i) guardarEntero("a", contenidos[i % 2]);
}
bool entero(const std::string& leido) { return leido == contenidos[0] || leido == contenidos[1]; }

TEST_F(Guardar, AKilledProgramTearsNothing) {
  carpeta.escribir("a", contenidos[0]);
  std::mt19937 azar(5);
  for (int i = 0; i < 20; ++i) {
    const pid_t pid = aparte([] { return guardarSinFin(), 0; });
    std::this_thread::sleep_for(std::chrono::microseconds(500 + azar() % 6000));
    ::kill(pid, SIGKILL);
    ASSERT_TRUE(WIFSIGNALED(estadoDe(pid)));
    ASSERT_TRUE(entero(carpeta.leer("a"))) << i;
  }
  for (const auto& e : fs::directory_iterator("."))
    EXPECT_TRUE(e.path() == "./a" || e.path().filename().string().starts_with(".calvento-")) << e.path();
}

TEST_F(Guardar, TwoProgramsThatSaveTheSameFileShowReadersWholeContents) {
  carpeta.escribir("a", contenidos[0]);
  const pid_t escritores[] = {aparte([] { return guardarSinFin(), 0; }), aparte([] { return guardarSinFin(), 0; })};
  const auto fin = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  int distintas = 0;
  for (std::string antes; distintas < 12 && std::chrono::steady_clock::now() < fin;) {
    std::string leido = carpeta.leer("a");
    ASSERT_TRUE(entero(leido));
    distintas += leido != antes ? 1 : 0;
    antes = std::move(leido);
  }
  for (const pid_t pid : escritores) ::kill(pid, SIGKILL), estadoDe(pid);
  EXPECT_EQ(distintas, 12) << "the reader saw them at work";
}

}  // namespace
}  // namespace calvento

#endif
