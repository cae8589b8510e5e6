#pragma once

#include <string>
#include <string_view>

namespace calvento {

/// The text (UTF-8) as the content or an attribute of XML and HTML; control characters, which XML does not know, go.
std::string comoXml(std::string_view texto);

}  // namespace calvento
