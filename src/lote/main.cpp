#include <iostream>

#include "lote/programa.h"
#include "lote/senales.h"
#include "modelo/guardado.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  calvento::contarLimiteComoFallo();
  calvento::lote::atenderSenales();
  const int estado = calvento::lote::ejecutar(argc, argv, std::cout, std::cerr);
  calvento::lote::terminarComoPedido();
  return estado;
}
