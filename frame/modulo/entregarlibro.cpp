#include "frame/modulo/entregarlibro.h"

namespace cuencalia {

void EntregarLibro(Aplicacion& app, const Hoja& hoja, const std::string& guardado) {
    Plataforma& sistema = app.Sistema();
    if (sistema.MostrarLibro(hoja)) {
        return;
    }
    std::string nombre;
    sistema.ElegirArchivo(ModoArchivo::Guardar, "Guardar la hoja de cálculo", "Libro de Excel|*.xlsx", nombre);
    if (!nombre.empty()) {
        sistema.Hojas().EscribirLibro(nombre, hoja);
        app.MsgBox("No hay un programa de hojas de cálculo.\n" + guardado + "\n" + nombre, kIconoInformacion,
                   "Crear Excel");
    }
}

}  // namespace cuencalia
