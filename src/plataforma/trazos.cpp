#include "plataforma/trazos.h"

#include <bit>
#include <stdexcept>

namespace calvento {

namespace {

constexpr std::string_view marca = "CVT1";

/// Takes values off the front of the data; std::out_of_range where there are none left.
class Lector {
 public:
  explicit Lector(std::string_view datos) : datos_(datos) {}
  std::string_view resto() const { return datos_; }

  unsigned octeto() { return static_cast<unsigned char>(tomar(1)[0]); }
  unsigned corto() {
    const unsigned alto = octeto();
    return alto << 8 | octeto();
  }
  double real() {
    const std::uint32_t alto = corto();
    return std::bit_cast<float>(alto << 16 | corto());
  }
  Punto punto() {
    const double x = real();
    return {x, real()};
  }
  std::string_view cadena() { return tomar(corto()); }
  Color color() {
    const unsigned rojo = octeto(), verde = octeto();
    return {static_cast<std::int32_t>(rojo | verde << 8 | octeto() << 16)};
  }

  Brocha brocha() {
    Brocha b;
    b.clase = static_cast<Brocha::Clase>(octeto());
    if (b.clase == Brocha::Clase::color) b.color = color();
    if (b.clase != Brocha::Clase::mezcla) return b;
    b.desde = punto();
    b.hasta = punto();
    for (unsigned n = octeto(); n > 0; --n) {
      const double lugar = real();
      b.paradas.push_back({lugar, color()});
    }
    return b;
  }

  PlumaTrazo pluma() {
    PlumaTrazo p;
    p.brocha = brocha();
    if (p.brocha.clase == Brocha::Clase::nada) return p;
    p.ancho = real();
    p.punta = static_cast<PlumaTrazo::Punta>(octeto());
    p.juntas = static_cast<PlumaTrazo::Union>(octeto());
    for (unsigned n = octeto(); n > 0; --n) p.guiones.push_back(real());
    return p;
  }

  std::vector<Paso> pasos() {
    std::vector<Paso> r(corto());
    for (Paso& p : r) {
      p.orden = static_cast<char>(octeto());
      const std::size_t cuantos = p.orden == 'C' ? 3 : p.orden == 'Z' ? 0 : 1;
      for (std::size_t i = 0; i < cuantos; ++i) p.puntos[i] = punto();
    }
    return r;
  }

  RotuloTrazo rotulo() {
    RotuloTrazo r;
    r.brocha = brocha();
    r.en = punto();
    r.tamano = real();
    r.giro = real();
    r.ancla = static_cast<RotuloTrazo::Ancla>(octeto());
    const unsigned letra = octeto();
    r.negrita = (letra & 1U) != 0;
    r.cursiva = (letra & 2U) != 0;
    r.familias = cadena();
    r.texto = cadena();
    return r;
  }

 private:
  std::string_view tomar(std::size_t cuantos) {
    if (datos_.size() < cuantos) throw std::out_of_range("trazos");
    const std::string_view parte = datos_.substr(0, cuantos);
    datos_.remove_prefix(cuantos);
    return parte;
  }

  std::string_view datos_;
};

}  // namespace

Trazos::Trazos(std::string_view datos) {
  if (!datos.starts_with(marca)) return;
  try {
    Lector lector(datos.substr(marca.size()));
    for (double& m : medidas_) m = lector.real();
    if (caja().ancho > 0 && caja().alto > 0) cuerpo_ = lector.resto();
  } catch (const std::out_of_range&) {
  }
}

void Trazos::repetir(PintorTrazos& pintor) const {
  try {
    for (Lector lector(cuerpo_); !lector.resto().empty();) {
      if (lector.octeto() == 'T') {
        pintor.rotulo(lector.rotulo());
      } else {
        const Brocha relleno = lector.brocha();
        const PlumaTrazo pluma = lector.pluma();
        pintor.camino(lector.pasos(), relleno, pluma);
      }
    }
  } catch (const std::out_of_range&) {
  }
}

}  // namespace calvento
