#include "comun/xml.h"

namespace calvento {

std::string comoXml(std::string_view texto) {
  std::string s;
  for (const char c : texto) switch (c) {
      case '&':
        s += "&amp;";
        break;
      case '<':
        s += "&lt;";
        break;
      case '>':
        s += "&gt;";
        break;
      case '"':
        s += "&quot;";
        break;
      default:
        if (static_cast<unsigned char>(c) >= ' ' || c == '\n' || c == '\t') s += c;
    }
  return s;
}

}  // namespace calvento
