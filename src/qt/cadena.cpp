#include "qt/cadena.h"
