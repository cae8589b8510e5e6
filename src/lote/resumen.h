#pragma once

#include <string>

#include "lote/sesion.h"

namespace calvento::lote {

/// The project for a reader at a terminal: data, results, basin table, messages.
std::string comoResumen(const Sesion& sesion);

/// One message on one line, fit for a terminal: "aviso: …", "pregunta: … [si]".
std::string enUnaLinea(const Mensaje& mensaje);

}  // namespace calvento::lote
