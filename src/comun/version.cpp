#include "comun/version.h"

namespace calvento {

std::string version() { return CALVENTO_VERSION; }

}  // namespace calvento
