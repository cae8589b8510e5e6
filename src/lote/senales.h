#pragma once

namespace calvento::lote {

/// From here on a request to end (Ctrl+C, SIGTERM, a closed terminal) waits until the project in hand is done, its
/// files written and its line printed. A second one ends the program at once. Requests that were ignored stay so
/// (nohup).
void atenderSenales();

/// Whether one has come.
bool pedidoTerminar();

/// Ends the program as the request that has come does by itself, so that the shell behind it stops too.
void terminarComoPedido();

}  // namespace calvento::lote
