#include "activex/hilo_llamadas.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace calvento {

struct HiloLlamadas::Cola {
  std::mutex cerrojo;
  std::condition_variable hay;
  std::deque<Accion> acciones;
  bool ocupada = false;
  bool perdida = false;  ///< a call has run out of its term and not come back
  bool fin = false;
};

HiloLlamadas::HiloLlamadas(std::chrono::milliseconds plazo, Accion alEmpezar, Accion alAcabar)
    : plazo_(plazo), cola_(std::make_shared<Cola>()) {
  std::thread([cola = cola_, empezar = std::move(alEmpezar), acabar = std::move(alAcabar)] {
    trabajar(cola, empezar, acabar);
  }).detach();
}

HiloLlamadas::~HiloLlamadas() {
  const std::lock_guard guarda(cola_->cerrojo);
  cola_->fin = true;
  cola_->hay.notify_one();
}

void HiloLlamadas::trabajar(const std::shared_ptr<Cola>& cola, const Accion& alEmpezar, const Accion& alAcabar) {
  alEmpezar();
  std::unique_lock guarda(cola->cerrojo);
  for (;;) {
    cola->hay.wait(guarda, [&] { return cola->fin || !cola->acciones.empty(); });
    if (cola->acciones.empty()) break;
    {
      const Accion accion = std::move(cola->acciones.front());
      cola->acciones.pop_front();
      cola->ocupada = true;
      guarda.unlock();
      accion();
    }  // what it held goes unlocked: that may queue something
    guarda.lock();
    cola->ocupada = cola->perdida = false;
  }
  guarda.unlock();
  alAcabar();
}

void HiloLlamadas::encolar(Accion accion) {
  const std::lock_guard guarda(cola_->cerrojo);
  cola_->acciones.push_back(std::move(accion));
  cola_->hay.notify_one();
}

bool HiloLlamadas::perdido() const {
  const std::lock_guard guarda(cola_->cerrojo);
  return cola_->perdida;
}

void HiloLlamadas::perder() {
  const std::lock_guard guarda(cola_->cerrojo);
  cola_->perdida = cola_->ocupada;  // it may have come back just now
}

void HiloLlamadas::fallarPorPlazo() { throw FalloCad("La aplicación no contesta"); }

}  // namespace calvento
