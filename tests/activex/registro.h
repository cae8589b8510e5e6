#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "activex/conexion_activex.h"
#include "activex/llamada.h"
#include "aplicacion/aplicacion.h"
#include "apoyo/carpeta_prueba.h"
#include "apoyo/dialogos_guion.h"
#include "cad/form12.h"
#include "cad/form18.h"
#include "cad/form9.h"
#include "plataforma/sin_pantalla.h"

namespace calvento {

/// A design of ejemplos/, with the window that exports it to any connection.
struct DisenoExportable {
  explicit DisenoExportable(const std::string& archivo) {
    aplicacion.abrirProyecto(archivo);
    const char clase = archivo.back();  // .cvr, .cvi, .cvv
    aplicacion.cargar(clase == 'r' ? "Form3" : clase == 'i' ? "Form4" : "Form17");
    ventana = clase == 'r' ? "Form12" : clase == 'i' ? "Form9" : "Form18";
  }
  /// Sends it; what the window says of it at the end.
  std::string exportar(const DestinosCad& destinos) {
    auto& e = aplicacion.estado;
    const auto correr = [](MarcoExportar&& f) {
      f.Check1.Value = true;
      f.Command3_Click();
      return f.motivo();
    };
    if (ventana == "Form18")
      return correr(Form18(e, *aplicacion.cargar<Form25>("Form25"), dialogos, aplicacion, destinos));
    auto& p = *aplicacion.cargar<Form2>("Form2");
    if (ventana == "Form9") return correr(Form9(e, p, dialogos, aplicacion, destinos));
    return correr(Form12(e, p, dialogos, aplicacion, destinos));
  }

  DialogosGuion dialogos;
  SinPantalla pantalla;
  Aplicacion aplicacion{dialogos, pantalla};
  std::string ventana;
};

/// A drawing in memory beside the one that is tested.
struct ConexionFija : ConexionCad {
  explicit ConexionFija(const std::string& archivo) : dibujo(archivo) {}
  AplicacionCad* obtener() override { return &dibujo; }
  AplicacionCad* crear() override { return nullptr; }
  std::string error() const override { return {}; }
  DibujoDxf dibujo;
};

/// What must have been called for what a DXF drawing holds, by the public names of the object model.
inline std::vector<std::string> llamadasDe(const DatosDxf& dxf) {
  std::vector<std::string> r = {comoPuesta("Application", "Visible", true)};
  const auto camino = [&r](const char* hasta) {
    r.insert(r.end(), {"Application.ActiveDocument", "ActiveDocument.Database", std::string("Database.") + hasta});
  };
  const auto v = [](const PuntoCad& p) { return std::vector<double>{p.x, p.y, p.z}; };
  for (const auto& [nombre, color] : dxf.capas) {
    camino("Layers");
    r.push_back(comoLlamada("Layers", "Add", {nombre}));
    r.push_back(comoPuesta("Add", "color", color));
  }
  for (const EntidadDxf& e : dxf.entidades) {
    camino("ModelSpace");
    std::string metodo;
    const auto anadir = [&](const char* cual, const std::vector<ValorRemoto>& argumentos) {
      r.push_back(comoLlamada("ModelSpace", metodo = cual, argumentos));
      r.push_back(comoPuesta(metodo, "Layer", e.capa));
    };
    if (const auto* l = std::get_if<LineaDxf>(&e.forma)) anadir("AddLine", {v(l->a), v(l->b)});
    if (const auto* c = std::get_if<CirculoDxf>(&e.forma)) anadir("AddCircle", {v(c->centro), c->radio});
    if (const auto* p = std::get_if<PolilineaDxf>(&e.forma)) {
      std::vector<double> todos;
      for (const PuntoCad& q : p->vertices) todos.insert(todos.end(), {q.x, q.y, q.z});
      anadir("AddPolyline", {todos});
    }
    if (const auto* t = std::get_if<TextoDxf>(&e.forma)) {
      anadir("AddText", {t->texto, v(t->en), t->altura});
      if (t->giro != 0) r.push_back(comoPuesta(metodo, "Rotation", t->giro));
    }
    if (const auto* c = std::get_if<CotaDxf>(&e.forma)) {
      anadir("AddDimAligned", {v(c->a), v(c->b), v(c->texto)});
      r.push_back(comoPuesta(metodo, "ArrowheadSize", c->flecha));
      r.push_back(comoPuesta(metodo, "ExtensionLineExtend", c->extension));
      r.push_back(comoPuesta(metodo, "ExtensionLineOffset", c->separacion));
      r.push_back(comoPuesta(metodo, "TextHeight", c->altura));
      r.push_back(comoPuesta(metodo, "VerticalTextPosition", c->posicion));
    }
  }
  return r;
}

}  // namespace calvento
