#include "tests/hojas/fabrica.h"

#include <gsf/gsf.h>

#include <bit>

#include "tests/archivos_en_disco.h"

namespace cuencalia::pruebas {

namespace {

std::span<const std::byte> EnBytes(const std::string& texto) { return std::as_bytes(std::span(texto)); }

// Writes the parts with the library's own container, folder by folder as the names say.
std::string Empacar(GsfOutput* memoria, GsfOutfile* raiz, const Partes& partes) {
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
    const auto* datos = reinterpret_cast<const char*>(gsf_output_memory_get_bytes(GSF_OUTPUT_MEMORY(memoria)));
    const std::string bytes(datos, static_cast<std::size_t>(gsf_output_size(memoria)));
    g_object_unref(memoria);
    return bytes;
}

}  // namespace

Filas Tabla(const Hoja& hoja, int columnas) {
    Filas filas(static_cast<std::size_t>(hoja.Filas()));
    for (int i = 1; i <= hoja.Filas(); ++i) {
        for (int j = 1; j <= columnas; ++j) {
            filas[static_cast<std::size_t>(i - 1)].push_back(hoja.Cells(i, j));
        }
    }
    return filas;
}

Filas Leer(const std::string& libro, int columnas, int filasMax) {
    return Tabla(LeerLibro(EnBytes(libro), columnas, filasMax), columnas);
}

std::string Rechazo(const std::string& libro) {
    try {
        LeerLibro(EnBytes(libro), 4, 1501);
        return "";
    } catch (const ErrorEjecucion& error) {
        return error.Numero() == kErrorLibro ? error.Texto() : "otro error: " + error.Texto();
    }
}

std::string Dato(const std::string& nombre) { return BytesDe(std::string(CUENCALIA_DATOS_HOJAS) + "/" + nombre); }

std::string Zip(const Partes& partes) {
    GsfOutput* memoria = gsf_output_memory_new();
    return Empacar(memoria, gsf_outfile_zip_new(memoria, nullptr), partes);
}

std::string Ole(const Partes& flujos) {
    GsfOutput* memoria = gsf_output_memory_new();
    return Empacar(memoria, gsf_outfile_msole_new(memoria), flujos);
}

Partes PaqueteCon(const std::string& filas, const std::string& textos) {
    const std::string tipos = "http://schemas.openxmlformats.org/officeDocument/2006/relationships";
    const std::string vocabulario = "xmlns='http://schemas.openxmlformats.org/spreadsheetml/2006/main'";
    const auto relacion = [&](const std::string& id, const std::string& tipo, const std::string& parte) {
        return "<Relationship Id='" + id + "' Type='" + tipos + "/" + tipo + "' Target='" + parte + "'/>";
    };
    const auto relaciones = [](const std::string& todas) {
        return "<Relationships xmlns='http://schemas.openxmlformats.org/package/2006/relationships'>" + todas +
               "</Relationships>";
    };
    return {{"_rels/.rels", relaciones(relacion("a", "officeDocument", "xl/workbook.xml"))},
            {"xl/_rels/workbook.xml.rels",
             relaciones(relacion("h", "worksheet", "hoja.xml") + relacion("t", "sharedStrings", "textos.xml"))},
            {"xl/workbook.xml", "<workbook " + vocabulario + " xmlns:r='" + tipos +
                                    "'><sheets><sheet name='H' sheetId='1' r:id='h'/></sheets></workbook>"},
            {"xl/hoja.xml", "<worksheet " + vocabulario + "><sheetData>" + filas + "</sheetData></worksheet>"},
            {"xl/textos.xml", "<sst " + vocabulario + ">" + textos + "</sst>"}};
}

std::string Registro(unsigned tipo, const std::string& datos) {
    return U16(tipo) + U16(static_cast<unsigned>(datos.size())) + datos;
}

std::string Inicio(unsigned clase, unsigned version) { return Registro(0x0809, U16(version) + U16(clase) + U32(0)); }

std::string LibroBiff(const std::vector<HojaBiff>& hojas, const std::string& globales, unsigned version) {
    std::string declaradas, flujos;
    std::size_t lugar =
        Inicio(5, version).size() + hojas.size() * Registro(0x0085, "123456").size() + globales.size() + kFin.size();
    for (auto hoja = hojas.rbegin(); hoja != hojas.rend(); ++hoja) {
        const std::string flujo = Inicio(hoja->clase == 0 ? 0x0010 : 0x0020, version) + hoja->registros + kFin;
        declaradas.insert(0, Registro(0x0085, U32(static_cast<std::uint32_t>(lugar)) + '\0' + hoja->clase));
        lugar += flujo.size();
        flujos += flujo;
    }
    return Inicio(5, version) + declaradas + globales + kFin + flujos;
}

std::string U16(unsigned valor) { return {static_cast<char>(valor & 0xFF), static_cast<char>(valor >> 8 & 0xFF)}; }
std::string U32(std::uint32_t valor) { return U16(valor & 0xFFFF) + U16(valor >> 16); }
std::string F64(double valor) {
    const auto bits = std::bit_cast<std::uint64_t>(valor);
    return U32(static_cast<std::uint32_t>(bits)) + U32(static_cast<std::uint32_t>(bits >> 32));
}
std::string Celda(unsigned fila, unsigned columna) { return U16(fila) + U16(columna) + U16(0); }

}  // namespace cuencalia::pruebas
