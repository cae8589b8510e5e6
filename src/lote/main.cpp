#include <iostream>

#include "lote/programa.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  return calvento::lote::ejecutar(argc, argv, std::cout, std::cerr);
}
