#pragma once

#include <functional>

#include <QObject>

namespace calvento {

/// While it lives a request of the system to end (SIGTERM, a closed terminal, Ctrl+C in it) runs the action and ends
/// the event loops with the status that shells expect of it: in the loop of a box too, and between two events, not in
/// the midst of one. A request that was ignored stays so (nohup). Windows tells its end by the session alone.
class SenalesSistema : public QObject {
 public:
  explicit SenalesSistema(std::function<void()> alPedirFin);
  ~SenalesSistema() override;

 private:
  std::function<void()> alPedirFin_;
};

}  // namespace calvento
