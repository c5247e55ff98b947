#include "guion/plataformaguion.h"

#include "frame/controles/formulario.h"

namespace cuencalia {

void PlataformaGuion::MsgBox(const std::string& texto, Icono icono, const std::string& titulo) {
    mensajes.push_back({texto, icono, titulo});
}

bool PlataformaGuion::Preguntar(const std::string& texto, const std::string& titulo, bool /*porOmision*/) {
    MsgBox(texto, kIconoPregunta, titulo);
    return true;
}

void PlataformaGuion::MostrarError(const ErrorEjecucion& error) { errores.push_back(error); }

void PlataformaGuion::MostrarForma(Formulario& forma) { alFrente = &forma; }

void PlataformaGuion::DescargarForma(Formulario& forma) {
    if (alFrente == &forma) {
        alFrente = nullptr;
    }
}

void PlataformaGuion::MenuEmergente(Menu& menu) {
    entradaElegida = false;
    if (!entradaEmergente) {
        return;
    }
    for (Menu* entrada : menu.Entradas()) {
        if (entrada->Nombre() == *entradaEmergente) {
            entradaElegida = entrada->Elegir();
        }
    }
    entradaEmergente.reset();
}

void PlataformaGuion::ElegirArchivo(ModoArchivo, const std::string& titulo, const std::string& filtro,
                                    std::string& nombre) {
    tituloDialogo = titulo;
    filtroDialogo = filtro;
    if (archivo) {
        nombre = *archivo;
        archivo.reset();
    }
}

std::string PlataformaGuion::LeerAjuste(const std::string& clave, const std::string& porOmision) const {
    const auto hallado = ajustes.find(clave);
    return hallado == ajustes.end() ? porOmision : hallado->second;
}

std::string PlataformaGuion::CarpetaCompartida() { return CUENCALIA_COMPARTIDO; }

void PlataformaGuion::ImprimirForma(Formulario& forma) { impresas.push_back(forma.Nombre()); }

void PlataformaGuion::ImprimirDocumento(Formulario& documento, bool, const std::string&) {
    impresas.push_back(documento.Nombre());
}

void PlataformaGuion::AbrirConShell(const std::string& ruta) {
    if (shellFalla) {
        throw ErrorEjecucion(kArgumentoNoValido);
    }
    abiertos.push_back(ruta);
}

}  // namespace cuencalia
