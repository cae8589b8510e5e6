// An automation server that takes every member it is asked for, and writes each call down. For the tests on Windows.
//
//   servidor_cad --registrar | --borrar   under the class of the application, for this user
//   servidor_cad                          runs, and ends when it is ended
//
// The record goes to the file of CALVENTO_REGISTRO; the call number CALVENTO_FALLA fails, each number CALVENTO_OCUPADA
// is refused at first, as by an application that is busy.
#include <cstdlib>
#include <fstream>
#include <set>

#include "activex/llamada.h"
#include "activex/variante.h"

namespace calvento {
namespace {

constexpr const char* clase = "AutoCAD.Application.18";
constexpr const char* id = "{5A1C0E52-7D3B-4C0B-9B0E-3F6D2C8A9E18}";

std::size_t numero(const char* variable) {
  const char* v = std::getenv(variable);
  return v == nullptr ? 0 : std::strtoul(v, nullptr, 10);
}

ValorRemoto valorDe(VARIANT& v) {
  switch (v.vt) {
    case VT_BOOL:
      return v.boolVal != VARIANT_FALSE;
    case VT_I4:
      return static_cast<int>(v.lVal);
    case VT_R8:
      return v.dblVal;
    case VT_BSTR:
      return enUtf8(v.bstrVal);
    case VT_ARRAY | VT_R8: {
      void* datos = nullptr;
      if (FAILED(::SafeArrayAccessData(v.parray, &datos))) return {};
      const auto* d = static_cast<const double*>(datos);
      const std::vector<double> lista(d, d + v.parray->rgsabound[0].cElements);
      ::SafeArrayUnaccessData(v.parray);
      return lista;
    }
    default:
      return "VARIANT " + std::to_string(v.vt);
  }
}

/// Members get their numbers as they are asked for.
std::vector<std::string> miembros;

class Nodo : public IDispatch {
 public:
  explicit Nodo(std::string nombre) : nombre_(std::move(nombre)) {}
  virtual ~Nodo() = default;
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID cual, void** sitio) override {
    const bool es = IsEqualIID(cual, IID_IUnknown) || IsEqualIID(cual, IID_IDispatch);
    *sitio = es ? this : nullptr;
    if (es) AddRef();
    return es ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++referencias_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG quedan = --referencias_;
    if (quedan == 0) delete this;
    return quedan;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* n) override { return *n = 0, S_OK; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* nombres, UINT, LCID, DISPID* ids) override {
    miembros.push_back(enUtf8(nombres[0]));
    *ids = static_cast<DISPID>(miembros.size());
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID cual, REFIID, LCID, WORD como, DISPPARAMS* p, VARIANT* r, EXCEPINFO* e,
                                   UINT*) override {
    static const std::size_t falla = numero("CALVENTO_FALLA"), ocupada = numero("CALVENTO_OCUPADA");
    static std::size_t van = 0, rechazada = 0;
    const std::string& miembro = miembros[static_cast<std::size_t>(cual) - 1];
    if (ocupada != 0 && (van + 1) % ocupada == 0 && rechazada != van) {
      rechazada = van;
      return RPC_E_CALL_REJECTED;
    }
    if (++van == falla) {
      e->bstrDescription = ::SysAllocString(L"La cota está bloqueada");
      return DISP_E_EXCEPTION;
    }
    std::vector<ValorRemoto> argumentos;
    for (UINT i = p->cArgs; i-- > 0;) argumentos.push_back(valorDe(p->rgvarg[i]));
    anotar(como == DISPATCH_PROPERTYPUT   ? comoPuesta(nombre_, miembro, argumentos.at(0))
           : como == DISPATCH_PROPERTYGET ? nombre_ + "." + miembro
                                          : comoLlamada(nombre_, miembro, argumentos));
    if (r != nullptr) r->vt = VT_DISPATCH, r->pdispVal = new Nodo(miembro);
    return S_OK;
  }

 private:
  static void anotar(const std::string& linea) {
    static std::ofstream registro(std::getenv("CALVENTO_REGISTRO"), std::ios::binary);
    registro << linea << '\n' << std::flush;
  }
  std::string nombre_;
  ULONG referencias_ = 1;
};

std::wstring carpetaDe(const std::string& que) { return enAncho("Software\\Classes\\" + que); }

void poner(const std::string& carpeta, const std::wstring& valor) {
  // Wine looks for classes among those of the machine only
  for (const HKEY de : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE})
    ::RegSetKeyValueW(de, carpetaDe(carpeta).c_str(), nullptr, REG_SZ, valor.c_str(),
                      static_cast<DWORD>((valor.size() + 1) * sizeof(wchar_t)));
}

int correr() {
  CLSID numeroDeClase{};
  ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  if (FAILED(::CLSIDFromString(enAncho(id).c_str(), &numeroDeClase))) return 1;
  Nodo aplicacion("Application");
  DWORD asiento = 0;
  if (FAILED(::RegisterActiveObject(&aplicacion, numeroDeClase, ACTIVEOBJECT_STRONG, &asiento))) return 1;
  MSG mensaje;
  while (::GetMessageW(&mensaje, nullptr, 0, 0) > 0) ::DispatchMessageW(&mensaje);
  return 0;
}

}  // namespace
}  // namespace calvento

int main(int argc, char** argv) {
  using namespace calvento;
  const std::string orden = argc > 1 ? argv[1] : "";
  if (orden == "--registrar") {
    wchar_t programa[MAX_PATH];
    ::GetModuleFileNameW(nullptr, programa, MAX_PATH);
    poner(std::string(clase) + "\\CLSID", enAncho(id));
    poner(std::string("CLSID\\") + id + "\\LocalServer32", programa);
    return 0;
  }
  if (orden == "--borrar") {
    for (const HKEY de : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
      ::RegDeleteTreeW(de, carpetaDe(clase).c_str());
      ::RegDeleteTreeW(de, carpetaDe(std::string("CLSID\\") + id).c_str());
    }
    return 0;
  }
  return correr();
}
