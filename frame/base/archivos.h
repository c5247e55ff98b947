#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace cuencalia {

/// What a file is opened for. It decides the error for a path that does not exist: 53 (no such file) when reading, 76
/// (no such folder) when writing.
enum class UsoArchivo { kLeer, kEscribir };

/// Raises the run-time error for a system call on a file that failed with the errno `causa`: 61 when the disk is full,
/// 53 (reading) or 76 (writing) when the path does not exist, 75 for anything else.
[[noreturn]] void FallarPorSistema(int causa, UsoArchivo uso);

/// The first `maximo` bytes of a file, or all of them if it has fewer. To find out whether a file is longer than n
/// bytes, ask for n + 1.
/// Error 53: no such file; 75: it cannot be read, or is not a regular file.
std::string LeerArchivo(const std::string& ruta, std::size_t maximo = std::string::npos);

struct CerrarArchivo {
    void operator()(std::FILE* archivo) const { std::fclose(archivo); }
};
using ArchivoAbierto = std::unique_ptr<std::FILE, CerrarArchivo>;

/// Replaces a file in one step. The new version is written to a temporary file in the same folder, and Publicar renames
/// it over the old file; until then the old file is unchanged. If Publicar is never called, the destructor deletes the
/// temporary file. A symbolic link stays a link, and the file keeps its permissions.
///
/// Where the folder refuses new files but the old file may be written, the temporary file is in the system's folder for
/// temporary files, and Publicar copies its contents over the old file. Disk space is reserved before the first byte is
/// overwritten, so a full disk leaves the old file unchanged; a power cut during the copy would not.
class ReemplazoDeArchivo {
  public:
    /// Prepares the replacement of `ruta`, which is neither created nor emptied yet. With `conservar` the old contents
    /// are kept beside it under the same name with "~" appended. Error 76: no such folder; 75: the file may not be
    /// written, or is not a regular file; 61: the disk is full.
    explicit ReemplazoDeArchivo(const std::string& ruta, bool conservar = false);
    ~ReemplazoDeArchivo();
    ReemplazoDeArchivo(const ReemplazoDeArchivo&) = delete;
    ReemplazoDeArchivo& operator=(const ReemplazoDeArchivo&) = delete;

    /// Appends to the new file; the bytes may stay in a buffer until Publicar. Error 61: the disk is full; 75: any
    /// other failure.
    void Escribir(std::string_view bytes);
    /// Path of the temporary file, which is empty at first: for a library that writes to a path by itself. The library
    /// must have closed the file before Publicar is called.
    const std::string& RutaProvisional() const { return provisional_; }

    /// Flushes the new file to the disk and replaces the old one by it. Errors as in Escribir. Call nothing else on
    /// this object afterwards.
    void Publicar();

  private:
    void CrearProvisional(const std::filesystem::path& carpeta);
    /// Gives the old file its second name, by a copy where the file system knows no links. Failures are ignored.
    void ConservarViejo() const;
    void CopiarAlViejo();

    std::filesystem::path destino_;  ///< `ruta` with its symbolic links followed.
    std::string provisional_;        ///< Path of the temporary file; empty when there is none to delete.
    bool conservar_;
    ArchivoAbierto viejo_;  ///< The file to be replaced; null when there is none.
    ArchivoAbierto nuevo_;
};

}  // namespace cuencalia
