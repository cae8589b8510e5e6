#include "comun/numeros.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <regex>
#include <version>

#ifndef __cpp_lib_to_chars
#include <locale>
#include <sstream>
#endif

namespace calvento {

namespace {

bool esDigito(char c) { return c >= '0' && c <= '9'; }

/// Decimal digits of |x| with so many significant ones: "d.ddd" as digits and the exponent of the first.
struct Cifras {
  std::string digitos;
  int exponente = 0;
};

Cifras cifrasDe(double x, int significativas) {
  std::array<char, 64> bufer{};
  const auto r = std::to_chars(bufer.data(), bufer.data() + bufer.size(), std::fabs(x), std::chars_format::scientific,
                               significativas - 1);
  const std::string_view s(bufer.data(), static_cast<std::size_t>(r.ptr - bufer.data()));
  const std::size_t e = s.find('e');
  Cifras c;
  c.digitos = s.substr(0, 1);
  if (e > 1) c.digitos += s.substr(2, e - 2);
  std::string_view exponente = s.substr(e + 1);
  if (exponente.front() == '+') exponente.remove_prefix(1);
  std::from_chars(exponente.data(), exponente.data() + exponente.size(), c.exponente);
  return c;
}

/// Places the digits around the decimal point, without an exponent.
std::string enFijo(const Cifras& c) {
  std::string s;
  if (c.exponente < 0) {
    s = "0." + std::string(static_cast<std::size_t>(-c.exponente - 1), '0') + c.digitos;
  } else {
    const auto enteros = static_cast<std::size_t>(c.exponente) + 1;
    s = c.digitos;
    if (s.size() < enteros) s.append(enteros - s.size(), '0');
    if (s.size() > enteros) s.insert(enteros, ".");
  }
  return s;
}

std::string textoSimple(double x, int significativas) {
  if (x == 0) return "0";
  Cifras c = cifrasDe(x, significativas);
  while (c.digitos.size() > 1 && c.digitos.back() == '0') c.digitos.pop_back();
  const std::string signo = x < 0 ? "-" : "";
  if (c.exponente >= -significativas && c.exponente < significativas) return signo + enFijo(c);
  std::string s = c.digitos;
  if (s.size() > 1) s.insert(1, ".");
  const int e = c.exponente < 0 ? -c.exponente : c.exponente;
  return signo + s + (c.exponente < 0 ? "E-" : "E+") + (e < 10 ? "0" : "") + std::to_string(e);
}

/// The digits of |x| rounded to so many decimals, ties away from zero, judged on fifteen significant digits.
std::string redondeoDecimal(double x, int decimales) {
  Cifras c = cifrasDe(x, 15);
  // digits as a whole number of units of the last decimal
  const int cuantas = c.exponente + 1 + decimales;
  if (x == 0 || cuantas < 0) return std::string(static_cast<std::size_t>(decimales) + 1, '0');
  std::string d = "0" + c.digitos;
  const auto quedan = static_cast<std::size_t>(cuantas) + 1;
  if (d.size() <= quedan) {
    d.append(quedan - d.size(), '0');
  } else {
    const bool sube = d[quedan] >= '5';
    d.resize(quedan);
    for (std::size_t i = d.size(); sube && i-- > 0;) {
      if (d[i] != '9') {
        ++d[i];
        break;
      }
      d[i] = '0';
    }
  }
  const auto minimo = static_cast<std::size_t>(decimales) + 1;
  if (d.size() < minimo) d.insert(0, minimo - d.size(), '0');
  while (d.size() > minimo && d.front() == '0') d.erase(0, 1);
  return d;
}

/// from_chars would also take "inf" and "nan": a number begins with a digit or with a point and a digit.
bool empiezaNumero(std::string_view t) {
  return !t.empty() && (esDigito(t[0]) || (t[0] == '.' && t.size() > 1 && esDigito(t[1])));
}

/// The number that a text of digits begins with, and how much of the text it is.
struct Leido {
  double valor;
  std::size_t largo;
  bool fueraDeRango;  ///< too large or too small for 8 bytes
};

#ifdef __cpp_lib_to_chars
Leido leer(std::string_view t) {
  double v = 0;
  const auto r = std::from_chars(t.data(), t.data() + t.size(), v);
  return {v, static_cast<std::size_t>(r.ptr - t.data()), r.ec == std::errc::result_out_of_range};
}
#else
// a library that cannot read an 8-byte number this way: the same by a stream that knows no locale
Leido leer(std::string_view t) {
  std::size_t n = 0;
  const auto digitos = [&] {
    const std::size_t desde = n;
    while (n < t.size() && esDigito(t[n])) ++n;
    return n > desde;
  };
  digitos();
  if (n < t.size() && t[n] == '.') ++n, digitos();
  if (const std::size_t e = n; n < t.size() && (t[n] == 'e' || t[n] == 'E')) {
    ++n;
    if (n < t.size() && (t[n] == '+' || t[n] == '-')) ++n;
    if (!digitos()) n = e;
  }
  std::istringstream flujo{std::string(t.substr(0, n))};
  flujo.imbue(std::locale::classic());
  double v = 0;
  flujo >> v;
  // it also fails for what is merely less than exact
  return {v, n, flujo.fail() && (v == 0 || v >= std::numeric_limits<double>::max())};
}
#endif

}  // namespace

std::int16_t enteroCorto(Real v) {
  const double entero = std::nearbyint(v.valor());
  if (entero < std::numeric_limits<std::int16_t>::min() || entero > std::numeric_limits<std::int16_t>::max())
    fallar(Motivo::desbordamiento);
  return static_cast<std::int16_t>(entero);
}

Real Val(std::string_view t) {
  while (!t.empty() && (t.front() == ' ' || t.front() == '\t' || t.front() == '\r' || t.front() == '\n'))
    t.remove_prefix(1);
  const bool negativo = !t.empty() && t.front() == '-';
  if (!t.empty() && (t.front() == '-' || t.front() == '+')) t.remove_prefix(1);
  if (!empiezaNumero(t)) return 0;
  auto [v, largo, fueraDeRango] = leer(t);
  if (fueraDeRango) {
    // the range error does not tell too large from too small: the sign of the written exponent, or a leading zero, does
    const std::string_view leido = t.substr(0, largo);
    const std::size_t e = leido.find_first_of("eE");
    const bool pequeno = e == std::string_view::npos ? !esDigito(leido[0]) || leido[0] == '0' : leido[e + 1] == '-';
    if (!pequeno) fallar(Motivo::desbordamiento);
    v = 0;
  }
  return negativo ? -v : v;
}

bool esNumero(std::string_view t) {
  t.remove_prefix(std::min(t.find_first_not_of(" \t"), t.size()));
  if (const auto fin = t.find_last_not_of(" \t"); fin != std::string_view::npos) t = t.substr(0, fin + 1);
  if (t.starts_with('-') || t.starts_with('+')) t.remove_prefix(1);
  if (!empiezaNumero(t)) return false;
  const Leido leido = leer(t);
  return !leido.fueraDeRango && leido.largo == t.size();
}

std::string conPuntoDecimal(std::string_view texto) {
  std::string s(texto);
  if (s.find(',') == std::string::npos) return s;
  static const std::regex milesConPunto(R"(\s*[-+]?\d{1,3}(\.\d{3})+,\d*\s*)");
  static const std::regex milesConComa(R"(\s*[-+]?\d{1,3}(,\d{3})+\.\d*\s*)");
  // the expressions recurse on every digit: a text that no field could show is no number with separators
  constexpr std::size_t sinSentido = 100;
  if (s.size() < sinSentido) {
    if (std::regex_match(s, milesConPunto)) std::erase(s, '.');
    if (std::regex_match(s, milesConComa)) std::erase(s, ',');
  }
  std::replace(s.begin(), s.end(), ',', '.');
  return s;
}

Real Round(Real x, int decimales) {
  static constexpr std::array<double, 8> potencias = {1, 10, 100, 1e3, 1e4, 1e5, 1e6, 1e7};
  const double p = potencias.at(static_cast<std::size_t>(decimales));
  const double escalado = x.valor() * p;
  // beyond 2^53 every number is whole already, and the product may overflow
  if (!(std::fabs(escalado) < 9007199254740992.0)) return x;
  return Real(std::nearbyint(escalado) / p);
}

Single Round(Single x, int decimales) { return Single(Round(Real(x), decimales)); }

Real enRejilla(Real x) { return 0.05 * Round(x / 0.05, 0); }

std::string texto(Real x) { return textoSimple(x.valor(), 15); }
std::string texto(Single x) { return textoSimple(static_cast<double>(x.valor()), 7); }
std::string texto(int x) { return std::to_string(x); }

std::string formato(Real x, std::string_view patron) {
  const std::size_t punto = patron.find('.');
  const std::string_view enteros = patron.substr(0, punto);
  const std::size_t decimales = punto == std::string_view::npos
                                    ? 0
                                    : static_cast<std::size_t>(std::count(
                                          patron.begin() + static_cast<std::ptrdiff_t>(punto), patron.end(), '0'));
  std::string digitos = redondeoDecimal(x.valor(), static_cast<int>(decimales));
  const bool esCero = digitos.find_first_not_of('0') == std::string::npos;
  const std::string fraccion = digitos.substr(digitos.size() - decimales);
  digitos.resize(digitos.size() - decimales);

  // the whole digits fill the zeros of the pattern from the right; what is left over stands before them
  std::string salida;
  std::size_t i = digitos.size();
  for (std::size_t k = enteros.size(); k-- > 0;) {
    if (enteros[k] == '0')
      salida.insert(salida.begin(), i > 0 ? digitos[--i] : '0');
    else
      salida.insert(salida.begin(), enteros[k]);
  }
  salida.insert(0, digitos, 0, i);
  if (decimales > 0) salida += '.' + fraccion;
  return (x.valor() < 0 && !esCero ? "-" : "") + salida;
}

}  // namespace calvento
