#pragma once

#include <functional>
#include <utility>

namespace calvento {

/// Who is to be told when the object it is a member of has changed. It belongs to that object alone: a copy of the
/// object has no listener, and an object that takes another's content keeps its own and tells it, by the
/// value-initialised arguments, that all may be different. As the last member it does so when the content is there.
template <class... Que>
class Oyente {
 public:
  Oyente() = default;
  Oyente(const Oyente&) noexcept {}
  Oyente& operator=(const Oyente&) {
    (*this)(Que{}...);
    return *this;
  }
  void poner(std::function<void(Que...)> oyente) { oyente_ = std::move(oyente); }
  void operator()(Que... que) const {
    if (oyente_) oyente_(que...);
  }

 private:
  std::function<void(Que...)> oyente_;
};

}  // namespace calvento
