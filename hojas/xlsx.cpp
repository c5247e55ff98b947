#include "hojas/xlsx.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "frame/base/utf8.h"
#include "hojas/errores_libro.h"
#include "hojas/xml.h"
#include "hojas/zip.h"

namespace cuencalia {

namespace {

// Largest unpacked size of a part. A full sheet of 1,048,576 rows and a few columns takes less.
constexpr std::size_t kMaxHoja = std::size_t{256} << 20;
constexpr std::size_t kMaxTextos = std::size_t{64} << 20;
constexpr std::size_t kMaxIndice = std::size_t{4} << 20;

// Most XML that is parsed of a workbook, where 1501 rows of 250 columns take 13 MiB: what bounds the time, as the rest
// of a part is only unpacked for its checksum.
constexpr std::size_t kMaxAnalizado = std::size_t{48} << 20;

// A cell holds up to 32,767 characters (ECMA-376 part 1, 18.3.1.96), each escaped as "_xHHHH_" at worst.
constexpr std::size_t kMaxBytesDeCelda = 32767 * 7;
constexpr int kMaxFilas = 1048576;
constexpr int kMaxColumnas = 16384;

class Paquete {
  public:
    explicit Paquete(std::span<const std::byte> bytes) : archivo_(bytes) {}

    bool Tiene(const std::string& parte) const { return archivo_.Tiene(parte); }

    void Leer(const std::string& parte, std::size_t limite, LectorXml& lector) {
        archivo_.Recorrer(parte, limite, [&](std::span<const std::byte> trozo) {
            if (trozo.size() > porAnalizar_) {
                FallarDemasiadoGrande();
            }
            porAnalizar_ -= trozo.size();
            return lector.Alimentar(trozo);
        });
        lector.Concluir();
    }

  private:
    ArchivoZip archivo_;
    std::size_t porAnalizar_ = kMaxAnalizado;
};

void AgregarTexto(std::string& texto, std::string_view trozo) {
    if (texto.size() + trozo.size() > kMaxBytesDeCelda) {
        FallarDanado();
    }
    texto += trozo;
}

std::string_view SinBlancos(std::string_view texto) {
    constexpr std::string_view kBlancos = " \t\r\n";
    const std::size_t inicio = texto.find_first_not_of(kBlancos);
    return inicio == std::string_view::npos ? std::string_view{}
                                            : texto.substr(inicio, texto.find_last_not_of(kBlancos) - inicio + 1);
}

template <typename Numero>
std::optional<Numero> LeerNumero(std::string_view texto) {
    Numero numero{};
    const char* fin = texto.data() + texto.size();
    const auto [resto, error] = std::from_chars(texto.data(), fin, numero);
    return error == std::errc() && resto == fin ? std::optional(numero) : std::nullopt;
}

template <typename Numero>
Numero ExigirNumero(std::string_view texto) {
    const auto numero = LeerNumero<Numero>(texto);
    if (!numero) {
        FallarDanado();
    }
    return *numero;
}

double ExigirDouble(std::string_view texto) {
    return ExigirNumero<double>(texto.starts_with('+') ? texto.substr(1) : texto);
}

// --- Relationships of a part (ECMA-376 part 2, 9.3) ---

struct Relacion {
    std::string tipo;  // last segment of the type's URI, the same in the transitional and strict dialects
    std::string parte;
};

using Relaciones = std::map<std::string, Relacion>;  // by identifier

std::string CarpetaDe(std::string_view parte) {
    const std::size_t corte = parte.rfind('/');
    return std::string(corte == std::string_view::npos ? "" : parte.substr(0, corte));
}

// The path of the part that a relationship's target names; the target is relative to the folder of the referring part.
std::string ResolverParte(const std::string& carpeta, std::string_view destino) {
    const std::string camino = destino.starts_with('/') ? std::string(destino) : carpeta + "/" + std::string(destino);
    std::vector<std::string_view> pasos;
    for (std::size_t inicio = 0; inicio < camino.size();) {
        const std::size_t fin = std::min(camino.find('/', inicio), camino.size());
        const std::string_view paso = std::string_view(camino).substr(inicio, fin - inicio);
        inicio = fin + 1;
        if (paso == "..") {
            pasos.resize(pasos.empty() ? 0 : pasos.size() - 1);
        } else if (!paso.empty() && paso != ".") {
            pasos.push_back(paso);
        }
    }
    std::string parte;
    for (const std::string_view paso : pasos) {
        parte += parte.empty() ? "" : "/";
        parte += paso;
    }
    return parte;
}

class LectorRelaciones : public LectorXml {
  public:
    explicit LectorRelaciones(std::string carpeta) : LectorXml("Relationships"), carpeta_(std::move(carpeta)) {}

