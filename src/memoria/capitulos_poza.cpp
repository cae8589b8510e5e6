// Jump and basin, blocks and aeration, linings, verification.
#include <array>
#include <memory>

#include "memoria/hojas_bloques.h"
#include "memoria/laminas.h"
#include "memoria/redaccion.h"
#include "poza/form21.h"
#include "poza/form22.h"
#include "poza/form23.h"
#include "poza/form5.h"
#include "poza/tabla_tanques.h"
#include "reportes/ventana_verificacion.h"

namespace calvento::redaccion {

namespace {

using enum Alineacion;

void saltoVertical(Redaccion& r) {
  const DesignState& e = r.e;
  const double h = d(e.cotaFin) - d(e.cotaAbajo);
  if (d(e.tipoTanque) == 1) {
    r.formula("Y_{1} = 0.54 h D^{0.425}", "h = " + n(h), con(e.y1, "m"));
    r.formula("Y_{2} = 1.66 h D^{0.27}", "h = " + n(h), con(e.y2, "m"));
    r.formula("L_{r} = K (Y_{2} − Y_{1})", n(d(e.kLongPoza), 2) + " · (" + n(d(e.y2)) + " − " + n(d(e.y1)) + ")",
              con(e.longPoza, "m"));
  } else {
    r.formula("Y_{2} = 2.15 Y_{c}", "2.15 · " + n(d(e.ycControl)), con(e.y2, "m"));
    r.formula("Y_{1}", "conjugado de Y_{2} en el ancho de la poza", con(e.y1, "m"));
  }
  r.formula("Profundidad = E_{2} − E_{n}", "energía tras el resalto menos la del canal, en múltiplos de 0.05",
            con(e.profPoza, "m", 2));
  r.formula("Elevación del fondo", n(d(e.cotaAbajo)) + " − " + n(d(e.profPoza), 2), con(e.cotaPoza, "m"));
}

void salto(Redaccion& r) {
  const DesignState& e = r.e;
  r.parrafo(
      "Los tirantes conjugados cumplen a la vez el balance de energía, con la décima parte de la altura de velocidad "
      "perdida antes del resalto y el ahogamiento k después de él, y el de momento:");
  r.formula("(Y_{2} + V_{2}²/2g)(1 + k) = Y_{1} + 1.1 V_{1}²/2g + ΔE", "k = " + n(100 * d(e.ahogamiento), 2) + " %",
            "Y_{1} = " + con(e.y1, "m"));
  r.formula("b Y_{1}²/2 + Z Y_{1}³/3 + Q²/(g A_{1}) = b Y_{2}²/2 + Z Y_{2}³/3 + Q²/(g A_{2})", "",
            "Y_{2} = " + con(e.y2, "m"));
  r.formula("V_{1}, V_{2}", "", n(d(e.v1)) + " m/s, " + con(e.v2, "m/s"));
  r.formula("F_{r1} = V_{1} / √(g A_{1} / T_{1})", "", n(d(e.fr1)));
  r.formula("Profundidad de la poza", "bajo el canal aguas abajo", con(e.profPoza, "m"));
  r.formula("Elevación del fondo", "", con(e.cotaPoza, "m"));
  Tabla t{"Tipos de tanque amortiguador", {{}}, {}, {izquierda, izquierda, izquierda, izquierda}, {}, {32, 24, 14, 30}};
  const int elegido = filaElegida(e);
  for (int f = 0; f < r.x.tanques.filas(); ++f) {
    std::vector<std::string> fila;
    for (int c = 0; c < r.x.tanques.columnas(); ++c) fila.push_back(r.x.tanques.texto(f, c));
    if (f == 0) {
      t.titulos = {fila};
      continue;
    }
    t.marcas.push_back(f == elegido ? Tabla::Marca::elegida : Tabla::Marca::ninguna);
    t.filas.push_back(std::move(fila));
  }
  r.bloque(std::move(t));
  if (elegido == 0) {
    r.parrafo("No se ha elegido un tipo de tanque.");
    return;
  }
  const std::string cual = r.x.tanques.texto(elegido, 0), causa = r.x.tanques.texto(elegido, 3);
  r.parrafo("Se adopta el tipo " + cual + " (" + causa + ").");
  static constexpr std::array<const char*, 6> reglas = {
      "L = K (Y_{2} − Y_{1})",         "L = K Y_{2}",          "L = K Y_{2}", "L = K Y_{2}",
      "L = 4.5 Y_{2} / F_{r1}^{0.76}", "L = K (Y_{2} − Y_{1})"};
  r.formula(reglas.at(static_cast<std::size_t>(elegido - 1)), elegido == 5 ? "" : "K = " + n(d(e.kLongPoza), 2),
            con(e.longPoza, "m", 2));
}

std::unique_ptr<Ventana> hojaAbierta(std::string_view ventana, MesaInforme& m) {
  if (ventana == "Form22") return std::make_unique<Form22>(m.estado, m.form2, m.navegador);
  if (ventana == "Form5") return std::make_unique<Form5>(m.estado, m.form2, m.navegador);
  if (ventana == "Form21") return std::make_unique<Form21>(m.estado, m.form2, m.navegador);
  return std::make_unique<Form23>(m.estado, m.form2, m.navegador);
}

void hoja(Redaccion& r, const HojaDeBloques& h) {
  const auto ventana = hojaAbierta(h.ventana, r.mesa);
  BocetoRotulado boceto{std::string(h.boceto), anchoHoja, altoHoja, {}};
  std::vector<std::vector<std::string>> filas;
  for (const RotuloHoja& rotulo : h.rotulos) {
    std::string valor(rotulo.texto);
    if (!rotulo.control.empty()) {
      const Label& medida = *ventana->buscar<Label>(rotulo.control);
      valor = medida.Caption;
      filas.push_back({std::string(medida.magnitud.nombre), valor, std::string(medida.magnitud.unidad)});
    }
    boceto.rotulos.push_back({valor, rotulo.x, rotulo.y, rotulo.ancho, rotulo.alto, rotulo.alineacion});
  }
  r.bloque(Figura{ventana->Caption, std::move(boceto), 170, 170.0 * altoHoja / anchoHoja});
  r.tabla("Dimensiones", {"Medida", "Valor", "Unidad"}, std::move(filas), {izquierda, derecha, izquierda});
}

void aireacion(Redaccion& r) {
  const DesignState& e = r.e;
  if (d(e.tipoTransVert) == 0)
    r.parrafo("El aire entra bajo la lámina por la contracción lateral, de " + con(e.longTransVert, "m", 2) +
              " a cada lado: la poza es más ancha que la cresta en esa medida.");
  else
    r.parrafo("El aire entra bajo la lámina por " + n(d(e.numTubos), 0) + " tubos (" + e.tipoTubo + ") de " +
              con(e.diamTubo, "m de diámetro", 4) + " y " + con(e.longTubo, "m de largo", 2) + ".");
  BocetoRotulado boceto{"ventilacion", 0, 0, {}};
  r.bloque(Figura{"Ventilación de la lámina", std::move(boceto), 110, 60});
  if (!(d(e.tipoTanque) == 0)) return;
  const ObstaculosCaida o = obstaculosCaida(r.mesa.estado, minimoBloques(r.mesa.form25.Check1, r.mesa.form25.Text11));
  r.tabla("Obstáculos", {"Medida", "Valor", "Unidad"},
          {{"Número de bloques", n(o.hilera.numero.valor(), 0), ""},
           {"Alto", n(o.hilera.alto.valor()), "m"},
           {"Ancho", n(o.hilera.ancho.valor()), "m"},
           {"Espacio entre bloques", n(o.hilera.hueco.valor()), "m"},
           {"Espacio junto al muro", n(o.hilera.orilla.valor()), "m"},
           {"Largo", n(o.largo.valor()), "m"},
           {"Distancia a la caída", n(o.distancia.valor()), "m"}},
          {izquierda, derecha, izquierda});
}

}  // namespace

void resalto(Redaccion& r) {
  r.capitulo("Resalto y poza disipadora");
  r.intentar([&] { r.x.vertical() ? saltoVertical(r) : salto(r); });
}

void bloques(Redaccion& r) {
  r.capitulo(r.x.vertical() ? "Aireación y obstáculos" : "Bloques del tanque");
  r.intentar([&] {
    if (r.x.vertical()) return aireacion(r);
    if (const auto h = hojaDeBloques(filaElegida(r.e))) return hoja(r, *h);
    r.parrafo("El tipo de tanque no lleva bloques.");
  });
}

void revestimientos(Redaccion& r) {
  const DesignState& e = r.e;
  r.capitulo("Revestimientos y transiciones");
  std::vector<std::vector<std::string>> filas;
  const auto fila = [&](const char* lugar, Single tirante, Single altura, Single espejo) {
    filas.push_back({lugar, n(d(tirante)), n(d(altura) - d(tirante)), n(d(altura), 2), n(d(espejo), 2)});
  };
  fila("Canal aguas arriba", e.ynArriba, e.hArriba, e.espejoArriba);
  if (r.x.rapida()) fila("Rápida", e.yFin, e.hRapida, e.espejoRapida);
  if (!r.x.vertical()) fila("Poza", e.y2, e.hPoza, e.espejoPoza);
  fila("Canal aguas abajo", e.ynAbajo, e.hAbajo, e.espejoAbajo);
  r.tabla("Alturas de revestimiento", {"Lugar", "Tirante (m)", "Bordo libre (m)", "Altura (m)", "Ancho superior (m)"},
          std::move(filas), {izquierda, centro, centro, centro, centro});
  r.formula("L = |T_{1} − T_{2}| / (2 tan Ø)",
            "Ø = " + texto(Round(e.anguloTransicion, 3)) + "°; transición de entrada", con(e.longTransEntrada, "m", 2));
  r.formula("L = |T_{1} − T_{2}| / (2 tan Ø)", "transición de salida, en múltiplos de 0.05",
            con(e.longTransSalida, "m", 2));
  r.apartado("Secciones transversales");
  r.intentar([&] {
    for (Figura& f : secciones(r.x, r.mesa)) r.bloque(std::move(f));
  });
}

void verificacion(Redaccion& r) {
  r.capitulo(r.x.rapida() ? "Verificación de la poza y estabilidad del flujo" : "Verificación de la poza");
  r.apartado("Funcionamiento con diez caudales");
  if (r.tablas.verificacion.filas() > 0) {
    r.tabla("Verificación del funcionamiento de la poza", r.tablas.verificacion);
    const EstiloVerificacion& estilo = r.x.rapida()      ? verificacionRapida
                                       : r.x.inclinada() ? verificacionInclinada
                                                         : verificacionVertical;
    std::string veredicto = VEREDICTOPOZA(r.tablas.verificacion, estilo);
    std::string linea;
    for (const char c : veredicto + "\n") {
      if (c == '\r') continue;
      if (c != '\n') {
        linea += c;
        continue;
      }
      if (!linea.empty()) r.parrafo(linea);
      linea.clear();
    }
  }
  if (!r.x.rapida()) return;
  r.apartado("Estabilidad del flujo en la rápida");
  if (r.tablas.estabilidad.filas() == 0) return r.parrafo("Con estos datos no se puede calcular.");
  r.parrafo(
      "Números de Vedernikov (N_{v}) y Montuori (M) con el caudal de diseño, su mitad y su quinta parte. El flujo es "
      "estable donde N_{v} es menor que 9.201 M + 1.106.");
  r.tabla("Estabilidad del flujo", r.tablas.estabilidad);
}

}  // namespace calvento::redaccion
