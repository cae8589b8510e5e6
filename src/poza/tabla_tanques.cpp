#include "poza/tabla_tanques.h"

#include <array>

#include "comun/numeros.h"
#include "poza/reglas_bloques.h"

namespace calvento {

namespace {

constexpr const char* formatoTabla =
    "^                   Tipo de Disipador                   |^        Número de Froude        |^   Factibilidad   |^ "
    "                                     Causas                                       ";
constexpr int filas = 7;
constexpr int columnaVeredicto = 2;
constexpr int columnaCausa = 3;

constexpr const char* factible = "Factible";
constexpr const char* noFactible = "No Factible";
// rows 3 and 4 carry a leading blank here, and are meant to
constexpr const char* noFactibleSangrado = " No Factible";

std::string n3(Single x) { return texto(Round(x, 3)); }

/// Writes verdict and cause of one row.
class Juez {
 public:
  explicit Juez(Rejilla& tabla) : tabla_(tabla) {}
  void si(int fila, const std::string& causa) { poner(fila, factible, causa); }
  void no(int fila, const std::string& causa, const char* veredicto = noFactible) { poner(fila, veredicto, causa); }

 private:
  void poner(int fila, const char* veredicto, const std::string& causa) {
    tabla_.poner(fila, columnaVeredicto, veredicto);
    tabla_.poner(fila, columnaCausa, causa);
  }
  Rejilla& tabla_;
};

void juzgarSaf(Juez& juez, const DesignState& e) {
  const Single minimo = 1.7;
  if (e.fr1 > minimo && e.fr1 < 17 && e.Q < 3)
    juez.si(5, "Fr= " + n3(e.fr1));
  else
    juez.no(5, e.fr1 < minimo ? "Fr < 1.7" : e.fr1 > 17 ? "Fr > 17" : e.Q > 3 ? "Q > 3.0 m³/s" : "");
}

void juzgarSinObstaculos(Juez& juez, const DesignState& e) {
  if (e.fr1 > 4.5 && e.fr1 < 15)
    juez.si(1, "Fr= " + n3(e.fr1) + "; Y1= " + n3(e.y1) + " m");
  else
    juez.no(1, e.fr1 < 4.5 ? "Fr < 4.5" : e.fr1 > 15 ? "Fr > 15" : "");
}

void juzgarUsbr1(Juez& juez, const DesignState& e) {
  if (e.fr1 >= 2.5 && e.fr1 < 4.5)
    juez.si(2, "Fr= " + n3(e.fr1) + "; se recomienda elevar el Número de Froude");
  else
    juez.no(2, e.fr1 < 2.5 ? "Fr < 2.5" : e.fr1 > 4.5 ? "Fr > 4.5" : "");
}

/// The two types share the Froude range and are told apart by the velocity alone; at exactly the limit neither row is
/// written.
void juzgarUsbr2y3(Juez& juez, const DesignState& e, const CriterioTanques& criterio) {
  const Single limite = 15.24;
  const std::string v = ";  V= " + n3(e.v1) + " m/s";
  if (e.fr1 < 4.5) {
    juez.no(3, "Fr < 4.5", noFactibleSangrado);
    juez.no(4, "Fr < 4.5", noFactibleSangrado);
  } else if (criterio.velocidad < limite) {
    juez.si(3, criterio.rotuloFroude + n3(e.fr1) + v);
    juez.no(4, "V < 15.24 m/s");
  } else if (criterio.velocidad > limite) {
    juez.si(4, "Fr= " + n3(e.fr1) + v);
    juez.no(3, "V > 15.24 m/s");
  }
}

}  // namespace

void prepararTablaTanques(Rejilla& tabla) {
  static constexpr std::array<std::array<const char*, 2>, 6> tipos = {{
      {"TANQUE RECTANG. SIN OBSTACULOS", "4.5 < Fr < 15"},
      {"USBR - I", "2.5 <= Fr <4.5"},
      {"USBR - II", "Fr >= 4.5 y V < 15.24 m/s"},
      {"USBR - III", "Fr >= 4.5 y V > 15.24 m/s"},
      {"TANQUE SAF", "1.7 <= Fr <= 17 y Q < 3 m³/s"},
      {"TANQUE SECCION TRAPEZOIDAL", ""},
  }};
  tabla.formatoColumnas(formatoTabla);
  tabla.dimensionar(filas, tabla.columnas());
  for (int fila = 1; fila < filas; ++fila)
    for (int c = 0; c < 2; ++c)
      tabla.poner(fila, c, tipos[static_cast<std::size_t>(fila - 1)][static_cast<std::size_t>(c)]);
  pintarTabla(tabla);
}

void SELECCIONARTANQUE(Rejilla& tabla, const DesignState& e, const Form2& parametros, const CriterioTanques& criterio) {
  for (int fila = 1; fila < filas; ++fila)
    for (const int c : {columnaVeredicto, columnaCausa}) tabla.poner(fila, c, {});
  Juez juez(tabla);
  if (criterio.taludPoza == 0) {
    juez.no(6, "Tanque Rectangular");
    juzgarSaf(juez, e);
    juzgarSinObstaculos(juez, e);
    juzgarUsbr1(juez, e);
    juzgarUsbr2y3(juez, e, criterio);
  } else {
    for (int fila = 1; fila <= 5; ++fila) juez.no(fila, "Tanque Trapezoidal");
    juez.si(6, "Long. Tanque= " + texto(Val(parametros.Text10.Text)) + "(Y2-Y1)");
  }
}

bool esFactible(const Rejilla& tabla, int fila) { return tabla.texto(fila, columnaVeredicto) == factible; }

int filaElegida(const DesignState& e) {
  for (int fila = 1; fila < filas; ++fila)
    if (e.tipoTanque == fila) return fila;
  return 0;
}

bool longitudTanque(const DatosLongitud& d, const Form2& p, Single& K, Single& longitud,
                    std::optional<Real> kTrapezoidal) {
  const auto conK = [&K](const TextBox& campo) {
    K = Val(campo.Text);
    return K;
  };
  if (d.tipo == 1)
    longitud = (d.y2 - d.y1) * conK(p.Text1);
  else if (d.tipo == 2)
    longitud = conK(p.Text2) * d.y2;
  else if (d.tipo == 3)
    longitud = conK(p.Text3) * d.y2;
  else if (d.tipo == 4)
    longitud = conK(p.Text4) * d.y2;
  else if (d.tipo == 5)
    longitud = d.y2 * 4.5 / potencia(d.fr1, 0.76);
  else if (d.tipo == 6)
    longitud = (d.y2 - d.y1) * (kTrapezoidal ? K = *kTrapezoidal : conK(p.Text10));
  else
    return false;
  return true;
}

bool longitudPoza(DesignState& e, const Form2& p) {
  return longitudTanque({e.tipoTanque, e.y1, e.y2, e.fr1}, p, e.kLongPoza, e.longPoza);
}

void LONGPOZA(DesignState& estado, const Form2& parametros, Dialogos& dialogos) {
  if (!longitudPoza(estado, parametros)) dialogos.aviso("Seleccione el Tipo de Tanque Amortiguador a utilizar");
}

bool tieneBloques(const DesignState& e) { return tanqueConBloques(e.tipoTanque).has_value(); }

void pintarTabla(Rejilla& tabla, int filaElegida) {
  for (int c = 0; c < tabla.columnas(); ++c) {
    tabla.pintar(0, c, color::caraBoton);
    for (int fila = 1; fila < filas; ++fila)
      tabla.pintar(fila, c, fila == filaElegida ? color::celdaElegida : color::celda);
  }
}

void limpiarTabla(Rejilla& tabla) {
  for (int fila = 1; fila < filas; ++fila)
    for (const int c : {columnaVeredicto, columnaCausa}) tabla.poner(fila, c, {});
  pintarTabla(tabla);
}

MenuBloques pulsarTabla(Rejilla& tabla, int fila, DesignState& e, const Form2& parametros, bool enRejillaObra) {
  if (fila < 0 || fila >= filas) return MenuBloques::igual;
  pintarTabla(tabla, fila);
  e.tipoTanque = fila;
  // the header row chooses nothing: the length stays
  if (fila == 0) return MenuBloques::igual;
  pasandoFallos([&] { longitudPoza(e, parametros); });
  if (enRejillaObra) pasandoFallos([&] { e.longPoza = enRejilla(e.longPoza); });
  return tieneBloques(e) ? MenuBloques::activo : MenuBloques::inactivo;
}

}  // namespace calvento