    Relaciones relaciones;

  private:
    void AlAbrir(std::string_view ruta, const AtributosXml& atributos) override {
        if (ruta != "Relationships/Relationship" || atributos.Valor("TargetMode") == "External") {
            return;
        }
        const std::string_view tipo = atributos.Valor("Type").value_or("");
        relaciones.emplace(atributos.Valor("Id").value_or(""),
                           Relacion{std::string(tipo.substr(tipo.rfind('/') + 1)),
                                    ResolverParte(carpeta_, atributos.Valor("Target").value_or(""))});
    }

    std::string carpeta_;
};

Relaciones RelacionesDe(Paquete& libro, const std::string& parte) {
    const std::string carpeta = CarpetaDe(parte);
    const std::string nombre = parte.substr(carpeta.empty() ? 0 : carpeta.size() + 1);
    LectorRelaciones lector(carpeta);
    libro.Leer(carpeta + (carpeta.empty() ? "" : "/") + "_rels/" + nombre + ".rels", kMaxIndice, lector);
    return std::move(lector.relaciones);
}

const Relacion* RelacionDeTipo(const Relaciones& relaciones, std::string_view tipo) {
    const auto hallada = std::ranges::find_if(relaciones, [&](const auto& par) { return par.second.tipo == tipo; });
    return hallada == relaciones.end() ? nullptr : &hallada->second;
}

// --- The workbook part: its sheets in the order of their tabs ---

class LectorLibro : public LectorXml {
  public:
    LectorLibro() : LectorXml("workbook") {}

    std::vector<std::string> idsDeHojas;

  private:
    void AlAbrir(std::string_view ruta, const AtributosXml& atributos) override {
        if (ruta == "workbook/sheets/sheet") {
            idsDeHojas.emplace_back(atributos.IdRelacion().value_or(""));
        }
    }
};

// Path of the first worksheet among the sheets. A tab may also be a chart, a dialog or a macro sheet, which are
// skipped.
std::string PrimeraHoja(const std::vector<std::string>& ids, const Relaciones& relaciones) {
    for (const std::string& id : ids) {
        const auto relacion = relaciones.find(id);
        if (relacion == relaciones.end()) {
            FallarDanado();
        }
        if (relacion->second.tipo == "worksheet") {
            return relacion->second.parte;
        }
    }
    FallarSinHojas();
}

// --- Texts ---

// Decodes "_xHHHH_", by which a workbook writes characters that XML cannot contain (ECMA-376 part 1, 22.9.2.19,
// ST_Xstring).
std::string DescifrarTexto(std::string_view cifrado) {
    constexpr std::size_t kLargoCodigo = 7;
    std::string texto;
    while (!cifrado.empty()) {
        const std::size_t inicio = cifrado.find("_x");
        texto += cifrado.substr(0, inicio);
        cifrado.remove_prefix(std::min(inicio, cifrado.size()));
        const std::string_view codigo = cifrado.substr(0, kLargoCodigo);
        unsigned valor = 0;
        const bool completo = codigo.size() == kLargoCodigo && codigo.back() == '_';
        if (completo && std::from_chars(codigo.data() + 2, codigo.data() + 6, valor, 16).ptr == codigo.data() + 6) {
            AgregarUtf8(texto, valor);
            cifrado.remove_prefix(kLargoCodigo);
        } else {
            texto += cifrado.substr(0, 1);
            cifrado.remove_prefix(std::min<std::size_t>(1, cifrado.size()));
        }
    }
    return texto;
}

// Reads the shared texts used by some cell. Runs of rich text are joined; phonetic runs ("rPh") are not part of the
// text.
class LectorTextos : public LectorXml {
  public:
    explicit LectorTextos(ArmadorHoja& armador) : LectorXml("sst"), armador_(armador) {}

