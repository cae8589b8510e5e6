#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <type_traits>
#include <utility>

#include "cad/aplicacion_cad.h"

namespace calvento {

/// A thread that calls another program, so that one which does not answer cannot stop this one.
class HiloLlamadas {
 public:
  using Accion = std::function<void()>;
  /// `alEmpezar` and `alAcabar` run in the thread, before its first call and behind its last one.
  HiloLlamadas(std::chrono::milliseconds plazo, Accion alEmpezar, Accion alAcabar);
  HiloLlamadas(const HiloLlamadas&) = delete;
  HiloLlamadas& operator=(const HiloLlamadas&) = delete;
  ~HiloLlamadas();

  /// What `f` gives, run in the thread. Fails with FalloCad after the term and, as long as a call that ran out of it
  /// has not come back, at once; so `f` must own what it uses.
  template <class F>
  std::invoke_result_t<F> hacer(F f) {
    if (perdido()) fallarPorPlazo();
    const auto tarea = std::make_shared<std::packaged_task<std::invoke_result_t<F>()>>(std::move(f));
    auto resultado = tarea->get_future();
    encolar([tarea] { (*tarea)(); });
    if (resultado.wait_for(plazo_) != std::future_status::ready) {
      perder();
      fallarPorPlazo();
    }
    return resultado.get();
  }
  /// Runs something in the thread without waiting for it.
  void encolar(Accion accion);

 private:
  struct Cola;
  static void trabajar(const std::shared_ptr<Cola>& cola, const Accion& alEmpezar, const Accion& alAcabar);
  bool perdido() const;
  void perder();
  [[noreturn]] static void fallarPorPlazo();

  std::chrono::milliseconds plazo_;
  std::shared_ptr<Cola> cola_;  ///< of the thread too, which may outlive this object
};

}  // namespace calvento
