#include "medida.h"

#include <new>

namespace calvento {
std::atomic<long> reservas{0};
}

void* operator new(std::size_t bytes) {
  ++calvento::reservas;
  if (void* p = std::malloc(bytes)) return p;
  throw std::bad_alloc();
}
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }
