#pragma once

#include <string>

#include "lote/sesion.h"

namespace calvento::lote {

/// The project for a reader at a terminal: data, results, basin table, messages.
std::string comoResumen(const Sesion& sesion);

/// The verdict on the basin for ten discharges; empty where there is none.
std::string veredictoPoza(const Sesion& sesion);

/// UTF-8 text padded with blanks to so many columns of a terminal.
std::string alineado(std::string_view texto, std::size_t columnas);

/// One message on one line, fit for a terminal: "aviso: …", "pregunta: … [si]".
std::string enUnaLinea(const Mensaje& mensaje);

}  // namespace calvento::lote
