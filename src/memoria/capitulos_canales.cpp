// Data, canals and control section.
#include "hidraulica/anchos.h"
#include "hidraulica/flujo.h"
#include "hidraulica/solvers.h"
#include "memoria/redaccion.h"

namespace calvento::redaccion {

namespace {

using enum Alineacion;

/// A symbol of the windows with its index lowered: "Yn" as Y_{n}, "S1" as S_{1}.
std::string simbolo(std::string_view s) {
  if (s.size() == 2 && s[0] >= 'A' && s[0] <= 'Z') return std::string(1, s[0]) + "_{" + std::string(1, s[1]) + "}";
  return std::string(s);
}

std::vector<std::vector<std::string>> filasDe(const std::vector<Linea<Dato>>& lineas, const Diseno& x,
                                              bool parametros) {
  std::vector<std::vector<std::string>> filas;
  for (const Linea<Dato>& l : lineas)
    for (const Dato& dato : l.piezas) {
      const std::string& texto = parametros ? x.parametro(dato.control) : x.campo(dato.control);
      if (texto.empty()) continue;
      filas.push_back({std::string(l.lugar), simbolo(dato.simbolo), texto, std::string(dato.unidad)});
    }
  return filas;
}

/// Flow of one canal: normal depth, critical depth, Froude number and energy with their figures.
struct CanalNombrado {
  const char* nombre;
  Single b, z, n, S, yn;
};

void canal(Redaccion& r, const CanalNombrado& c) {
  r.apartado(c.nombre);
  r.intentar([&] {
    const Seccion s{c.b, c.z};
    const Real Q = r.e.Q;
    const Flujo f = flujoEn(s, Q, c.yn);
    const auto v = [](Real x) { return n(x.valor()); };
    const std::string b = texto(c.b), z = texto(c.z), y = n(d(c.yn));
    r.parrafo("El tirante normal es el que cumple la fórmula de Manning con Q = " + con(r.e.Q, "m³/s") + ", b = " + b +
              " m, Z = " + z + ", n = " + texto(c.n) + " y S = " + texto(c.S) + ":");
    r.formula("Q = A R^{2/3} S^{1/2} / n",
              v(f.area) + " · " + v(f.radio) + "^{2/3} · " + texto(c.S) + "^{1/2} / " + texto(c.n),
              "Y_{n} = " + con(c.yn, "m"));
    r.formula("A = (b + Z Y) Y", "(" + b + " + " + z + " · " + y + ") · " + y, con(f.area.valor(), "m²"));
    r.formula("P = b + 2 Y √(1 + Z²)", b + " + 2 · " + y + " · √(1 + " + z + "²)", con(f.perimetro.valor(), "m"));
    r.formula("R = A / P", v(f.area) + " / " + v(f.perimetro), con(f.radio.valor(), "m"));
    r.formula("T = b + 2 Z Y", b + " + 2 · " + z + " · " + y, con(f.espejo.valor(), "m"));
    r.formula("V = Q / A", n(d(r.e.Q)) + " / " + v(f.area), con(f.velocidad.valor(), "m/s"));
    const Real F = s.froude(Q, c.yn);
    r.formula("F = V / √(g A / T)", v(f.velocidad) + " / √(9.81 · " + v(f.area) + " / " + v(f.espejo) + ")",
              n(F.valor()) + (F < 1   ? ", flujo subcrítico"
                              : F > 1 ? ", flujo supercrítico"
                                      : ", flujo crítico"));
    r.formula("E = Y + V² / 2g", y + " + " + v(f.velocidad) + "² / 19.62",
              con((c.yn + f.alturaVelocidad).valor(), "m"));
    const Single yc = YCRITICO(Q, c.b, c.z);
    const Flujo fc = flujoEn(s, Q, yc);
    r.formula("Q² T / (g A³) = 1", n(d(r.e.Q)) + "² · " + v(fc.espejo) + " / (9.81 · " + v(fc.area) + "³)",
              "Y_{c} = " + con(yc, "m"));
  });
}

}  // namespace

void datos(Redaccion& r) {
  r.capitulo("Datos");
  r.apartado("Datos del diseño");
  const std::vector<Alineacion> columnas = {izquierda, izquierda, derecha, izquierda};
  r.tabla("Datos de la estructura", {"Lugar", "Símbolo", "Valor", "Unidad"}, filasDe(r.x.ficha->datos, r.x, false),
          columnas);
  auto parametros = filasDe(r.x.ficha->datosParametros, r.x, true);
  r.tabla("Bordo libre, transiciones y tanque", {"Lugar", "Símbolo", "Valor", "Unidad"}, std::move(parametros),
          columnas);
  if (r.x.parametro("Check1") == "1") r.nota("La altura mínima de los bloques está en vigor.");
  if (r.x.vertical())
    r.nota(std::string(d(r.e.tipoTanque) == 1 ? "Caída vertical sin obstáculos" : "Caída vertical con obstáculos") +
           (d(r.e.tipoTransVert) == 0 ? "; ventilación por contracción lateral."
                                      : "; ventilación por tubos: " + r.x.parametro("Combo1") + " de " +
                                            r.x.parametro("Combo2") + " pulgadas."));
  if (r.x.inclinada() && r.x.campo("mnsuper") == "1")
    r.nota("Calculada en régimen supercrítico: la elevación y la pendiente de salida son resultados.");

  r.apartado("Resultados");
  std::vector<std::vector<std::string>> filas;
  for (const Linea<Valor>& l : r.x.ficha->resultados)
    for (const Valor& v : l.piezas) {
      const Single valor = r.e.*v.campo;
      if (v.siHay && valor.valor() == 0) continue;
      filas.push_back({std::string(l.lugar), simbolo(v.simbolo), n(d(valor), v.decimales), std::string(v.unidad)});
    }
  r.tabla("Resumen de resultados", {"Lugar", "Símbolo", "Valor", "Unidad"}, std::move(filas), columnas);
}

void canales(Redaccion& r) {
  r.capitulo("Canales de llegada y de salida");
  const DesignState& e = r.e;
  canal(r, {"Canal aguas arriba", e.bArriba, e.zArriba, e.nArriba, e.sArriba, e.ynArriba});
  canal(r, {"Canal aguas abajo", e.bAbajo, e.zAbajo, e.nAbajo, e.sAbajo, e.ynAbajo});
}

void control(Redaccion& r) {
  r.capitulo("Sección de control");
  const DesignState& e = r.e;
  if (d(e.frArriba) > 1) {
    r.parrafo("El canal llega en régimen supercrítico (F = " + n(d(e.frArriba)) +
              "): no hay sección de control y la estructura empieza con el tirante normal del canal.");
    return;
  }
  r.intentar([&] {
    const lista::Canal c = lista::control(r.x), arriba = lista::canalArriba(e);
    const double Q = d(e.Q), yc = d(e.ycControl);
    const double vc = c.velocidad(Q, yc), Ec = c.energia(Q, yc), E1 = arriba.energia(Q, d(e.ynArriba));
    r.parrafo("En la sección de control, de base b = " + con(c.b, "m") + " y talud Z = " + n(c.z, 2) +
              ", el agua pasa con el tirante crítico.");
    r.formula("Q² T_{c} / (g A_{c}³) = 1", n(Q) + "² · " + n(c.espejo(yc)) + " / (9.81 · " + n(c.area(yc)) + "³)",
              "Y_{c} = " + con(yc, "m"));
    r.formula("V_{c} = Q / A_{c}", n(Q) + " / " + n(c.area(yc)), con(vc, "m/s"));
    r.formula("E_{c} = Y_{c} + V_{c}² / 2g", n(yc) + " + " + n(vc) + "² / 19.62", con(Ec, "m"));
    r.formula("Δh = E − E_{c}", n(E1) + " − " + n(Ec), con(E1 - Ec, "m"));
    if (E1 < Ec) r.parrafo("La diferencia es negativa: el control no se levanta y el canal se remansa.");
    if (r.x.vertical())
      r.parrafo(
          "La cresta no se levanta; la ventana del diseño muestra la sobre elevación sin la altura de velocidad del "
          "canal, " +
          con(e.sobreelevacion, "m") + ".");
    else
      r.parrafo("Sobre elevación de la sección de control: " + con(e.sobreelevacion, "m") + ".");
    r.parrafo("El ancho con que la sobre elevación sería 0 es " + con(ecuaciones::anchoCritico(Q, E1, c.z), "m") + ".");
    if (r.x.rapida())
      r.formula("b = 0.765 Q^{0.4}", "0.765 · " + n(Q) + "^{0.4}", con(anchoRapida(e.Q).valor(), "m, ancho propuesto"));
    if (!r.x.rapida()) {
      r.formula("L = 3.5 Y_{c}", "3.5 · " + n(yc), con(e.longControl, "m, en múltiplos de 0.05", 2));
    }
  });
}

}  // namespace calvento::redaccion
