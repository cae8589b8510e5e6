#include "lote/senales.h"

#include <atomic>
#include <csignal>
#include <initializer_list>

namespace calvento::lote {

namespace {

std::atomic<int> recibida = 0;
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler may touch no other");

extern "C" void anotarSenal(int senal) {
  recibida = senal;
  std::signal(senal, SIG_DFL);
}

}  // namespace

void atenderSenales() {
  for (const int senal : {
           SIGINT,
           SIGTERM,
#ifdef SIGHUP
           SIGHUP,
#endif
       })
    if (std::signal(senal, anotarSenal) == SIG_IGN) std::signal(senal, SIG_IGN);
}

bool pedidoTerminar() { return recibida != 0; }

void terminarComoPedido() {
  if (pedidoTerminar()) std::raise(recibida);
}

}  // namespace calvento::lote
