#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <utility>

namespace calvento {

/// Something with properties that wants to know when one of them has changed.
class Notificable {
 public:
  virtual void alCambiarPropiedad(const void* propiedad) = 0;

 protected:
  ~Notificable() = default;
};

/// A value that is read and assigned like a variable and tells its owner when it changes.
template <class T>
class Propiedad {
 public:
  Propiedad(Notificable& dueno, T inicial) : dueno_(dueno), valor_(std::move(inicial)) {}
  Propiedad(const Propiedad&) = delete;
  Propiedad& operator=(const Propiedad& otra) { return *this = T(otra.valor_); }

  Propiedad& operator=(T nuevo) {
    if (nuevo == valor_) return *this;
    valor_ = std::move(nuevo);
    dueno_.alCambiarPropiedad(this);
    return *this;
  }

  operator const T&() const { return valor_; }  // NOLINT: read like a variable
  operator std::string_view() const             // NOLINT
      requires std::same_as<T, std::string> {
    return valor_;
  }
  const T& valor() const { return valor_; }

 private:
  Notificable& dueno_;
  T valor_;
};

inline bool vacio(const Propiedad<std::string>& p) { return p.valor().empty(); }

}  // namespace calvento
