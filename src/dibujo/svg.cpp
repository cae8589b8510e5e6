#include "dibujo/svg.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <map>
#include <numbers>
#include <stdexcept>

#include "comun/xml.h"
#include "dibujo/repeticion.h"
#include "modelo/codificacion.h"
#include "modelo/guardado.h"
#include "modelo/rutas.h"
#include "plataforma/medidas.h"

namespace calvento {

namespace {

constexpr const char* familias = "Arial, Liberation Sans, Helvetica, Nimbus Sans, DejaVu Sans, sans-serif";

/// Hundredths of a pixel, no noughts at the end.
std::string corto(double v) {
  std::array<char, 32> cifras{};
  const double redondo = std::round(std::clamp(v, -1e9, 1e9) * 100) / 100 + 0.0;
  const auto fin = std::to_chars(cifras.data(), cifras.data() + cifras.size(), redondo).ptr;
  return {cifras.data(), fin};
}

std::string hex(Color color) {
  // desktop colours have no place on paper: such ink is black
  const Color c = color.esDelSistema() ? color::negro : color;
  std::string s = "#";
  for (const int parte : {c.rojo(), c.verde(), c.azul()})
    for (const int cifra : {parte >> 4, parte & 15}) s += "0123456789abcdef"[cifra];
  return s;
}

std::string atributo(std::string_view nombre, const std::string& valor) {
  return ' ' + std::string(nombre) + "=\"" + valor + '"';
}
std::string atributo(std::string_view nombre, double valor) { return atributo(nombre, corto(valor)); }

std::string lista(const std::vector<double>& numeros) {
  std::string s;
  for (const double n : numeros) s += (s.empty() ? "" : " ") + corto(n);
  return s;
}

std::string contenido(const std::string& texto) { return comoXml(aUtf8(texto)); }

/// The element's end: blanks that a reader would drop stay.
std::string contenidoDeTexto(const std::string& texto) {
  const bool blancos = texto.find("  ") != std::string::npos || texto.starts_with(' ') || texto.ends_with(' ');
  return (blancos ? " xml:space=\"preserve\">" : ">") + contenido(texto) + "</text>\n";
}

std::string girado(double grados, Punto en) {
  return grados == 0 ? "" : atributo("transform", "rotate(" + lista({grados, en.x, en.y}) + ')');
}

struct Ventana {
  double izquierda = 0, arriba = 0, ancho = 0, alto = 0;
};

std::string conHoja(const HojaSvg& hoja, const Ventana& v, double propio, const std::string& cuerpo) {
  const double ancho = hoja.ancho > 0 ? hoja.ancho : propio;
  std::string s = hoja.dePagina ? "" : "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  s += "<svg xmlns=\"http://www.w3.org/2000/svg\"" + atributo("width", ancho) +
       atributo("height", ancho * v.alto / v.ancho) +
       atributo("viewBox", lista({v.izquierda, v.arriba, v.ancho, v.alto})) + ">\n";
  s += "<title>" + contenido(hoja.titulo) + "</title>\n";
  if (!hoja.descripcion.empty()) s += "<desc>" + contenido(hoja.descripcion) + "</desc>\n";
  return s + cuerpo + "</svg>\n";
}

// -- canvases ---------------------------------------------------------------------------------------------------------

class PapelSvg : public Papel {
 public:
  explicit PapelSvg(bool conNombres) : conNombres_(conNombres) {}

  void capa(const std::string& nombre) override {
    cerrar();
    apertura_ = texto_.size();
    const int vez = veces_[nombre] + 1;
    const std::string distinto = vez == 1 ? nombre : nombre + '-' + std::to_string(vez);
    texto_ += "<g" + (conNombres_ ? atributo("id", contenido(distinto)) : "") +
              atributo("class", "capa " + contenido(nombre)) + ">\n";
    abierta_ = nombre;
    dentro_ = texto_.size();
  }

  void polilinea(const Puntos& p, const TrazoHoja& trazo) override {
    if (p.size() == 2)
      texto_ += "<line" + atributo("x1", p[0].x) + atributo("y1", p[0].y) + atributo("x2", p[1].x) +
                atributo("y2", p[1].y) + linea(trazo) + "/>\n";
    else
      texto_ += "<polyline fill=\"none\"" + atributo("points", lugares(p)) + linea(trazo) + "/>\n";
  }

