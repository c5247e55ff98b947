#include "modules/caudales/formulacaudal.h"

#include <algorithm>

#include "frame/base/textos.h"
#include "modules/caudales/macmath.h"
#include "modules/caudales/racional.h"

namespace cuencalia {

namespace {

constexpr const char* kSinUrbanizar = "Zonas urbanas";  // of the list of urban classes: none of them

/// One text of each row of a table, each text once.
template <typename Tabla, typename Renglon>
std::vector<std::string> Textos(const Tabla& tabla, const char* Renglon::*columna) {
    std::vector<std::string> textos;
    for (const Renglon& renglon : tabla) {
        if (std::find(textos.begin(), textos.end(), renglon.*columna) == textos.end()) {
            textos.emplace_back(renglon.*columna);
        }
    }
    return textos;
}

GrupoClasificado ClasificarRacional(const std::vector<std::string>& textos, Double pendiente) {
    if (const std::string& urbana = textos[2]; urbana != kSinUrbanizar) {
        return {urbana, "", "", CoeficienteUrbano(urbana)};
    }
    return {textos[0], textos[1], CStr(pendiente), CoeficienteRural(textos[0], textos[1], pendiente)};
}

GrupoClasificado ClasificarMacMath(const std::vector<std::string>& textos, Double pendiente) {
    return {textos[0], textos[1], CStr(pendiente), CoeficienteMacMath(textos[0], textos[1], pendiente)};
}

}  // namespace

FormulaCaudal FormulaRacional() {
    const auto coberturas = Textos(kEscorrentiaRural, &EscorrentiaRural::cobertura);
    const auto texturas = Textos(kEscorrentiaRural, &EscorrentiaRural::textura);
    auto urbanas = Textos(kEscorrentiaUrbana, &EscorrentiaUrbana::clase);
    urbanas.insert(urbanas.begin(), kSinUrbanizar);  // the way back from an urban class
    return {.texto = "Q = C·I·A / 360",
            .rotuloC = "Coeficiente C:",
            .rotuloA = "Área cuenca:",
            .conPendiente = false,
            .caudal = [](Double C, Double I, Double A, Double) { return CaudalRacional(C, I, A); },
            .tablas = {.listas = {{"cboCobertura", "Cobertura:", coberturas, coberturas.front(), false},
                                  {"cboTextura", "Textura:", texturas, texturas.front(), false},
                                  {"cboZUrbana", "Zona urbana:", urbanas, kSinUrbanizar, true}},
                       .encabezados = {"Grupo N°", "Área", "Cobertura", "Textura", "Pendiente", "C"},
                       .tituloReporte = "Serie de datos de área, cobertura y de C parciales:",
                       .gruposMaximos = 150,
                       .faltaArea = {"Ingresar dato en forma adecuada"},
                       .faltaPendiente = {},
                       .clasificar = ClasificarRacional}};
}

FormulaCaudal FormulaMacMath() {
    return {
        .texto = "Q = 0.0091·C·I·A^(4/5)·S^(1/5)",
        .rotuloC = "Coeficiente (C):",
        .rotuloA = "Área cuenca (A):",
        .conPendiente = true,
        .caudal = CaudalMacMath,
        .tablas = {
            .listas = {{"cboCobertura", "Cobertura (%):", Textos(kTerminosCobertura, &TerminoTexto::texto), "0 - 20",
                        false},
                       {"cboTextura", "Textura:", Textos(kTerminosTextura, &TerminoTexto::texto), "Arenosa", false}},
            .encabezados = {"Grupo N°", "Área", "Cobertura (%)", "Textura", "Pendiente (%)", "C"},
            .tituloReporte = "Serie de datos de área, cobertura, textura, pendiente y de C parciales:",
            .gruposMaximos = 130,
            .faltaArea = {"Ingresar el dato del área en forma adecuada", kSinIcono, "Error"},
            .faltaPendiente = Aviso{"Ingresar el dato de la pendiente en forma adecuada", kSinIcono, "Error"},
            .clasificar = ClasificarMacMath}};
}

}  // namespace cuencalia
