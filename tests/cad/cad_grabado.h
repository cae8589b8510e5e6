#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "cad/aplicacion_cad.h"
#include "plataforma/lienzo.h"

namespace calvento {

/// What a CAD application was asked for, written down in its order. An entity is one record; what is set on it later is
/// written into that record. The n-th creation of an entity can be made to fail.
class CadGrabado : public ConexionCad, AplicacionCad, DocumentoCad, EspacioModelo {
 public:
  enum class Clase { texto, linea, polilinea, circulo, cota };
  struct Entidad {
    Clase clase;
    std::vector<Punto> puntos;
    std::string texto;
    double medida = 0;  ///< height of a text, radius of a circle
    std::string capa;
    double giro = 0;
    std::vector<double> propiedades;  ///< of a dimension, in the order they were set
    double avance = 0;                ///< what the progress bar showed
  };
  std::vector<Entidad> entidades;
  /// "obtener", "crear", "visible 1", "capa RAS 1", "soltar", and "entidades" once for all of them in a row.
  std::vector<std::string> llamadas;

  bool hayInstancia = true;   ///< one that can be attached to
  bool sePuedeCrear = false;  ///< one that can be started
  bool obtenerFalla = false;  ///< attaching raises
  std::size_t fallaEn = 0;    ///< the entity of this number (from 1) is refused
  bool soltarFalla = false;
  std::function<double()> avance;

  std::vector<Entidad> de(const std::string& capa, Clase clase) const {
    std::vector<Entidad> r;
    for (const Entidad& e : entidades)
      if (e.capa == capa && e.clase == clase) r.push_back(e);
    return r;
  }

  // ConexionCad
  AplicacionCad* obtener() override {
    llamadas.emplace_back("obtener");
    if (obtenerFalla) throw FalloCad("no hay nada");
    return hayInstancia ? this : nullptr;
  }
  AplicacionCad* crear() override {
    llamadas.emplace_back("crear");
    return sePuedeCrear ? this : nullptr;
  }
  std::string error() const override { return "no está instalado"; }

 private:
  struct Asa : TextoCad {
    explicit Asa(CadGrabado& c) : cad(c) {}
    void Layer(const std::string& capa) override { cad.entidades.back().capa = capa; }
    void Rotation(double r) override { cad.entidades.back().giro = r; }
    CadGrabado& cad;
  };
  struct AsaCota : CotaCad {
    explicit AsaCota(CadGrabado& c) : cad(c) {}
    void Layer(const std::string& capa) override { cad.entidades.back().capa = capa; }
    void ArrowheadSize(double v) override { poner(v); }
    void ExtensionLineExtend(double v) override { poner(v); }
    void ExtensionLineOffset(double v) override { poner(v); }
    void TextHeight(double v) override { poner(v); }
    void VerticalTextPosition(int v) override { poner(v); }
    void poner(double v) { cad.entidades.back().propiedades.push_back(v); }
    CadGrabado& cad;
  };
  struct AsaCapa : CapaCad {
    explicit AsaCapa(CadGrabado& c) : cad(c) {}
    void color(int indice) override { cad.llamadas.back() += " " + std::to_string(indice); }
    CadGrabado& cad;
  };

  void anadir(Entidad e) {
    if (llamadas.empty() || llamadas.back() != "entidades") llamadas.emplace_back("entidades");
    if (entidades.size() + 1 == fallaEn) throw FalloCad("rechazado");
    if (avance) e.avance = avance();
    entidades.push_back(std::move(e));
  }
  static Punto plano(const PuntoCad& p) { return p.z == 0 ? Punto{p.x, p.y} : Punto{sinValor, sinValor}; }

  void Visible(bool v) override { llamadas.push_back(v ? "visible 1" : "visible 0"); }
  DocumentoCad& ActiveDocument() override { return *this; }
  void soltar() override {
    llamadas.emplace_back("soltar");
    if (soltarFalla) throw FalloCad("disco lleno");
  }
  CapaCad& capa(const std::string& nombre) override {
    llamadas.push_back("capa " + nombre);
    return asaCapa_;
  }
  EspacioModelo& ModelSpace() override { return *this; }
  TextoCad& AddText(const std::string& texto, const PuntoCad& en, double altura) override {
    anadir({Clase::texto, {plano(en)}, texto, altura, {}, 0, {}, 0});
    return asa_;
  }
  EntidadCad& AddLine(const PuntoCad& a, const PuntoCad& b) override {
    anadir({Clase::linea, {plano(a), plano(b)}, {}, 0, {}, 0, {}, 0});
    return asa_;
  }
  EntidadCad& AddPolyline(const std::vector<double>& v) override {
    Entidad e{Clase::polilinea, {}, {}, 0, {}, 0, {}, 0};
    for (std::size_t i = 0; i + 2 < v.size(); i += 3) e.puntos.push_back(plano({v[i], v[i + 1], v[i + 2]}));
    anadir(std::move(e));
    return asa_;
  }
  EntidadCad& AddCircle(const PuntoCad& centro, double radio) override {
    anadir({Clase::circulo, {plano(centro)}, {}, radio, {}, 0, {}, 0});
    return asa_;
  }
  CotaCad& AddDimAligned(const PuntoCad& a, const PuntoCad& b, const PuntoCad& texto) override {
    anadir({Clase::cota, {plano(a), plano(b), plano(texto)}, {}, 0, {}, 0, {}, 0});
    return asaCota_;
  }

  Asa asa_{*this};
  AsaCota asaCota_{*this};
  AsaCapa asaCapa_{*this};
};

}  // namespace calvento
