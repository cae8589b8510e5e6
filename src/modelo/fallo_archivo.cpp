#include "modelo/fallo_archivo.h"

#include <array>
#include <cerrno>
#include <utility>

#include "modelo/rutas.h"

namespace calvento {

namespace {

using Razon = std::pair<std::errc, const char*>;
constexpr std::array<Razon, 28> razones = {{
    {std::errc::no_such_file_or_directory, "no existe el archivo o la carpeta"},
    {std::errc::not_a_directory, "no existe la carpeta"},
    {std::errc::is_a_directory, "es una carpeta"},
    {std::errc::permission_denied, "no hay permiso"},
    {std::errc::operation_not_permitted, "no hay permiso"},
    {std::errc::read_only_file_system, "el disco es de solo lectura"},
    {std::errc::no_space_on_device, "no queda espacio en el disco"},
    {std::errc::file_too_large, "el archivo pasa del tamaño permitido"},
    {std::errc::filename_too_long, "el nombre es demasiado largo"},
    {std::errc::too_many_symbolic_link_levels, "los enlaces forman un círculo"},
    {std::errc::too_many_files_open, "hay demasiados archivos abiertos"},
    {std::errc::too_many_files_open_in_system, "hay demasiados archivos abiertos en la máquina"},
    {std::errc::too_many_links, "hay demasiados enlaces"},
    {std::errc::not_enough_memory, "no queda memoria"},
    {std::errc::io_error, "el disco no responde"},
    {std::errc::no_such_device, "no existe el dispositivo"},
    {std::errc::no_such_device_or_address, "el dispositivo no responde"},
    {std::errc::device_or_resource_busy, "está en uso"},
    {std::errc::text_file_busy, "es un programa en marcha"},
    {std::errc::resource_unavailable_try_again, "está ocupado; vuelva a intentarlo"},
    {std::errc::cross_device_link, "está en otro disco"},
    {std::errc::invalid_argument, "el disco no acepta ese nombre"},
    {std::errc::broken_pipe, "nadie recibe la salida"},
    {std::errc::timed_out, "el servidor de archivos no responde"},
    {std::errc::host_unreachable, "el servidor de archivos no responde"},
    {std::errc::network_unreachable, "no hay red hasta el servidor de archivos"},
    {std::errc::function_not_supported, "el disco no lo permite"},
    {std::errc::not_supported, "el disco no lo permite"},
}};

}  // namespace

std::string razon(const std::error_code& ec) {
  if (!ec) return "motivo desconocido";
  for (const auto& [motivo, texto] : razones)
    if (ec == motivo) return texto;
  const bool deC = ec.category() == std::generic_category();
#ifdef EDQUOT  // the C++ library names neither
  if (deC && ec.value() == EDQUOT) return "se agotó la cuota de disco";
#endif
#ifdef ESTALE
  if (deC && ec.value() == ESTALE) return "el servidor de archivos ya no conoce el archivo";
#endif
  return "fallo " + std::to_string(ec.value()) + (deC ? " del sistema" : " de Windows");
}

std::error_code ultimoFallo() { return {errno, std::generic_category()}; }

void fallarLectura(const std::filesystem::path& archivo, const std::string& razon) {
  throw FalloArchivo("No se puede leer el archivo " + comoTexto(archivo.filename()) + ": " + razon);
}

void fallarEscritura(const std::filesystem::path& archivo, const std::string& razon) {
  throw FalloArchivo("No se puede guardar el archivo " + comoTexto(archivo.filename()) + ": " + razon);
}

}  // namespace calvento