  private:
    void AlTexto(std::string_view ruta, std::string_view texto) override {
        const bool esTexto = ruta == "sst/si/t" || ruta == "sst/si/r/t";
        if (esTexto && armador_.FaltaTexto(indice_)) {
            AgregarTexto(texto_, texto);
        }
    }

    void AlCerrar(std::string_view ruta) override {
        if (ruta != "sst/si") {
            return;
        }
        armador_.DarTexto(indice_++, DescifrarTexto(texto_));
        texto_.clear();
        if (!armador_.FaltanTextos()) {
            Detener();
        }
    }

    ArmadorHoja& armador_;
    std::uint32_t indice_ = 0;
    std::string texto_;
};

// --- ISO 8601 dates, which a workbook of the strict dialect may store instead of serial numbers ---

double FraccionDeDia(std::string_view hora) {
    if (hora.ends_with('Z')) {
        hora.remove_suffix(1);
    }
    if (hora.size() < 5 || hora[2] != ':' || (hora.size() > 5 && hora[5] != ':')) {
        FallarDanado();
    }
    const double horas = ExigirNumero<unsigned>(hora.substr(0, 2));
    const double minutos = ExigirNumero<unsigned>(hora.substr(3, 2));
    const double segundos = hora.size() > 5 ? ExigirNumero<double>(hora.substr(6)) : 0;
    return (horas * 3600 + minutos * 60 + segundos) / 86400;
}

double DiasDeFecha(std::string_view fecha) {
    using namespace std::chrono;
    if (fecha.size() != 10 || fecha[4] != '-' || fecha[7] != '-') {
        FallarDanado();
    }
    const year_month_day dia{year{ExigirNumero<int>(fecha.substr(0, 4))},
                             month{ExigirNumero<unsigned>(fecha.substr(5, 2))},
                             std::chrono::day{ExigirNumero<unsigned>(fecha.substr(8, 2))}};
    if (!dia.ok()) {
        FallarDanado();
    }
    // Serial numbers count a 29 February 1900, which did not exist: dates before 1 March 1900 have a serial number one
    // less than the days since 30 December 1899.
    const auto origen = sys_days(year{1899} / December / 30);
    const auto dias = (sys_days(dia) - origen).count();
    return static_cast<double>(sys_days(dia) < sys_days(year{1900} / March / 1) ? dias - 1 : dias);
}

double SerialDeFecha(std::string_view texto) {
    constexpr std::size_t kLargoFecha = 10;
    if (texto.find('-') == std::string_view::npos) {
        return FraccionDeDia(texto);
    }
    const double dias = DiasDeFecha(texto.substr(0, kLargoFecha));
    if (texto.size() <= kLargoFecha) {
        return dias;
    }
    return dias + FraccionDeDia(texto.substr(kLargoFecha + 1));
}

// --- The worksheet part ---

struct Posicion {
    int fila;
    int columna;
};

// Parses a cell reference such as "AB12".
Posicion LeerReferencia(std::string_view referencia) {
    int columna = 0;
    std::size_t i = 0;
    for (; i < referencia.size() && referencia[i] >= 'A' && referencia[i] <= 'Z' && columna <= kMaxColumnas; ++i) {
        columna = columna * 26 + (referencia[i] - 'A' + 1);
    }
    const int fila = ExigirNumero<int>(referencia.substr(i));
    if (columna < 1 || columna > kMaxColumnas || fila < 1 || fila > kMaxFilas) {
        FallarDanado();
    }
    return {fila, columna};
}

class LectorHoja : public LectorXml {
  public:
    explicit LectorHoja(ArmadorHoja& armador) : LectorXml("worksheet"), armador_(armador) {}

  private:
    void AlAbrir(std::string_view ruta, const AtributosXml& atributos) override {
        if (ruta == "worksheet/sheetData/row") {
            AbrirFila(atributos);
        } else if (ruta == "worksheet/sheetData/row/c") {
            AbrirCelda(atributos);
        }
    }

    void AlTexto(std::string_view ruta, std::string_view texto) override {
        const bool enLinea = ruta == "worksheet/sheetData/row/c/is/t" || ruta == "worksheet/sheetData/row/c/is/r/t";
        if (enLinea || ruta == "worksheet/sheetData/row/c/v") {
            AgregarTexto(enLinea ? enLinea_ : valor_, texto);
        }
    }

