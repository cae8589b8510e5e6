#pragma once

#include <memory>
#include <string>
#include <variant>
#include <vector>

// Objects of another running program, as ActiveX shows them: known by the names of their members alone. Everything
// here fails with FalloCad where the other program refuses or does not answer.

namespace calvento {

class ObjetoRemoto;
using ReferenciaRemota = std::shared_ptr<ObjetoRemoto>;
/// Nothing, or what goes to a member and comes from it. The list is an array of 8-byte numbers.
using ValorRemoto = std::variant<std::monostate, bool, int, double, std::string, std::vector<double>, ReferenciaRemota>;

class ObjetoRemoto {
 public:
  virtual ~ObjetoRemoto() = default;
  virtual ValorRemoto leer(const std::string& propiedad) = 0;
  virtual void poner(const std::string& propiedad, const ValorRemoto& valor) = 0;
  virtual ValorRemoto llamar(const std::string& metodo, const std::vector<ValorRemoto>& argumentos) = 0;
};

/// The way to the programs of the system, each by the name of its class.
class SistemaObjetos {
 public:
  virtual ~SistemaObjetos() = default;
  virtual bool registrada(const std::string& clase) = 0;
  /// Whether an instance runs that can be attached to.
  virtual bool abierta(const std::string& clase) = 0;
  /// The running instance. Fails where none runs; nullptr where what runs has no members to call.
  virtual ReferenciaRemota obtener(const std::string& clase) = 0;
  /// A new instance.
  virtual ReferenciaRemota crear(const std::string& clase) = 0;
};

/// That of this system; nullptr where it has none, as everywhere but on Windows.
std::unique_ptr<SistemaObjetos> objetosDelSistema();

}  // namespace calvento