  void rayas(const std::vector<Raya>& rayas, const TrazoHoja& trazo) override {
    if (rayas.empty()) return;
    std::string d;
    for (const Raya& r : rayas) d += 'M' + corto(r.a.x) + ' ' + corto(r.a.y) + 'L' + corto(r.b.x) + ' ' + corto(r.b.y);
    texto_ += "<path" + atributo("d", d) + linea(trazo) + "/>\n";
  }

  void area(const Puntos& puntos, const TrazoHoja& trazo, std::optional<Color> relleno) override {
    texto_ += "<polygon fill-rule=\"evenodd\"" + atributo("points", lugares(puntos)) + dentro(relleno) + linea(trazo) +
              "/>\n";
  }

  bool circulo(Punto c, double radio, const TrazoHoja& trazo, std::optional<Color> relleno) override {
    texto_ += "<circle" + atributo("cx", c.x) + atributo("cy", c.y) + atributo("r", radio) + dentro(relleno) +
              linea(trazo) + "/>\n";
    return true;
  }

  void texto(const TextoHoja& t) override {
    const Letra& letra = t.texto.letra;
    // SVG places a text by its base line
    const double a = letra.angulo * std::numbers::pi / 180, bajada = ascensoLetra * t.tamano;
    const Punto en{t.en.x + bajada * std::sin(a), t.en.y + bajada * std::cos(a)};
    texto_ +=
        "<text" + atributo("x", en.x) + atributo("y", en.y) + girado(-letra.angulo, en) +
        atributo("font-family", contenido(letra.familia == "Arial" ? familias : letra.familia + ", " + familias)) +
        atributo("font-size", t.tamano) + (letra.negrita ? " font-weight=\"bold\"" : "") +
        (letra.subrayada ? " text-decoration=\"underline\"" : "") + atributo("fill", hex(t.texto.color)) +
        contenidoDeTexto(t.texto.texto);
  }

  std::string terminar() {
    cerrar();
    return std::move(texto_);
  }

 private:
  /// A layer of which nothing lies on the sheet goes.
  void cerrar() {
    if (abierta_ && texto_.size() == dentro_) {
      texto_.resize(apertura_);
    } else if (abierta_) {
      texto_ += "</g>\n";
      ++veces_[*abierta_];
    }
    abierta_.reset();
  }
  static std::string lugares(const Puntos& puntos) {
    std::string s;
    for (const Punto& p : puntos) s += (s.empty() ? "" : " ") + corto(p.x) + ',' + corto(p.y);
    return s;
  }
  static std::string dentro(std::optional<Color> relleno) { return atributo("fill", relleno ? hex(*relleno) : "none"); }
  static std::string linea(const TrazoHoja& t) {
    return atributo("stroke", hex(t.color)) + (t.ancho == 1 ? "" : atributo("stroke-width", t.ancho)) +
           (t.guiones.empty() ? "" : atributo("stroke-dasharray", lista(t.guiones))) + " stroke-linejoin=\"round\"";
  }

  bool conNombres_;
  std::optional<std::string> abierta_;  ///< the layer, and where it starts
  std::size_t apertura_ = 0, dentro_ = 0;
  std::map<std::string, int> veces_;
  std::string texto_;
};

// -- sketches ---------------------------------------------------------------------------------------------------------

class TrazosSvg : public PintorTrazos {
 public:
  void camino(const std::vector<Paso>& pasos, const Brocha& relleno, const PlumaTrazo& pluma) override {
    std::string d;
    for (const Paso& p : pasos) {
      d += p.orden;
      const std::size_t cuantos = p.orden == 'C' ? 3 : p.orden == 'Z' ? 0 : 1;
      for (std::size_t i = 0; i < cuantos; ++i)
        d += (i > 0 ? " " : "") + corto(p.puntos.at(i).x) + ' ' + corto(p.puntos.at(i).y);
    }
    const std::string dentro = atributo("fill", tinta(relleno)), borde = linea(pluma);
    texto += "<path" + atributo("d", d) + dentro + borde + "/>\n";
  }

