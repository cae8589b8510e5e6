#ifdef _WIN32

#include <chrono>
#include <utility>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include "activex/hilo_llamadas.h"
#include "activex/objeto_remoto.h"
#include "activex/variante.h"

namespace calvento {

namespace {

using namespace std::chrono_literals;

/// Loading a drawing or an open box keeps an application busy; it then refuses calls.
constexpr auto paciencia = 20s;
/// A single call that takes longer has met a program that hangs.
constexpr auto plazo = 60s;

[[noreturn]] void fallar(const std::string& que, HRESULT codigo) {
  char numero[16];
  std::snprintf(numero, sizeof numero, "0x%08lX", static_cast<unsigned long>(codigo));
  throw FalloCad(que + " (" + numero + ")");
}

bool ocupada(HRESULT codigo) {
  constexpr auto pasaPorAlto = static_cast<HRESULT>(0x800AC472);  // while its user edits
  return codigo == RPC_E_CALL_REJECTED || codigo == RPC_E_SERVERCALL_RETRYLATER || codigo == pasaPorAlto;
}

template <class Llamada>
HRESULT insistiendo(Llamada llamada) {
  const auto hasta = std::chrono::steady_clock::now() + paciencia;
  for (;;) {
    const HRESULT codigo = llamada();
    if (!ocupada(codigo) || std::chrono::steady_clock::now() > hasta) return codigo;
    ::Sleep(100);
  }
}

using Hilo = std::shared_ptr<HiloLlamadas>;

/// An IDispatch, touched in its thread only.
class ObjetoCom : public ObjetoRemoto {
 public:
  /// Takes over one reference of `objeto`.
  ObjetoCom(Hilo hilo, IDispatch* objeto)
      : hilo_(std::move(hilo)), objeto_(objeto, [h = hilo_](IDispatch* o) { h->encolar([o] { o->Release(); }); }) {}

  ValorRemoto leer(const std::string& p) override { return invocar(p, DISPATCH_PROPERTYGET, {}); }
  void poner(const std::string& p, const ValorRemoto& v) override { invocar(p, DISPATCH_PROPERTYPUT, {v}); }
  ValorRemoto llamar(const std::string& m, const std::vector<ValorRemoto>& argumentos) override {
    return invocar(m, DISPATCH_METHOD, argumentos);
  }

 private:
  ValorRemoto invocar(const std::string& nombre, WORD como, const std::vector<ValorRemoto>& argumentos) {
    return hilo_->hacer([hilo = hilo_, objeto = objeto_, nombre, como, argumentos] {
      return enHilo(hilo, *objeto, nombre, como, argumentos);
    });
  }

  static ValorRemoto enHilo(const Hilo& hilo, IDispatch& objeto, const std::string& nombre, WORD como,
                            const std::vector<ValorRemoto>& argumentos) {
    std::wstring ancho = enAncho(nombre);
    wchar_t* nombres = ancho.data();
    DISPID id = 0;
    HRESULT codigo =
        insistiendo([&] { return objeto.GetIDsOfNames(IID_NULL, &nombres, 1, LOCALE_SYSTEM_DEFAULT, &id); });
    if (FAILED(codigo)) fallar("La aplicación no conoce " + nombre, codigo);

    std::vector<Variante> enOrden(argumentos.rbegin(), argumentos.rend());  // the last argument goes first
    std::vector<VARIANT> crudos;
    for (const Variante& v : enOrden) crudos.push_back(v.cruda());
    DISPID asignada = DISPID_PROPERTYPUT;
    const bool pone = como == DISPATCH_PROPERTYPUT;
    DISPPARAMS parametros{crudos.data(), pone ? &asignada : nullptr, static_cast<UINT>(crudos.size()), pone ? 1U : 0U};
    Variante resultado;
    Excepcion excepcion;
    codigo = insistiendo([&] {
      return objeto.Invoke(id, IID_NULL, LOCALE_SYSTEM_DEFAULT, como, &parametros, pone ? nullptr : resultado.sitio(),
                           excepcion.sitio(), nullptr);
    });
    if (FAILED(codigo)) fallar("La aplicación no hace " + nombre + excepcion.texto(), codigo);
    if (IDispatch* otro = resultado.tomarObjeto()) return ReferenciaRemota(std::make_shared<ObjetoCom>(hilo, otro));
    return {};
  }

  Hilo hilo_;
  std::shared_ptr<IDispatch> objeto_;
};

class SistemaCom : public SistemaObjetos {
 public:
  bool registrada(const std::string& clase) override {
    return hilo().hacer([clase] { return SUCCEEDED(idDe(clase).first); });
  }
  bool abierta(const std::string& clase) override {
    return hilo().hacer([clase] { return SUCCEEDED(activa(clase).first); });
  }
  ReferenciaRemota obtener(const std::string& clase) override {
    return referencia([clase] {
      const auto [codigo, objeto] = activa(clase);
      if (FAILED(codigo)) fallar("No hay ninguna aplicación abierta de la clase " + clase, codigo);
      IDispatch* con = nullptr;
      const HRESULT tiene =
          insistiendo([&o = *objeto, &con] { return o.QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&con)); });
      objeto->Release();
      return FAILED(tiene) ? nullptr : con;
    });
  }
  ReferenciaRemota crear(const std::string& clase) override {
    return referencia([clase] {
      auto [codigo, id] = idDe(clase);
      IDispatch* objeto = nullptr;
      if (SUCCEEDED(codigo))
        codigo = ::CoCreateInstance(id, nullptr, CLSCTX_LOCAL_SERVER, IID_IDispatch, reinterpret_cast<void**>(&objeto));
      if (FAILED(codigo)) fallar("No se puede abrir una aplicación de la clase " + clase, codigo);
      return objeto;
    });
  }

 private:
  static std::pair<HRESULT, CLSID> idDe(const std::string& clase) {
    CLSID id{};
    return {::CLSIDFromProgID(enAncho(clase).c_str(), &id), id};
  }
  static std::pair<HRESULT, IUnknown*> activa(const std::string& clase) {
    auto [codigo, id] = idDe(clase);
    IUnknown* objeto = nullptr;
    if (SUCCEEDED(codigo)) codigo = ::GetActiveObject(id, nullptr, &objeto);
    return {codigo, objeto};
  }
  template <class F>
  ReferenciaRemota referencia(F f) {
    IDispatch* objeto = hilo().hacer(std::move(f));
    return objeto == nullptr ? nullptr : std::make_shared<ObjetoCom>(hilo_, objeto);
  }
  /// Started by the first question.
  HiloLlamadas& hilo() {
    if (hilo_ == nullptr)
      hilo_ = std::make_shared<HiloLlamadas>(
          plazo, [] { ::CoInitializeEx(nullptr, COINIT_MULTITHREADED); }, [] { ::CoUninitialize(); });
    return *hilo_;
  }

  Hilo hilo_;
};

}  // namespace

std::unique_ptr<SistemaObjetos> objetosDelSistema() { return std::make_unique<SistemaCom>(); }

}  // namespace calvento

#else

#include "activex/objeto_remoto.h"

namespace calvento {

std::unique_ptr<SistemaObjetos> objetosDelSistema() { return nullptr; }

}  // namespace calvento

#endif
