#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace cuencalia {

/// What a file is wanted for: a name that leads nowhere lacks the file for a reader, the folder for a writer.
enum class UsoArchivo { kLeer, kEscribir };

/// Raises the error of a system call on a file that failed with this errno: 61 when the disk is full, 53 (reading) or
/// 76 (writing) when the name leads nowhere, 75 for anything else.
[[noreturn]] void FallarPorSistema(int causa, UsoArchivo uso);

/// The bytes of a file, no more than the first `maximo` of them: who must know of a longer file asks for one byte more.
/// Error 53: no such file; 75: it cannot be read, or is no regular file.
std::string LeerArchivo(const std::string& ruta, std::size_t maximo = std::string::npos);

struct CerrarArchivo {
    void operator()(std::FILE* archivo) const { std::fclose(archivo); }
};
using ArchivoAbierto = std::unique_ptr<std::FILE, CerrarArchivo>;

/// A file that is written beside the one whose place it takes, and takes it when it is complete: until then the old
/// file stays as it was, and the new one goes with this object. A link stays a link, and the file keeps its
/// permissions.
///
/// Where the folder refuses new files but the old file may be written, the new contents wait in the system's folder of
/// temporary files and are copied over the old ones in the end. The room is taken before the first byte is overwritten,
/// so that a full disk leaves the old file even then; a power cut in that moment would not.
class ReemplazoDeArchivo {
  public:
    /// Makes or empties no file at `ruta`. Error 76: no such folder; 75: the file may not be written, or is no regular
    /// file; 61: the disk is full.
    explicit ReemplazoDeArchivo(const std::string& ruta);
    ~ReemplazoDeArchivo();
    ReemplazoDeArchivo(const ReemplazoDeArchivo&) = delete;
    ReemplazoDeArchivo& operator=(const ReemplazoDeArchivo&) = delete;

    /// Appends to the new file; the bytes may reach the disk as late as by Publicar. Error 61: the disk is full; 75:
    /// any other failure.
    void Escribir(std::string_view bytes);
    /// Where the new file, empty, is meanwhile: for a library that writes by itself. It must have closed it before
    /// Publicar.
    const std::string& RutaProvisional() const { return provisional_; }

    /// Brings the new file to the disk and puts it in its place. Errors as Escribir. Nothing may follow.
    void Publicar();

  private:
    void CrearProvisional(const std::filesystem::path& carpeta);
    void CopiarAlViejo();

    std::filesystem::path destino_;  ///< What `ruta` means once its links are followed.
    std::string provisional_;        ///< Empty when there is none to remove.
    ArchivoAbierto viejo_;           ///< None when there is no file to replace.
    ArchivoAbierto nuevo_;
};

}  // namespace cuencalia
