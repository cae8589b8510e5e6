#include "memoria/hojas_bloques.h"

#include <array>

namespace calvento {

namespace {

using enum Alineacion;

constexpr std::array rotulos_usbr1 = {
    RotuloHoja{"Label13", "", 339, 251, 68, 16, centro},
    RotuloHoja{"Label5", "", 616, 205, 62, 16, izquierda},
    RotuloHoja{"Label10", "", 91, 322, 62, 16, derecha},
    RotuloHoja{"Label11", "", 91, 344, 62, 16, derecha},
    RotuloHoja{"Label9", "", 91, 377, 62, 16, derecha},
    RotuloHoja{"", "Nro de Bloques:", 67, 286, 130, 18, derecha},
    RotuloHoja{"Label4", "", 202, 286, 60, 18, izquierda},
    RotuloHoja{"", "5°", 809, 154, 30, 18, derecha},
    RotuloHoja{"", "Superficie superior", 957, 137, 130, 18, izquierda},
    RotuloHoja{"Label8", "", 992, 220, 62, 16, izquierda},
    RotuloHoja{"Label12", "", 829, 304, 68, 16, centro},
};

constexpr std::array rotulos_usbr2 = {
    RotuloHoja{"Label9", "", 251, 244, 68, 16, centro},
    RotuloHoja{"Label3", "", 339, 262, 68, 16, centro},
    RotuloHoja{"Label17", "", 616, 205, 62, 16, izquierda},
    RotuloHoja{"Label11", "", 94, 317, 62, 16, derecha},
    RotuloHoja{"Label13", "", 94, 336, 62, 16, derecha},
    RotuloHoja{"Label12", "", 94, 361, 62, 16, derecha},
    RotuloHoja{"Label6", "", 403, 316, 62, 16, izquierda},
    RotuloHoja{"Label7", "", 403, 331, 62, 16, izquierda},
    RotuloHoja{"Label8", "", 403, 351, 62, 16, izquierda},
    RotuloHoja{"", "Nro de Bloques:", 67, 286, 130, 18, derecha},
    RotuloHoja{"Label14", "", 202, 286, 60, 18, izquierda},
    RotuloHoja{"", "Nro de Dados:", 394, 286, 130, 18, derecha},
    RotuloHoja{"Label15", "", 530, 286, 60, 18, izquierda},
    RotuloHoja{"Label10", "", 983, 168, 62, 16, izquierda},
    RotuloHoja{"Label4", "", 844, 111, 68, 16, centro},
    RotuloHoja{"Label16", "", 720, 338, 62, 16, derecha},
    RotuloHoja{"Label5", "", 851, 273, 68, 16, centro},
};

constexpr std::array rotulos_usbr3 = {
    RotuloHoja{"Label14", "", 339, 251, 68, 16, centro},
    RotuloHoja{"Label7", "", 94, 317, 62, 16, derecha},
    RotuloHoja{"Label9", "", 94, 336, 62, 16, derecha},
    RotuloHoja{"Label8", "", 94, 361, 62, 16, derecha},
    RotuloHoja{"Label11", "", 422, 325, 62, 16, derecha},
    RotuloHoja{"Label12", "", 422, 354, 62, 16, derecha},
    RotuloHoja{"", "Nro de Bloques:", 67, 286, 130, 18, derecha},
    RotuloHoja{"Label3", "", 202, 286, 60, 18, izquierda},
    RotuloHoja{"", "Nro de Dientes:", 394, 286, 130, 18, derecha},
    RotuloHoja{"Label4", "", 530, 286, 60, 18, izquierda},
    RotuloHoja{"Label5", "", 983, 168, 62, 16, izquierda},
    RotuloHoja{"Label6", "", 844, 111, 68, 16, centro},
    RotuloHoja{"Label13", "", 720, 338, 62, 16, derecha},
    RotuloHoja{"Label10", "", 847, 273, 68, 16, centro},
};

constexpr std::array rotulos_saf = {
    RotuloHoja{"Label7", "", 244, 244, 68, 16, centro},
    RotuloHoja{"Label6", "", 339, 262, 68, 16, centro},
    RotuloHoja{"Label5", "", 415, 217, 62, 16, derecha},
    RotuloHoja{"Label15", "", 94, 317, 62, 16, derecha},
    RotuloHoja{"Label16", "", 94, 336, 62, 16, derecha},
    RotuloHoja{"Label17", "", 94, 361, 62, 16, derecha},
    RotuloHoja{"Label10", "", 382, 317, 62, 16, izquierda},
    RotuloHoja{"Label12", "", 382, 336, 62, 16, izquierda},
    RotuloHoja{"Label11", "", 382, 361, 62, 16, izquierda},
    RotuloHoja{"", "Nro de Bloques:", 67, 286, 130, 18, derecha},
    RotuloHoja{"Label3", "", 202, 286, 60, 18, izquierda},
    RotuloHoja{"", "Nro de Dados:", 394, 286, 130, 18, derecha},
    RotuloHoja{"Label4", "", 530, 286, 60, 18, izquierda},
    RotuloHoja{"Label14", "", 983, 168, 62, 16, izquierda},
    RotuloHoja{"Label8", "", 844, 111, 68, 16, centro},
    RotuloHoja{"Label13", "", 720, 338, 62, 16, derecha},
    RotuloHoja{"Label9", "", 851, 273, 68, 16, centro},
};

}  // namespace

std::optional<HojaDeBloques> hojaDeBloques(int tipoTanque) {
  switch (tipoTanque) {
    case 2:
      return HojaDeBloques{"Form22", "hoja_usbr1", rotulos_usbr1};
    case 3:
      return HojaDeBloques{"Form5", "hoja_usbr2", rotulos_usbr2};
    case 4:
      return HojaDeBloques{"Form21", "hoja_usbr3", rotulos_usbr3};
    case 5:
      return HojaDeBloques{"Form23", "hoja_saf", rotulos_saf};
    default:
      return std::nullopt;
  }
}

}  // namespace calvento
