// Times the start of a desktop program as its user sees it: from the call that runs it until the first window is
// painted on the screen of a virtual X server. The server (Xvfb -fbdir) keeps its screen in a file in XWD format; this
// program maps that file and looks at it every half millisecond, so nothing in the measured program knows of the
// measure. The window counts as painted when the screen shows more than a few colours: an empty one has one or two.
//
// Usage: arranque SCREEN_FILE RUNS PROGRAM [ARGUMENT...]
// Prints the median of each figure, a name and a value a line.

#include <fcntl.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace {

using Reloj = std::chrono::steady_clock;
using Cifras = std::map<std::string, double>;

constexpr std::size_t kColores = 40;
constexpr auto kPlazo = std::chrono::seconds(20);
constexpr auto kReposo = std::chrono::milliseconds(700);  // until the memory of the start has settled

[[noreturn]] void Fallar(const std::string& motivo) {
    std::cerr << "arranque: " << motivo << '\n';
    std::exit(1);
}

/// The screen of the virtual server, read where it stands.
class Pantalla {
  public:
    explicit Pantalla(const char* archivo) {
        const int fd = open(archivo, O_RDONLY);
        struct stat datos {};
        if (fd < 0 || fstat(fd, &datos) != 0) {
            Fallar(std::string("no se abre ") + archivo);
        }
        tamano_ = static_cast<std::size_t>(datos.st_size);
        void* mapa = mmap(nullptr, tamano_, PROT_READ, MAP_SHARED, fd, 0);
        close(fd);
        if (mapa == MAP_FAILED) {
            Fallar("no se lee la pantalla");
        }
        bytes_ = static_cast<const volatile unsigned char*>(mapa);
        // Fields of the header of an XWD file: 0 its size, 4 and 5 the picture's, 12 bytes a line, 19 colours.
        ancho_ = Campo(4);
        alto_ = Campo(5);
        linea_ = Campo(12);
        inicio_ = Campo(0) + Campo(19) * kBytesColor;
        if (inicio_ + linea_ * alto_ > tamano_) {
            Fallar("la pantalla no tiene el formato XWD esperado");
        }
    }

    bool Pintada() const {
        std::set<std::uint32_t> colores;
        for (std::size_t y = 0; y < alto_; y += 8) {
            for (std::size_t x = 0; x < ancho_; x += 8) {
                const std::size_t i = inicio_ + y * linea_ + x * 4;
                colores.insert(static_cast<std::uint32_t>(bytes_[i] | bytes_[i + 1] << 8 | bytes_[i + 2] << 16));
                if (colores.size() > kColores) {
                    return true;
                }
            }
        }
        return false;
    }

  private:
    static constexpr std::size_t kBytesColor = 12;

    std::size_t Campo(std::size_t numero) const {
        std::size_t valor = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            valor = valor << 8 | bytes_[numero * 4 + i];
        }
        return valor;
    }

    const volatile unsigned char* bytes_ = nullptr;
    std::size_t tamano_ = 0, ancho_ = 0, alto_ = 0, linea_ = 0, inicio_ = 0;
};

/// Processor time of all threads, milliseconds.
double Procesador(pid_t pid) {
    double nanosegundos = 0;
    std::error_code error;
    for (const auto& hilo : std::filesystem::directory_iterator("/proc/" + std::to_string(pid) + "/task", error)) {
        std::ifstream archivo(hilo.path() / "schedstat");
        double suyo = 0;
        if (archivo >> suyo) {
            nanosegundos += suyo;
        }
    }
    return nanosegundos / 1e6;
}

/// The sizes in /proc/PID/status, megabytes of 1024².
void Memoria(pid_t pid, Cifras& cifras) {
    std::ifstream archivo("/proc/" + std::to_string(pid) + "/status");
    for (std::string linea; std::getline(archivo, linea);) {
        for (const char* campo : {"VmHWM", "VmRSS", "RssAnon", "RssFile", "RssShmem"}) {
            if (linea.rfind(std::string(campo) + ":", 0) == 0) {
                cifras[campo] = std::strtod(linea.c_str() + std::strlen(campo) + 1, nullptr) / 1024;
            }
        }
    }
}

Cifras Medir(const Pantalla& pantalla, char** programa) {
    const auto limite = Reloj::now() + kPlazo;
    while (pantalla.Pintada()) {  // the window of the last run is going
        if (Reloj::now() > limite) {
            Fallar("la pantalla no queda vacía");
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    const auto inicio = Reloj::now();
    const pid_t pid = fork();
    if (pid == 0) {
        execvp(programa[0], programa);
        _exit(127);
    }
    while (!pantalla.Pintada()) {
        if (Reloj::now() > inicio + kPlazo || waitpid(pid, nullptr, WNOHANG) != 0) {
            kill(pid, SIGKILL);
            Fallar("el programa no pinta ninguna ventana");
        }
        std::this_thread::sleep_for(std::chrono::microseconds(500));
    }
    Cifras cifras;
    cifras["pared_ms"] = std::chrono::duration<double, std::milli>(Reloj::now() - inicio).count();
    cifras["procesador_ms"] = Procesador(pid);
    std::this_thread::sleep_for(kReposo);
    Memoria(pid, cifras);
    kill(pid, SIGTERM);
    waitpid(pid, nullptr, 0);
    return cifras;
}

double Mediana(std::vector<double> valores) {
    std::sort(valores.begin(), valores.end());
    const std::size_t mitad = valores.size() / 2;
    return valores.size() % 2 == 1 ? valores[mitad] : (valores[mitad - 1] + valores[mitad]) / 2;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        Fallar("uso: arranque PANTALLA VECES PROGRAMA [ARGUMENTO...]");
    }
    const Pantalla pantalla(argv[1]);
    const int veces = std::atoi(argv[2]);
    std::map<std::string, std::vector<double>> todas;
    Medir(pantalla, argv + 3);  // fills the caches of the disk
    for (int i = 0; i < veces; ++i) {
        for (const auto& [nombre, valor] : Medir(pantalla, argv + 3)) {
            todas[nombre].push_back(valor);
        }
    }
    for (const auto& [nombre, valores] : todas) {
        std::cout << nombre << ' ' << Mediana(valores) << '\n';
    }
}
