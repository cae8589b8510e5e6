#pragma once

#ifdef _WIN32

#include <string>
#include <windows.h>

#include "activex/objeto_remoto.h"

// Values in the form in which Windows passes them between programs.

namespace calvento {

/// UTF-8 to the wide letters of the system and back.
std::wstring enAncho(const std::string& texto);
std::string enUtf8(const wchar_t* texto);

/// A VARIANT with its content.
class Variante {
 public:
  Variante() { ::VariantInit(&v_); }
  /// Fails with FalloCad where there is no memory, and for objects, which nothing here passes as an argument.
  Variante(const ValorRemoto& valor);
  Variante(const Variante&) = delete;
  Variante& operator=(const Variante&) = delete;
  Variante(Variante&& otra) noexcept : v_(otra.v_) { ::VariantInit(&otra.v_); }
  Variante& operator=(Variante&&) = delete;
  ~Variante() { ::VariantClear(&v_); }

  /// For reading; its content stays here.
  const VARIANT& cruda() const { return v_; }
  VARIANT* sitio() { return &v_; }
  /// The object in it, with its reference; nullptr where it is something else.
  IDispatch* tomarObjeto();

 private:
  VARIANT v_;
};

/// What a failing member tells.
class Excepcion {
 public:
  Excepcion() = default;
  Excepcion(const Excepcion&) = delete;
  Excepcion& operator=(const Excepcion&) = delete;
  ~Excepcion();
  EXCEPINFO* sitio() { return &e_; }
  /// ": …", or empty where nothing was told.
  std::string texto() const;

 private:
  EXCEPINFO e_{};
};

}  // namespace calvento

#endif
