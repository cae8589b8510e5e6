#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace calvento {

/// Names of files travel through the program as texts: UTF-8, or the bytes of the system as they are where its names
/// need be no UTF-8. No byte is lost between the two forms.
std::filesystem::path comoRuta(std::string_view texto);
std::string comoTexto(const std::filesystem::path& ruta);

/// The name of a file without its folder, and whether a file of that path exists.
std::string tituloDeArchivo(const std::string& ruta);
bool FileExists(const std::string& ruta);

/// Whether the file's name ends in that extension, capitals ignored.
bool tieneExtension(std::string_view archivo, std::string_view extension);

/// The path with that extension, added where it has not got it: what stands behind another point, as in "Canal v1.5",
/// belongs to the name.
std::string conExtension(std::string ruta, std::string_view extension);

/// Follows the links to the file that is meant, also to one that does not exist yet. Fails with std::system_error
/// where they run in a circle.
std::filesystem::path destinoDe(std::filesystem::path archivo);

}  // namespace calvento
