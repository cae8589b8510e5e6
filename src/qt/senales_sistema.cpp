#include "qt/senales_sistema.h"

#include <utility>

#ifdef Q_OS_UNIX
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#endif

namespace calvento {

#ifdef Q_OS_UNIX

namespace {

constexpr std::array senales = {SIGTERM, SIGHUP, SIGINT};
std::array<int, 2> tubo{-1, -1};

/// A handler may do no more than this.
extern "C" void anotarSenal(int cual) {
  const int antes = errno;
  const char byte = static_cast<char>(cual);
  [[maybe_unused]] const auto escritos = ::write(tubo[1], &byte, 1);
  errno = antes;
}

}  // namespace

SenalesSistema::SenalesSistema(std::function<void()> alPedirFin) : alPedirFin_(std::move(alPedirFin)) {
  if (::pipe(tubo.data()) != 0) return;
  for (const int extremo : tubo) {
    ::fcntl(extremo, F_SETFD, FD_CLOEXEC);
    ::fcntl(extremo, F_SETFL, O_NONBLOCK);
  }
  auto* aviso = new QSocketNotifier(tubo[0], QSocketNotifier::Read, this);
  connect(aviso, &QSocketNotifier::activated, this, [this] {
    char cual = 0;
    if (::read(tubo[0], &cual, 1) != 1) return;
    alPedirFin_();
    QCoreApplication::exit(128 + cual);
  });
  for (const int cual : senales) {
    struct sigaction accion {};
    ::sigaction(cual, nullptr, &accion);
    if (accion.sa_handler == SIG_IGN) continue;
    accion = {};
    accion.sa_handler = anotarSenal;
    accion.sa_flags = SA_RESTART;
    ::sigaction(cual, &accion, nullptr);
  }
}

SenalesSistema::~SenalesSistema() {
  if (tubo[0] < 0) return;
  for (const int cual : senales) std::signal(cual, SIG_DFL);
  for (int& extremo : tubo) ::close(std::exchange(extremo, -1));
}

#else

SenalesSistema::SenalesSistema(std::function<void()> alPedirFin) : alPedirFin_(std::move(alPedirFin)) {}
SenalesSistema::~SenalesSistema() = default;

#endif

}  // namespace calvento
