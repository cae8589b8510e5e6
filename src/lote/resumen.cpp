#include "lote/resumen.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "comun/numeros.h"
#include "comun/unidades.h"
#include "modelo/codificacion.h"
#include "plataforma/rejilla.h"

namespace calvento::lote {

namespace {

/// Columns that the UTF-8 text takes on a terminal; all our letters are one column wide.
// The standard's formatting pads so, too, but only from GCC 13 on; a package for these lines alone is one too many.
std::size_t ancho(std::string_view s) {
  return static_cast<std::size_t>(
      std::count_if(s.begin(), s.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

std::string pieza(std::string_view simbolo, std::string_view valor, std::string_view unidad) {
  std::string s;
  if (!simbolo.empty()) s = std::string(simbolo) + " = ";
  return s + conUnidad(visible(valor), unidad);
}

std::string linea(std::string_view lugar, const std::vector<std::string>& piezas) {
  static constexpr std::size_t columnaValores = 28;
  std::string s = "  " + alineado(lugar, columnaValores - 2);
  for (std::size_t i = 0; i < piezas.size(); ++i) s += (i == 0 ? "" : "   ") + piezas[i];
  return s + "\n";
}

std::string puestos(const Sesion& sesion) {
  std::vector<std::string> piezas;
  for (const ValorPuesto& p : sesion.puestos()) piezas.push_back(pieza(p.nombre, p.texto, p.unidad));
  return piezas.empty() ? std::string() : linea("Puesto", piezas);
}

std::string datos(const Sesion& sesion) {
  std::string s = "\nDATOS\n";
  for (const Linea<Dato>& l : sesion.estructura()->ficha().datos) {
    std::vector<std::string> piezas;
    for (const Dato& d : l.piezas) {
      const auto* campo = sesion.ventana()->buscar<TextBox>(d.control);
      if (campo != nullptr && !vacio(campo->Text)) piezas.push_back(pieza(d.simbolo, campo->Text, d.unidad));
    }
    s += linea(l.lugar, piezas.empty() ? std::vector<std::string>{"-"} : piezas);
  }
  return s;
}

/// What the window remarks in its labels.
std::string observaciones(const Sesion& sesion) {
  std::string s;
  for (const std::string_view nombre : sesion.estructura()->notas) {
    const auto* etiqueta = sesion.ventana()->buscar<Label>(nombre);
    if (etiqueta != nullptr && !vacio(etiqueta->Caption))
      s += linea("Observación", {visible(etiqueta->Caption.valor())});
  }
  return s;
}

std::string resultados(const Sesion& sesion) {
  std::string s = "\nRESULTADOS\n";
  if (!sesion.calculado()) return s + "  El cálculo no llegó a su fin.\n" + observaciones(sesion);
  for (const Linea<Valor>& l : sesion.estructura()->ficha().resultados) {
    std::vector<std::string> piezas;
    for (const Valor& v : l.piezas) {
      const Single x = sesion.estado().*v.campo;
      if (v.siHay && x.valor() == 0) continue;
      piezas.push_back(
          pieza(v.simbolo, formato(x, "0." + std::string(static_cast<std::size_t>(v.decimales), '0')), v.unidad));
    }
    s += linea(l.lugar, piezas);
  }
  return s + observaciones(sesion);
}

std::string tablaTanques(const Sesion& sesion) {
  const auto* rejilla = sesion.ventana()->buscar<Grid>("Grid1");
  if (rejilla == nullptr) return {};
  const Rejilla& t = rejilla->tabla;
  std::string s = "\nTIPOS DE TANQUE AMORTIGUADOR (> elegido)\n";
  for (int f = 0; f < t.filas(); ++f) {
    std::string fila = f > 0 && Real(sesion.estado().tipoTanque) == f ? "> " : "  ";
    for (int c = 0; c < t.columnas(); ++c) {
      std::size_t columnas = 0;
      for (int i = 0; i < t.filas(); ++i) columnas = std::max(columnas, ancho(t.texto(i, c)));
      fila += alineado(t.texto(f, c), columnas + 2);
    }
    fila.erase(fila.find_last_not_of(' ') + 1);
    s += fila + "\n";
  }
  return s;
}

/// The first line of the verdict on the basin, with the discharges that sweep the jump out.
std::vector<std::string> veredicto(const Ventana& reporte) {
  const std::string& texto = reporte.buscar<TextBox>("Text1")->Text.valor();
  std::string primera = texto.substr(0, texto.find('\r'));
  while (!primera.empty() && (primera.back() == ',' || primera.back() == '.')) primera.pop_back();
  std::string barridos;
  const Rejilla& t = reporte.buscar<Grid>("Grid1")->tabla;
  for (int f = t.filasTitulo(); f < t.filas(); ++f)
    if (t.texto(f, 9) == "--") barridos += (barridos.empty() ? "resalto barrido con Q = " : ", ") + t.texto(f, 1);
  return barridos.empty() ? std::vector{primera} : std::vector{primera, barridos + " m³/s"};
}

/// For each discharge whether the flow is stable, or from which station on it is not.
std::vector<std::string> estabilidad(const Ventana& reporte) {
  std::vector<std::string> piezas;
  const Rejilla& t = reporte.buscar<Grid>("Grid1")->tabla;
  for (int c = 3; c < t.columnas(); c += 3) {
    int f = t.filasTitulo() + 1;
    while (f < t.filas() && t.texto(f, c) == "Flujo Estable") ++f;
    piezas.push_back(t.texto(0, c - 1) + (f == t.filas() ? " estable" : " inestable desde " + t.texto(f, 0)));
  }
  return piezas;
}

bool esDePoza(const ReporteAbierto& r) { return r.nombre == "Form13" || r.nombre == "Form7" || r.nombre == "Form26"; }

std::string verificaciones(const Sesion& sesion) {
  std::string s;
  for (const ReporteAbierto& r : sesion.reportes()) {
    const bool deEstabilidad = r.nombre == "Form6";
    if (!deEstabilidad && !esDePoza(r)) continue;
    const char* rotulo = deEstabilidad ? "Flujo en la rápida" : "Poza";
    if (r.ventana == nullptr)
      s += linea(rotulo, {"no se pudo verificar: " + visible(r.fallo)});
    else
      s += linea(rotulo, deEstabilidad ? estabilidad(*r.ventana) : veredicto(*r.ventana));
  }
  return s.empty() ? s : "\nVERIFICACIONES\n" + s;
}

/// A line for each check that applies; of one that does not hold also what it means.
std::string comprobaciones(const Sesion& sesion) {
  const Comprobaciones todas = sesion.comprobaciones();
  if (todas.empty()) return {};
  const CuentaComprobaciones cuenta = contar(todas);
  std::string s = "\nCOMPROBACIONES: " + std::to_string(cuenta.cumplen) + " de " + std::to_string(cuenta.total) + "\n";
  const auto cifra = [](const Comprobacion& c, double x) {
    return std::isfinite(x) ? formato(Real(x), decimalesDe(c) == 0 ? "0" : "0.000") : std::string("-");
  };
  for (const Comprobacion& c : todas) {
    if (c.estado == Comprobacion::Estado::noAplica) continue;
    const bool mala = c.estado != Comprobacion::Estado::cumple;
    s += (mala ? "> " : "  ") + alineado(std::string(c.nombre), 42) +
         alineado(std::string(nombreEstado(c.estado)), 13) + alineado(cifra(c, c.valor), 10) + " límite " +
         conUnidad(cifra(c, c.limite), c.unidad) + "\n";
    if (mala) s += "      " + visible(c.detalle) + "\n";
  }
  return s;
}

std::string notas(const Sesion& sesion) {
  std::string s = sesion.notas().empty() ? "" : "\nNOTAS\n";
  for (const std::string& nota : sesion.notas()) s += "  " + visible(nota) + "\n";
  return s;
}

std::string mensajes(const Sesion& sesion) {
  std::string s = "\nMENSAJES\n";
  if (sesion.mensajes().empty()) s += "  ninguno\n";
  for (const Mensaje& m : sesion.mensajes()) s += "  " + enUnaLinea(m) + "\n";
  return s;
}

}  // namespace

std::string alineado(std::string_view s, std::size_t columnas) {
  const std::size_t a = ancho(s);
  return std::string(s) + std::string(a < columnas ? columnas - a : 0, ' ');
}

std::string veredictoPoza(const Sesion& sesion) {
  for (const ReporteAbierto& r : sesion.reportes()) {
    if (!esDePoza(r) || r.ventana == nullptr) continue;
    std::string s;
    for (const std::string& pieza : veredicto(*r.ventana)) s += (s.empty() ? "" : "; ") + pieza;
    return s;
  }
  return {};
}

std::string enUnaLinea(const Mensaje& m) {
  static constexpr std::array<std::string_view, 3> tipos = {"aviso", "pregunta", "fallo"};
  std::string s = std::string(tipos.at(static_cast<std::size_t>(m.tipo))) + ": " + m.texto;
  std::replace(s.begin(), s.end(), '\n', ' ');
  if (m.tipo == Mensaje::Tipo::pregunta) s += m.respuesta ? " [si]" : " [no]";
  return visible(s);
}

std::string comoResumen(const Sesion& sesion) {
  const std::string titulo = visible(sesion.archivo()) + (sesion.calculado() ? "" : " (no calculado)");
  std::string raya;
  for (std::size_t i = 0; i < ancho(titulo); ++i) raya += "═";
  std::string s = titulo + "\n" + raya + "\n";
  // of a project that was not read there is nothing to show but why
  if (sesion.ventana() != nullptr && !sesion.estado().esNuevo) {
    s += visible(sesion.ventana()->Caption.valor()) + "\n";
    s += puestos(sesion) + datos(sesion) + resultados(sesion) + tablaTanques(sesion) + verificaciones(sesion) +
         comprobaciones(sesion) + notas(sesion);
  }
  return s + mensajes(sesion) + "\n";
}

}  // namespace calvento::lote
