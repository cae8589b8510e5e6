#ifdef _WIN32

#include "activex/variante.h"

#include <algorithm>

#include "cad/aplicacion_cad.h"

namespace calvento {

std::wstring enAncho(const std::string& texto) {
  const int bytes = static_cast<int>(texto.size());
  const int n = ::MultiByteToWideChar(CP_UTF8, 0, texto.data(), bytes, nullptr, 0);
  std::wstring ancho(static_cast<std::size_t>(n), L'\0');
  ::MultiByteToWideChar(CP_UTF8, 0, texto.data(), bytes, ancho.data(), n);
  return ancho;
}

std::string enUtf8(const wchar_t* texto) {
  if (texto == nullptr) return {};
  const int n = ::WideCharToMultiByte(CP_UTF8, 0, texto, -1, nullptr, 0, nullptr, nullptr);
  if (n <= 1) return {};
  std::string s(static_cast<std::size_t>(n) - 1, '\0');  // n counts the zero behind it
  ::WideCharToMultiByte(CP_UTF8, 0, texto, -1, s.data(), n, nullptr, nullptr);
  return s;
}

namespace {

void poner(VARIANT& v, std::monostate) { v.vt = VT_EMPTY; }
void poner(VARIANT& v, bool si) { v.vt = VT_BOOL, v.boolVal = si ? VARIANT_TRUE : VARIANT_FALSE; }
void poner(VARIANT& v, int n) { v.vt = VT_I4, v.lVal = n; }
void poner(VARIANT& v, double x) { v.vt = VT_R8, v.dblVal = x; }
void poner(VARIANT& v, const std::string& texto) {
  const std::wstring ancho = enAncho(texto);
  v.bstrVal = ::SysAllocStringLen(ancho.data(), static_cast<UINT>(ancho.size()));
  if (v.bstrVal == nullptr) throw FalloCad("No queda memoria");
  v.vt = VT_BSTR;
}
void poner(VARIANT& v, const std::vector<double>& lista) {
  v.parray = ::SafeArrayCreateVector(VT_R8, 0, static_cast<ULONG>(lista.size()));
  void* datos = nullptr;
  if (v.parray == nullptr || FAILED(::SafeArrayAccessData(v.parray, &datos))) throw FalloCad("No queda memoria");
  std::copy(lista.begin(), lista.end(), static_cast<double*>(datos));
  ::SafeArrayUnaccessData(v.parray);
  v.vt = VT_ARRAY | VT_R8;
}
void poner(VARIANT&, const ReferenciaRemota&) { throw FalloCad("Un objeto no puede ser argumento"); }

}  // namespace

Variante::Variante(const ValorRemoto& valor) : Variante() {
  std::visit([this](const auto& contenido) { poner(v_, contenido); }, valor);
}

IDispatch* Variante::tomarObjeto() {
  if (v_.vt != VT_DISPATCH) return nullptr;
  IDispatch* objeto = v_.pdispVal;
  ::VariantInit(&v_);
  return objeto;
}

Excepcion::~Excepcion() {
  ::SysFreeString(e_.bstrSource);
  ::SysFreeString(e_.bstrDescription);
  ::SysFreeString(e_.bstrHelpFile);
}

std::string Excepcion::texto() const {
  const std::string que = enUtf8(e_.bstrDescription);
  return que.empty() ? "" : ": " + que;
}

}  // namespace calvento

#endif