    void AlCerrar(std::string_view ruta) override {
        if (ruta == "worksheet/sheetData/row/c") {
            CerrarCelda();
        } else if (ruta == "worksheet/sheetData" || (ruta == "worksheet/sheetData/row" && !hayPrimera_)) {
            Detener();
        }
    }

    // The data end at the first missing row or the first row without a cell in column 1. Rows and cells are in
    // ascending order.
    void AbrirFila(const AtributosXml& atributos) {
        const auto numero = atributos.Valor("r");
        const int fila = numero ? ExigirNumero<int>(*numero) : celda_.fila + 1;
        if (fila <= celda_.fila) {
            FallarDanado();
        }
        if (fila != celda_.fila + 1 || fila > armador_.FilasMax()) {
            Detener();
        }
        celda_ = {fila, 0};
        hayPrimera_ = false;
    }

    void AbrirCelda(const AtributosXml& atributos) {
        const auto referencia = atributos.Valor("r");
        const Posicion posicion = referencia ? LeerReferencia(*referencia) : Posicion{celda_.fila, celda_.columna + 1};
        if (posicion.fila != celda_.fila || posicion.columna <= celda_.columna) {
            FallarDanado();
        }
        celda_ = posicion;
        tipo_ = atributos.Valor("t").value_or("n");
        valor_.clear();
        enLinea_.clear();
    }

    void CerrarCelda() {
        if (!armador_.Interesa(celda_.fila, celda_.columna)) {
            return;
        }
        if (tipo_ == "inlineStr") {
            PonerTexto(enLinea_);
        } else if (tipo_ == "str") {
            PonerTexto(valor_);
        } else if (!SinBlancos(valor_).empty()) {
            PonerValor(SinBlancos(valor_));
        }
    }

    void PonerValor(std::string_view valor) {
        if (tipo_ == "s") {
            armador_.PonerCompartido(celda_.fila, celda_.columna, ExigirNumero<std::uint32_t>(valor));
            hayPrimera_ = hayPrimera_ || celda_.columna == 1;
        } else if (tipo_ == "n") {
            Poner(Double(ExigirDouble(valor)));
        } else if (tipo_ == "b") {
            Poner(TextoLogico(valor == "1" || valor == "true"));
        } else if (tipo_ == "e") {
            Poner(std::string(valor));
        } else if (tipo_ == "d") {
            Poner(Double(SerialDeFecha(valor)));
        } else {
            FallarDanado();
        }
    }

    void PonerTexto(const std::string& cifrado) { Poner(DescifrarTexto(cifrado)); }

    void Poner(ValorCelda valor) {
        hayPrimera_ = hayPrimera_ || (celda_.columna == 1 && !EsVacia(valor));
        armador_.Poner(celda_.fila, celda_.columna, std::move(valor));
    }

    ArmadorHoja& armador_;
    Posicion celda_{0, 0};
    bool hayPrimera_ = false;
    std::string tipo_;
    std::string valor_;
    std::string enLinea_;
};

}  // namespace

void LeerXlsx(std::span<const std::byte> bytes, ArmadorHoja& armador) {
    Paquete libro(bytes);
    if (!libro.Tiene("_rels/.rels")) {
        FallarNoEsLibro();
    }
    const Relaciones delPaquete = RelacionesDe(libro, "");
    const Relacion* principal = RelacionDeTipo(delPaquete, "officeDocument");
    if (principal == nullptr) {
        FallarNoEsLibro();
    }
    if (principal->parte.ends_with(".bin")) {
        FallarFormatoNoLeido();
    }
    LectorLibro indice;
    libro.Leer(principal->parte, kMaxIndice, indice);
    const Relaciones delLibro = RelacionesDe(libro, principal->parte);
    LectorHoja hoja(armador);
    libro.Leer(PrimeraHoja(indice.idsDeHojas, delLibro), kMaxHoja, hoja);

    const Relacion* textos = RelacionDeTipo(delLibro, "sharedStrings");
    if (armador.FaltanTextos() && textos != nullptr) {
        LectorTextos lector(armador);
        libro.Leer(textos->parte, kMaxTextos, lector);
    }
}

}  // namespace cuencalia
