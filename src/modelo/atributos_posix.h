#pragma once

#ifndef _WIN32

namespace calvento {

/// Gives an open file the access lists and extended attributes of another one, those and no others. False where one
/// cannot be read or may not be given.
bool copiarAtributos(int de, int a);

}  // namespace calvento

#endif
