#pragma once

#include <string>

#include "apoyo/dialogos_guion.h"

namespace calvento {

/// Prepares the next box: "aviso: words", "fallo: words", "si: question", "no: question", "abrir: file", "guardar:
/// file"; without words any, without a file cancelled.
inline void prepararCaja(DialogosGuion& dialogos, const std::string& caja) {
  const std::string clase = caja.substr(0, caja.find(':'));
  const std::string texto = caja.substr(std::min(caja.size(), clase.size() + 2));
  const std::optional<std::string> ruta = texto.empty() ? std::nullopt : std::optional(texto);
  if (clase == "aviso") dialogos.esperaAviso(texto);
  if (clase == "fallo") dialogos.esperaFallo(texto);
  if (clase == "abrir") dialogos.abre(ruta);
  if (clase == "guardar") dialogos.guarda(ruta);
  if (clase == "si" || clase == "no") dialogos.responde(clase == "si", texto);
}

}  // namespace calvento
