#include "memoria/hojas_bloques.h"

#include <array>

namespace calvento {

namespace {

using enum Alineacion;

constexpr std::array rotulos_usbr1 = {
    RotuloHoja{"Label13", "Longitud de la poza", "", 339, 251, 68, 16, centro},
    RotuloHoja{"Label5", "Profundidad de la poza", "", 616, 205, 62, 16, izquierda},
    RotuloHoja{"Label10", "Espacio entre muro y bloque", "", 91, 322, 62, 16, derecha},
    RotuloHoja{"Label11", "Ancho de bloque", "", 91, 344, 62, 16, derecha},
    RotuloHoja{"Label9", "Espacio entre bloques", "", 91, 377, 62, 16, derecha},
    RotuloHoja{"", "", "Nro de Bloques:", 67, 286, 130, 18, derecha},
    RotuloHoja{"Label4", "Número de bloques", "", 202, 286, 60, 18, izquierda},
    RotuloHoja{"", "", "5°", 809, 154, 30, 18, derecha},
    RotuloHoja{"", "", "Superficie superior", 957, 137, 130, 18, izquierda},
    RotuloHoja{"Label8", "Altura del bloque", "", 992, 220, 62, 16, izquierda},
    RotuloHoja{"Label12", "Largo del bloque sobre la rampa", "", 829, 304, 68, 16, centro},
};

constexpr std::array rotulos_usbr2 = {
    RotuloHoja{"Label9", "Del pie de la rampa a los dados", "", 251, 244, 68, 16, centro},
    RotuloHoja{"Label3", "Longitud de la poza", "", 339, 262, 68, 16, centro},
    RotuloHoja{"Label17", "Profundidad de la poza", "", 616, 205, 62, 16, izquierda},
    RotuloHoja{"Label11", "Espacio entre muro y bloque", "", 94, 317, 62, 16, derecha},
    RotuloHoja{"Label13", "Ancho de bloque", "", 94, 336, 62, 16, derecha},
    RotuloHoja{"Label12", "Espacio entre bloques", "", 94, 361, 62, 16, derecha},
    RotuloHoja{"Label6", "Espacio entre muro y dado", "", 403, 316, 62, 16, izquierda},
    RotuloHoja{"Label7", "Ancho de dado", "", 403, 331, 62, 16, izquierda},
    RotuloHoja{"Label8", "Espacio entre dados", "", 403, 351, 62, 16, izquierda},
    RotuloHoja{"", "", "Nro de Bloques:", 67, 286, 130, 18, derecha},
    RotuloHoja{"Label14", "Número de bloques", "", 202, 286, 60, 18, izquierda},
    RotuloHoja{"", "", "Nro de Dados:", 394, 286, 130, 18, derecha},
    RotuloHoja{"Label15", "Número de dados", "", 530, 286, 60, 18, izquierda},
    RotuloHoja{"Label10", "Altura del bloque de rampa", "", 983, 168, 62, 16, izquierda},
    RotuloHoja{"Label4", "Largo superior del bloque de rampa", "", 844, 111, 68, 16, centro},
    RotuloHoja{"Label16", "Altura del dado", "", 720, 338, 62, 16, derecha},
    RotuloHoja{"Label5", "Ancho superior del dado", "", 851, 273, 68, 16, centro},
};

constexpr std::array rotulos_usbr3 = {
    RotuloHoja{"Label14", "Longitud de la poza", "", 339, 251, 68, 16, centro},
    RotuloHoja{"Label7", "Espacio entre muro y bloque", "", 94, 317, 62, 16, derecha},
    RotuloHoja{"Label9", "Ancho de bloque", "", 94, 336, 62, 16, derecha},
    RotuloHoja{"Label8", "Espacio entre bloques", "", 94, 361, 62, 16, derecha},
    RotuloHoja{"Label11", "Ancho de diente", "", 422, 325, 62, 16, derecha},
    RotuloHoja{"Label12", "Espacio entre dientes", "", 422, 354, 62, 16, derecha},
    RotuloHoja{"", "", "Nro de Bloques:", 67, 286, 130, 18, derecha},
    RotuloHoja{"Label3", "Número de bloques", "", 202, 286, 60, 18, izquierda},
    RotuloHoja{"", "", "Nro de Dientes:", 394, 286, 130, 18, derecha},
    RotuloHoja{"Label4", "Número de dientes", "", 530, 286, 60, 18, izquierda},
    RotuloHoja{"Label5", "Altura del bloque de rampa", "", 983, 168, 62, 16, izquierda},
    RotuloHoja{"Label6", "Largo superior del bloque de rampa", "", 844, 111, 68, 16, centro},
    RotuloHoja{"Label13", "Altura del diente", "", 720, 338, 62, 16, derecha},
    RotuloHoja{"Label10", "Ancho superior del diente", "", 847, 273, 68, 16, centro},
};

constexpr std::array rotulos_saf = {
    RotuloHoja{"Label7", "Del pie de la rampa a los dados", "", 244, 244, 68, 16, centro},
    RotuloHoja{"Label6", "Longitud de la poza", "", 339, 262, 68, 16, centro},
    RotuloHoja{"Label5", "Altura del umbral final", "", 415, 217, 62, 16, derecha},
    RotuloHoja{"Label15", "Ancho de la pieza junto al muro", "", 94, 317, 62, 16, derecha},
    RotuloHoja{"Label16", "Espacio entre bloques", "", 94, 336, 62, 16, derecha},
    RotuloHoja{"Label17", "Ancho de bloque", "", 94, 361, 62, 16, derecha},
    RotuloHoja{"Label10", "Espacio entre muro y dado", "", 382, 317, 62, 16, izquierda},
    RotuloHoja{"Label12", "Ancho de dado", "", 382, 336, 62, 16, izquierda},
    RotuloHoja{"Label11", "Espacio entre dados", "", 382, 361, 62, 16, izquierda},
    RotuloHoja{"", "", "Nro de Bloques:", 67, 286, 130, 18, derecha},
    RotuloHoja{"Label3", "Número de bloques", "", 202, 286, 60, 18, izquierda},
    RotuloHoja{"", "", "Nro de Dados:", 394, 286, 130, 18, derecha},
    RotuloHoja{"Label4", "Número de dados", "", 530, 286, 60, 18, izquierda},
    RotuloHoja{"Label14", "Altura del bloque de rampa", "", 983, 168, 62, 16, izquierda},
    RotuloHoja{"Label8", "Largo superior del bloque de rampa", "", 844, 111, 68, 16, centro},
    RotuloHoja{"Label13", "Altura del dado", "", 720, 338, 62, 16, derecha},
    RotuloHoja{"Label9", "Ancho superior del dado", "", 851, 273, 68, 16, centro},
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
