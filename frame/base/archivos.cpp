#include "frame/base/archivos.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>

#include "frame/base/errores.h"

namespace cuencalia {

namespace {

namespace fs = std::filesystem;

/// Opens without blocking, so that a pipe with no process at its other end does not hang the program. Returns null,
/// with errno set, when the file cannot be opened.
ArchivoAbierto Abrir(const fs::path& ruta, int modo, mode_t permisos = 0) {
    const int descriptor = ::open(ruta.c_str(), modo | O_CLOEXEC | O_NONBLOCK, permisos);
    return ArchivoAbierto(descriptor < 0 ? nullptr
                                         : ::fdopen(descriptor, (modo & O_ACCMODE) == O_RDONLY ? "rb" : "wb"));
}

/// Status of the open file. Error 75 when it is not a regular file.
struct stat DatosDe(const ArchivoAbierto& archivo) {
    struct stat datos {};
    if (::fstat(::fileno(archivo.get()), &datos) != 0 || !S_ISREG(datos.st_mode)) {
        throw ErrorEjecucion(kAccesoRuta);
    }
    return datos;
}

/// Returns the path after following symbolic links; the last target need not exist. For links that form a circle it
/// returns one of the links, and opening that fails.
fs::path SeguirEnlaces(fs::path ruta) {
    constexpr int kMaximoEnlaces = 40;
    std::error_code error;
    for (int i = 0; i < kMaximoEnlaces && fs::is_symlink(fs::symlink_status(ruta, error)); ++i) {
        ruta = ruta.parent_path() / fs::read_symlink(ruta, error);
    }
    return ruta;
}

fs::path CarpetaDe(const fs::path& ruta) { return ruta.has_parent_path() ? ruta.parent_path() : "."; }

/// True when a replacement failed because of the folder rather than the file: the folder takes no new files, or the
/// file is a mount point of its own.
bool LoImpideLaCarpeta(int causa) {
    constexpr std::array kCausas{EACCES, EPERM, EROFS, EBUSY, EXDEV};
    return std::find(kCausas.begin(), kCausas.end(), causa) != kCausas.end();
}

constexpr const char* kPrefijoProvisional = ".cuencalia-";

/// Removes the temporary files of programs that were killed: those whose name has the number of a process that no
/// longer exists.
void BarrerProvisionales(const fs::path& carpeta) {
    std::error_code error;
    for (fs::directory_iterator i(carpeta, error), fin; !error && i != fin; i.increment(error)) {
        const std::string nombre = i->path().filename().string();
        const std::string prefijo = kPrefijoProvisional;
        if (nombre.starts_with(prefijo)) {
            const int proceso = std::atoi(nombre.c_str() + prefijo.size());
            if (proceso > 0 && ::kill(proceso, 0) != 0 && errno == ESRCH) {
                ::unlink(i->path().c_str());
            }
        }
    }
}

/// Flushes the folder to the disk, so that the renaming of a file survives a crash. Failures are ignored: some file
/// systems cannot do it, and the file is already in its place.
void SincronizarCarpeta(const fs::path& carpeta) {
    const int descriptor = ::open(carpeta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        ::fsync(descriptor);
        ::close(descriptor);
    }
}

}  // namespace

void FallarPorSistema(int causa, UsoArchivo uso) {
    switch (causa) {
        case ENOENT:
        case ENOTDIR:
            throw ErrorEjecucion(uso == UsoArchivo::kLeer ? kArchivoNoEncontrado : kRutaNoEncontrada);
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            throw ErrorEjecucion(kDiscoLleno);
        default:
            throw ErrorEjecucion(kAccesoRuta);
    }
}

std::string LeerArchivo(const std::string& ruta, std::size_t maximo) {
    const ArchivoAbierto archivo = Abrir(ruta, O_RDONLY);
    if (archivo == nullptr) {
        FallarPorSistema(errno, UsoArchivo::kLeer);
    }
    DatosDe(archivo);
    std::string contenido;
    std::array<char, 1 << 16> trozo;
    while (contenido.size() < maximo) {
        const std::size_t pedidos = std::min(trozo.size(), maximo - contenido.size());
        const std::size_t leidos = std::fread(trozo.data(), 1, pedidos, archivo.get());
        contenido.append(trozo.data(), leidos);
        if (leidos < pedidos) {
            break;
        }
    }
    if (std::ferror(archivo.get()) != 0) {
        throw ErrorEjecucion(kAccesoRuta);
    }
    return contenido;
}

ReemplazoDeArchivo::ReemplazoDeArchivo(const std::string& ruta, bool conservar)
    : destino_(SeguirEnlaces(ruta)), conservar_(conservar) {
    viejo_ = Abrir(destino_, O_WRONLY);
    if (destino_.empty() || (viejo_ == nullptr && errno != ENOENT)) {
        FallarPorSistema(errno, UsoArchivo::kEscribir);
    }
    if (viejo_ != nullptr) {
        DatosDe(viejo_);
    }
    CrearProvisional(CarpetaDe(destino_));
    if (nuevo_ == nullptr && viejo_ != nullptr && LoImpideLaCarpeta(errno)) {
        std::error_code error;
        CrearProvisional(fs::temp_directory_path(error));
    }
    if (nuevo_ == nullptr) {
        FallarPorSistema(errno, UsoArchivo::kEscribir);
    }
}

ReemplazoDeArchivo::~ReemplazoDeArchivo() {
    if (!provisional_.empty()) {
        ::unlink(provisional_.c_str());
    }
}

void ReemplazoDeArchivo::CrearProvisional(const fs::path& carpeta) {
    constexpr int kIntentos = 100;
    // While it is being written, the new version of an existing file is readable by its owner only: the existing file
    // may be private.
    const mode_t permisos = viejo_ == nullptr ? 0666 : 0600;
    BarrerProvisionales(carpeta);
    const std::string nombre = kPrefijoProvisional + std::to_string(::getpid()) + "-";
    for (int i = 0; i < kIntentos && nuevo_ == nullptr; ++i) {
        const std::string ruta = carpeta / (nombre + std::to_string(i));
        nuevo_ = Abrir(ruta, O_WRONLY | O_CREAT | O_EXCL, permisos);
        if (nuevo_ != nullptr) {
            provisional_ = ruta;
        } else if (errno != EEXIST) {
            return;
        }
    }
}

void ReemplazoDeArchivo::Escribir(std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), nuevo_.get()) != bytes.size()) {
        FallarPorSistema(errno, UsoArchivo::kEscribir);
    }
}