  void rotulo(const RotuloTrazo& r) override {
    constexpr std::array anclas{"start", "middle", "end"};
    const std::string color = tinta(r.brocha);
    texto += "<text" + atributo("x", r.en.x) + atributo("y", r.en.y) + girado(r.giro, r.en) +
             atributo("font-family", contenido(r.familias)) + atributo("font-size", r.tamano) +
             (r.negrita ? " font-weight=\"bold\"" : "") + (r.cursiva ? " font-style=\"italic\"" : "") +
             atributo("text-anchor", anclas.at(static_cast<std::size_t>(r.ancla) % anclas.size())) +
             atributo("fill", color) + contenidoDeTexto(r.texto);
  }

  std::string texto;

 private:
  /// A blend goes before what it paints, named by what it is: pictures of one page share their names.
  std::string tinta(const Brocha& b) {
    if (b.clase == Brocha::Clase::nada) return "none";
    if (b.clase == Brocha::Clase::color) return hex(b.color);
    std::string nombre = "mezcla", paradas;
    for (const double v : {b.desde.x, b.desde.y, b.hasta.x, b.hasta.y}) nombre += '_' + corto(v);
    for (const Brocha::Parada& p : b.paradas) {
      paradas += "<stop" + atributo("offset", p.lugar) + atributo("stop-color", hex(p.color)) + "/>";
      nombre += '_' + corto(p.lugar) + hex(p.color).substr(1);
    }
    if (++mezclas_[nombre] == 1)
      texto += "<linearGradient" + atributo("id", nombre) + " gradientUnits=\"userSpaceOnUse\"" +
               atributo("x1", b.desde.x) + atributo("y1", b.desde.y) + atributo("x2", b.hasta.x) +
               atributo("y2", b.hasta.y) + '>' + paradas + "</linearGradient>\n";
    return "url(#" + nombre + ')';
  }

  std::string linea(const PlumaTrazo& p) {
    if (p.brocha.clase == Brocha::Clase::nada) return {};
    constexpr std::array puntas{"butt", "round", "square"}, juntas{"miter", "round", "bevel"};
    const auto punta = static_cast<std::size_t>(p.punta) % puntas.size();
    const auto junta = static_cast<std::size_t>(p.juntas) % juntas.size();
    return atributo("stroke", tinta(p.brocha)) + atributo("stroke-width", p.ancho) +
           (punta == 0 ? "" : atributo("stroke-linecap", puntas.at(punta))) +
           (junta == 0 ? "" : atributo("stroke-linejoin", juntas.at(junta))) +
           (p.guiones.empty() ? "" : atributo("stroke-dasharray", lista(p.guiones)));
  }

  std::map<std::string, int> mezclas_;
};

}  // namespace

std::string comoSvg(const Lienzo& lienzo, const HojaSvg& hoja) {
  const double propio = lienzo.anchoPixeles(), ancho = hoja.ancho > 0 ? hoja.ancho : propio;
  const Marco destino{0, 0, ancho, ancho * lienzo.altoPixeles() / std::max(propio, 1.0)};
  PapelSvg papel(!hoja.dePagina);
  repetir(lienzo, destino, papel);
  return conHoja(hoja, {0, 0, destino.derecha, destino.abajo}, propio,
                 "<rect" + atributo("width", destino.derecha) + atributo("height", destino.abajo) +
                     " fill=\"#ffffff\"/>\n" + papel.terminar());
}

void guardarSvg(const Lienzo& lienzo, const HojaSvg& hoja, const std::string& archivo) {
  if (lienzo.anchoPixeles() <= 0 || lienzo.altoPixeles() <= 0) throw std::runtime_error("El dibujo no tiene tamaño");
  guardarEntero(comoRuta(archivo), comoSvg(lienzo, hoja));
}

std::string comoSvg(const Trazos& trazos, const std::vector<RotuloTrazo>& encima, const HojaSvg& hoja) {
  if (!trazos.valido()) return {};
  TrazosSvg pintor;
  trazos.repetir(pintor);
  for (const RotuloTrazo& r : encima) pintor.rotulo(r);
  const EscalaLienzo c = trazos.caja();
  return conHoja(hoja, {c.izquierda, c.arriba, c.ancho, c.alto}, trazos.ancho(), pintor.texto);
}

}  // namespace calvento
