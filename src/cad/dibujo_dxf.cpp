#include "cad/dibujo_dxf.h"

#include <algorithm>
#include <utility>

#include "cad/escritor_dxf.h"
#include "cad/exigencias.h"
#include "modelo/guardado.h"
#include "modelo/rutas.h"

namespace calvento {

DibujoDxf::DibujoDxf(std::string archivo) : archivo_(std::move(archivo)) {}

void DibujoDxf::soltar() {
  try {
    guardarEntero(comoRuta(archivo_), comoDxf(datos_));
    guardadas_ = datos_.entidades.size();
    guardado_ = true;
  } catch (const std::exception& fallo) {
    datos_.entidades.resize(guardadas_);
    throw FalloCad(fallo.what());
  }
}

CapaCad& DibujoDxf::capa(const std::string& nombre) {
  const auto it =
      std::find_if(datos_.capas.begin(), datos_.capas.end(), [&](const auto& c) { return c.first == nombre; });
  capa_.cual = static_cast<std::size_t>(it - datos_.capas.begin());
  if (it == datos_.capas.end()) datos_.capas.emplace_back(nombre, 7);
  return capa_;
}

TextoCad& DibujoDxf::AddText(const std::string& texto, const PuntoCad& en, double altura) {
  datos_.entidades.push_back({TextoDxf{exigir(en), texto, exigirAlturaTexto(altura)}});
  return texto_;
}

EntidadCad& DibujoDxf::AddLine(const PuntoCad& a, const PuntoCad& b) {
  datos_.entidades.push_back({LineaDxf{exigir(a), exigir(b)}});
  return entidad_;
}

EntidadCad& DibujoDxf::AddPolyline(const std::vector<double>& vertices) {
  PolilineaDxf p;
  exigirVertices(vertices);
  for (std::size_t i = 0; i < vertices.size(); i += 3)
    p.vertices.push_back({vertices[i], vertices[i + 1], vertices[i + 2]});
  datos_.entidades.push_back({std::move(p)});
  return entidad_;
}

EntidadCad& DibujoDxf::AddCircle(const PuntoCad& centro, double radio) {
  datos_.entidades.push_back({CirculoDxf{exigir(centro), exigirRadio(radio)}});
  return entidad_;
}

CotaCad& DibujoDxf::AddDimAligned(const PuntoCad& a, const PuntoCad& b, const PuntoCad& texto) {
  datos_.entidades.push_back({CotaDxf{exigir(a), exigir(b), exigir(texto)}});
  return cota_;
}

AplicacionCad* ConexionDxf::obtener() {
  error_.clear();
  auto ruta = dialogos_.guardarArchivo({"Exportar a un dibujo DXF", "dxf", "Dibujo DXF(*.DXF)|*.dxf", ultimo_});
  if (!ruta || ruta->empty()) {
    error_ = "No se ha elegido el archivo del dibujo";
    return nullptr;
  }
  ruta = conExtension(std::move(*ruta), "dxf");
  // an open drawing whose file has gone since is begun anew
  const auto abierto = abiertos_.find(*ruta);
  const bool existe = FileExists(*ruta);
  if (existe && (abierto == abiertos_.end() || !abierto->second.guardado()) &&
      !dialogos_.pregunta("El archivo " + tituloDeArchivo(*ruta) + " ya existe. ¿Desea reemplazarlo?")) {
    error_ = "El archivo " + tituloDeArchivo(*ruta) + " queda como estaba";
    return nullptr;
  }
  if (!existe && abierto != abiertos_.end()) abiertos_.erase(abierto);
  ultimo_ = *ruta;
  return &abiertos_.try_emplace(*ruta, *ruta).first->second;
}

/// There is nothing else to start: the drawing was asked for already.
AplicacionCad* ConexionDxf::crear() {
  if (error_.empty()) error_ = "No se ha elegido el archivo del dibujo";
  return nullptr;
}

}  // namespace calvento
