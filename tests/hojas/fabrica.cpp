#include "tests/hojas/fabrica.h"

#include <gsf/gsf.h>

#include <bit>
#include <fstream>
#include <iterator>

namespace cuencalia::pruebas {

namespace {

// Writes the parts with the library's own container, folder by folder as the names say.
Bytes Empacar(GsfOutput* memoria, GsfOutfile* raiz, const Partes& partes) {
    for (const auto& [nombre, contenido] : partes) {
        std::vector<GsfOutput*> abiertos;
        GsfOutfile* carpeta = raiz;
        std::size_t inicio = 0;
        for (auto fin = nombre.find('/'); fin != std::string::npos; fin = nombre.find('/', inicio)) {
            abiertos.push_back(gsf_outfile_new_child(carpeta, nombre.substr(inicio, fin - inicio).c_str(), TRUE));
            carpeta = GSF_OUTFILE(abiertos.back());
            inicio = fin + 1;
        }
        abiertos.push_back(gsf_outfile_new_child(carpeta, nombre.substr(inicio).c_str(), FALSE));
        gsf_output_write(abiertos.back(), contenido.size(), reinterpret_cast<const guint8*>(contenido.data()));
        for (; !abiertos.empty(); abiertos.pop_back()) {
            gsf_output_close(abiertos.back());
            g_object_unref(abiertos.back());
        }
    }
    gsf_output_close(GSF_OUTPUT(raiz));
    g_object_unref(raiz);
    const auto* datos = reinterpret_cast<const std::byte*>(gsf_output_memory_get_bytes(GSF_OUTPUT_MEMORY(memoria)));
    Bytes bytes(datos, datos + gsf_output_size(memoria));
    g_object_unref(memoria);
    return bytes;
}

}  // namespace

Filas Tabla(const Hoja& hoja, int columnas) {
    Filas filas;
    for (int i = 1; i <= hoja.Filas(); ++i) {
        auto& fila = filas.emplace_back();
        for (int j = 1; j <= columnas; ++j) {
            fila.push_back(hoja.Cells(i, j));
        }
    }
    return filas;
}

Filas Leer(const Bytes& libro, int columnas, int filasMax) {
    return Tabla(LeerLibro(libro, columnas, filasMax), columnas);
}

std::string Rechazo(const Bytes& libro, int filasMax) {
    try {
        LeerLibro(libro, 4, filasMax);
        return "";
    } catch (const ErrorEjecucion& error) {
        return error.Numero() == kErrorLibro ? error.Texto() : "otro error: " + error.Texto();
    }
}

std::string RutaDeDatos(const std::string& nombre) { return std::string(CUENCALIA_DATOS_HOJAS) + "/" + nombre; }

Bytes BytesDeArchivo(const std::string& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    const std::string texto(std::istreambuf_iterator<char>(archivo), {});
    const auto bytes = std::as_bytes(std::span(texto));
    return {bytes.begin(), bytes.end()};
}

Bytes Zip(const Partes& partes) {
    GsfOutput* memoria = gsf_output_memory_new();
    return Empacar(memoria, gsf_outfile_zip_new(memoria, nullptr), partes);
}

Bytes Ole(const Partes& flujos) {
    GsfOutput* memoria = gsf_output_memory_new();
    return Empacar(memoria, gsf_outfile_msole_new(memoria), flujos);
}

Partes PaqueteCon(const std::string& filas, const std::string& textos) {
    const std::string tipos = "http://schemas.openxmlformats.org/officeDocument/2006/relationships";
    const std::string relaciones =
        "<Relationships xmlns='http://schemas.openxmlformats.org/package/2006/relationships'>";
    const std::string vocabulario = "xmlns='http://schemas.openxmlformats.org/spreadsheetml/2006/main'";
    Partes partes;
    partes["_rels/.rels"] = relaciones + "<Relationship Id='a' Type='" + tipos +
                            "/officeDocument' Target='xl/workbook.xml'/></Relationships>";
    partes["xl/_rels/workbook.xml.rels"] = relaciones + "<Relationship Id='h' Type='" + tipos +
                                           "/worksheet' Target='hoja.xml'/>" + "<Relationship Id='t' Type='" + tipos +
                                           "/sharedStrings' Target='textos.xml'/></Relationships>";
    partes["xl/workbook.xml"] = "<workbook " + vocabulario + " xmlns:r='" + tipos +
                                "'><sheets><sheet name='H' sheetId='1' r:id='h'/></sheets></workbook>";
    partes["xl/hoja.xml"] = "<worksheet " + vocabulario + "><sheetData>" + filas + "</sheetData></worksheet>";
    partes["xl/textos.xml"] = "<sst " + vocabulario + ">" + textos + "</sst>";
    return partes;
}

Bytes LibroCon(const std::string& filas, const std::string& textos) { return Zip(PaqueteCon(filas, textos)); }

Flujo& Flujo::Registro(std::uint16_t tipo, const std::string& datos) {
    bytes_ += U16(tipo) + U16(static_cast<unsigned>(datos.size())) + datos;
    return *this;
}

Flujo& Flujo::Inicio(std::uint16_t clase) { return Registro(0x0809, U16(version_) + U16(clase) + U32(0)); }

Flujo& Flujo::Declarar(std::uint8_t clase) {
    constexpr std::size_t kCabecera = 4;
    lugares_.push_back(bytes_.size() + kCabecera);
    return Registro(0x0085, U32(0) + '\0' + static_cast<char>(clase) + '\1' + (version_ == 0x0600 ? "\0H" : "H"));
}

Flujo& Flujo::Empezar(std::size_t hoja, std::uint16_t clase) {
    bytes_.replace(lugares_.at(hoja), 4, U32(static_cast<std::uint32_t>(bytes_.size())));
    return Inicio(clase);
}

Bytes Flujo::Crudo() const {
    const auto bytes = std::as_bytes(std::span(bytes_));
    return {bytes.begin(), bytes.end()};
}

std::string U16(unsigned valor) { return {static_cast<char>(valor & 0xFF), static_cast<char>(valor >> 8 & 0xFF)}; }
std::string U32(std::uint32_t valor) { return U16(valor & 0xFFFF) + U16(valor >> 16); }
std::string F64(double valor) {
    const auto bits = std::bit_cast<std::uint64_t>(valor);
    return U32(static_cast<std::uint32_t>(bits)) + U32(static_cast<std::uint32_t>(bits >> 32));
}
std::string Celda(unsigned fila, unsigned columna) { return U16(fila) + U16(columna) + U16(0); }

}  // namespace cuencalia::pruebas