void ReemplazoDeArchivo::Publicar() {
    const int descriptor = ::fileno(nuevo_.get());
    if (viejo_ != nullptr) {
        const struct stat viejo = DatosDe(viejo_);
        // Failures are ignored: only the administrator may change a file's owner, and some file systems have no
        // permissions.
        [[maybe_unused]] int ignorado = ::fchown(descriptor, viejo.st_uid, viejo.st_gid);
        ignorado = ::fchmod(descriptor, viejo.st_mode);
    }
    // The contents are flushed to the disk before the file is renamed: otherwise a crash could leave an empty file
    // under the final name.
    if (std::ferror(nuevo_.get()) != 0 || std::fflush(nuevo_.get()) != 0 || ::fsync(descriptor) != 0 ||
        std::fclose(nuevo_.release()) != 0) {
        FallarPorSistema(errno, UsoArchivo::kEscribir);
    }
    if (conservar_ && viejo_ != nullptr && DatosDe(viejo_).st_size > 0) {
        ConservarViejo();
    }
    if (::rename(provisional_.c_str(), destino_.c_str()) == 0) {
        provisional_.clear();
        SincronizarCarpeta(CarpetaDe(destino_));
    } else if (viejo_ != nullptr && LoImpideLaCarpeta(errno)) {
        CopiarAlViejo();
    } else {
        FallarPorSistema(errno, UsoArchivo::kEscribir);
    }
}

void ReemplazoDeArchivo::ConservarViejo() const {
    const std::string enlace = provisional_ + "~", copia = destino_.string() + "~";
    if (::link(destino_.c_str(), enlace.c_str()) == 0) {
        ::rename(enlace.c_str(), copia.c_str());
        ::unlink(enlace.c_str());  // still there if the name is taken by a folder, or is another link to the same file
        return;
    }
    try {
        ReemplazoDeArchivo archivo(copia);
        archivo.Escribir(LeerArchivo(destino_));
        archivo.Publicar();
    } catch (const ErrorEjecucion&) {
        // The new file matters more than a copy of the old one.
    }
}

void ReemplazoDeArchivo::CopiarAlViejo() {
    const std::string contenido = LeerArchivo(provisional_);
    const auto largo = static_cast<off_t>(contenido.size());
    const off_t largoViejo = DatosDe(viejo_).st_size;
    const int descriptor = ::fileno(viejo_.get());
    const int causa = largo > largoViejo ? ::posix_fallocate(descriptor, largoViejo, largo - largoViejo) : 0;
    if (causa != 0) {
        [[maybe_unused]] const int ignorado = ::ftruncate(descriptor, largoViejo);
        FallarPorSistema(causa, UsoArchivo::kEscribir);
    }
    if (std::fwrite(contenido.data(), 1, contenido.size(), viejo_.get()) != contenido.size() ||
        std::fflush(viejo_.get()) != 0 || ::ftruncate(descriptor, largo) != 0 || ::fsync(descriptor) != 0 ||
        std::fclose(viejo_.release()) != 0) {
        FallarPorSistema(errno, UsoArchivo::kEscribir);
    }
}

}  // namespace cuencalia
