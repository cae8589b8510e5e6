#pragma once

#include <filesystem>
#include <string_view>

namespace calvento {

/// Writes the content to the file, the one way by which this program writes any file. The content goes to a temporary
/// file beside the target, ".calvento-….tmp~", which is flushed to the disk and then takes the target's name: a full
/// disk, a killed program or a power cut leave either the former file or the new one, whole, and readers meanwhile see
/// one of the two. At worst the temporary file is left over, by a killed program or a power cut.
///
/// The user's own right to write the target decides. Mode, owner, group, access lists and extended attributes of the
/// former file stay; a hard link to it keeps the former content. Links are followed to their end, also to a file that
/// does not exist yet.
///
/// Where the target cannot be replaced so (no right to its folder, an owner or attribute that the user may not give to
/// a new file, a file mounted on its own) but may be written, it is written in place. Then a failure that is told (a
/// full disk) still leaves the former content, but a killed program, a power cut or a reader in between find a mixture.
///
/// Fails with FalloArchivo for a folder, a pipe, a device, a file that is read-only to the user, a circle of links, and
/// whatever the system refuses.
void guardarEntero(const std::filesystem::path& archivo, std::string_view contenido);

/// Lets a write beyond the user's limit for files (ulimit -f) fail as one on a full disk does, where the system would
/// end the program. Done by guardarEntero; a program whose output may be a file does it at its start.
void contarLimiteComoFallo();

}  // namespace calvento
