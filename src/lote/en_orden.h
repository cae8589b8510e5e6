#pragma once

#include <condition_variable>
#include <cstddef>
#include <functional>
#include <map>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace calvento::lote {

/// Results that are calculated side by side and handed over in their order, by the thread that asks for them. A few are
/// kept for those that take longer; the threads wait as long as nobody takes them.
template <class R>
class EnOrden {
 public:
  /// `calcular` is called from several threads at once and throws nothing. With one thread it is called by `siguiente`.
  EnOrden(std::size_t total, int hilos, std::function<R(std::size_t)> calcular)
      : total_(total), adelanto_(static_cast<std::size_t>(hilos) * 16), calcular_(std::move(calcular)) {
    try {
      for (int i = 0; hilos > 1 && i < hilos; ++i) hilos_.emplace_back([this] { trabajar(); });
    } catch (const std::system_error&) {
      // the system gives no more of them: it takes longer
    }
  }
  EnOrden(const EnOrden&) = delete;
  EnOrden& operator=(const EnOrden&) = delete;
  /// Ends when the results in hand are done.
  ~EnOrden() {
    {
      const std::lock_guard cerrojo(mutex_);
      empezados_ = total_;
    }
    cambio_.notify_all();
    for (std::thread& h : hilos_) h.join();
  }

  bool quedan() const { return entregados_ < total_; }
  R siguiente() {
    if (hilos_.empty()) return calcular_(entregados_++);
    std::unique_lock cerrojo(mutex_);
    cambio_.wait(cerrojo, [this] { return hechos_.contains(entregados_); });
    R r = std::move(hechos_.extract(entregados_).mapped());
    ++entregados_;
    cerrojo.unlock();
    cambio_.notify_all();
    return r;
  }

 private:
  void trabajar() {
    std::unique_lock cerrojo(mutex_);
    while (true) {
      cambio_.wait(cerrojo, [this] { return empezados_ >= total_ || empezados_ < entregados_ + adelanto_; });
      if (empezados_ >= total_) return;
      const std::size_t i = empezados_++;
      cerrojo.unlock();
      R r = calcular_(i);
      cerrojo.lock();
      hechos_.emplace(i, std::move(r));
      cambio_.notify_all();
    }
  }

  std::size_t total_, adelanto_;
  std::function<R(std::size_t)> calcular_;
  std::mutex mutex_;
  std::condition_variable cambio_;
  std::map<std::size_t, R> hechos_;
  std::size_t empezados_ = 0, entregados_ = 0;
  std::vector<std::thread> hilos_;
};

}  // namespace calvento::lote
