#pragma once

#include <string>

#include "cad/entidades_dxf.h"

namespace calvento {

/// The drawing as the text of a DXF file of the year 2000 form, in metres and in Windows-1252, which it declares.
/// Fails with FalloCad where the text cannot be made.
std::string comoDxf(const DatosDxf& dibujo);

}  // namespace calvento
