#include "activex/conexion_activex.h"

#include <utility>

#include "cad/exigencias.h"

namespace calvento {

namespace {

/// An object that a member must give.
ReferenciaRemota objetoDe(const ValorRemoto& valor, const char* cual) {
  const auto* objeto = std::get_if<ReferenciaRemota>(&valor);
  if (objeto == nullptr || *objeto == nullptr) throw FalloCad(std::string("La aplicación no da ") + cual);
  return *objeto;
}

std::vector<double> terna(const PuntoCad& p) {
  exigir(p);
  return {p.x, p.y, p.z};
}

}  // namespace

DocumentoCad& DibujoActiveX::ActiveDocument() {
  documento_ = objetoDe(aplicacion_->leer("ActiveDocument"), "el dibujo abierto");
  return *this;
}

void DibujoActiveX::soltar() {
  capa_.objeto = nullptr;
  ultima_ = espacio_ = documento_ = aplicacion_ = nullptr;
}

CapaCad& DibujoActiveX::capa(const std::string& nombre) {
  const ReferenciaRemota base = objetoDe(documento_->leer("Database"), "la base del dibujo");
  const ReferenciaRemota capas = objetoDe(base->leer("Layers"), "las capas del dibujo");
  capa_.objeto = objetoDe(capas->llamar("Add", {nombre}), "la capa que se le pide");
  return capa_;
}

EspacioModelo& DibujoActiveX::ModelSpace() {
  const ReferenciaRemota base = objetoDe(documento_->leer("Database"), "la base del dibujo");
  espacio_ = objetoDe(base->leer("ModelSpace"), "el espacio modelo del dibujo");
  return *this;
}

void DibujoActiveX::anadir(const char* metodo, const std::vector<ValorRemoto>& argumentos) {
  ultima_ = objetoDe(espacio_->llamar(metodo, argumentos), "lo que se le pide dibujar");
}

TextoCad& DibujoActiveX::AddText(const std::string& texto, const PuntoCad& en, double altura) {
  anadir("AddText", {texto, terna(en), exigirAlturaTexto(altura)});
  return texto_;
}

EntidadCad& DibujoActiveX::AddLine(const PuntoCad& a, const PuntoCad& b) {
  anadir("AddLine", {terna(a), terna(b)});
  return entidad_;
}

EntidadCad& DibujoActiveX::AddPolyline(const std::vector<double>& vertices) {
  anadir("AddPolyline", {exigirVertices(vertices)});
  return entidad_;
}

EntidadCad& DibujoActiveX::AddCircle(const PuntoCad& centro, double radio) {
  anadir("AddCircle", {terna(centro), exigirRadio(radio)});
  return entidad_;
}

CotaCad& DibujoActiveX::AddDimAligned(const PuntoCad& a, const PuntoCad& b, const PuntoCad& texto) {
  anadir("AddDimAligned", {terna(a), terna(b), terna(texto)});
  return cota_;
}

ConexionAplicacion::Presencia ConexionActiveX::presencia() {
  try {
    if (sistema_.abierta(claseCad)) return Presencia::abierta;
    return sistema_.registrada(claseCad) ? Presencia::instalada : Presencia::ninguna;
  } catch (const FalloCad&) {
    return Presencia::ninguna;  // nobody has asked for it yet
  }
}

AplicacionCad* ConexionActiveX::dibujoDe(ReferenciaRemota aplicacion) {
  if (aplicacion != nullptr) return &dibujo_.emplace(std::move(aplicacion));
  error_ = "La aplicación abierta no se deja manejar";
  return nullptr;
}

AplicacionCad* ConexionActiveX::obtener() {
  error_.clear();
  return dibujoDe(sistema_.obtener(claseCad));
}

AplicacionCad* ConexionActiveX::crear() {
  error_.clear();
  try {
    return dibujoDe(sistema_.crear(claseCad));
  } catch (const FalloCad& fallo) {
    error_ = fallo.what();
    return nullptr;
  }
}

}  // namespace calvento
