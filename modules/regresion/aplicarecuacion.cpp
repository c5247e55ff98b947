#include "modules/regresion/aplicarecuacion.h"

#include <algorithm>
#include <utility>

#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"

namespace cuencalia {

AplicarEcuacion::AplicarEcuacion(MarcoModulo& modulo, Descripcion descripcion)
    : Frame4(modulo, "Frame4", "Aplicar ecuación:"),
      lblCalculoY(modulo, "lblCalculoY", descripcion.rotulo, Papel::Encabezado),
      Label7(modulo, "Label7", "Valor de Y:"),
      txtvyy(modulo, "txtvyy"),
      bLimpiarDatos(modulo, "bLimpiarDatos", "Limpiar &datos", "Limpiar datos"),
      modulo_(modulo),
      descripcion_(std::move(descripcion)) {
    Label7.Nombra(txtvyy);
    for (const Caja& descrita : descripcion_.cajas) {
        TextBox& caja = cajas.emplace_back(modulo, descrita.nombre);
        rotulos.emplace_back(modulo, descrita.nombreRotulo, descrita.rotulo).Nombra(caja);
        caja.Change.Conectar([this] {
            ApagarOpciones();
            txtvyy.Text = "";
        });
    }
    for (const Opcion& descrita : descripcion_.opciones) {
        OptionButton& opcion = opciones.emplace_back(modulo, descrita.nombre, descrita.caption);
        opcion.Click.Conectar([this, &descrita] { Aplicar(descrita); });
    }
    for (std::size_t i = 0; i + 1 < cajas.size(); ++i) {
        AlPulsarEnter(cajas[i], [this, i] { cajas[i + 1].SetFocus(); });
    }
    AlPulsarEnter(cajas.back(), [this] { opciones.front().Value = true; });
    // The choice of an equation goes with the value typed for it: with no value it stays, until data are loaded.
    modulo.DeclararEntradas(Cajas());
    modulo.DeclararResultados({&txtvyy});
    modulo.DeclararLimpieza([this] { lblCalculoY.Caption = "Ecuación:"; });
    modulo.DeclararLimpieza([this] { ApagarOpciones(); }, MarcoModulo::Momento::AlCargar);
    bLimpiarDatos.Click.Conectar([this] { bLimpiarDatos_Click(); });
}

std::vector<TextBox*> AplicarEcuacion::Cajas() {
    std::vector<TextBox*> punteros;
    for (TextBox& caja : cajas) {
        punteros.push_back(&caja);
    }
    return punteros;
}

void AplicarEcuacion::ApagarOpciones() {
    for (OptionButton& opcion : opciones) {
        opcion.Value = false;
    }
}

void AplicarEcuacion::Aplicar(const Opcion& opcion) {
    if (!modulo_.calculado) {
        modulo_.App().MsgBox("Antes de hallar valor de Y, efectuar los cálculos de correlación");
        return;
    }
    if (std::any_of(cajas.begin(), cajas.end(), [](const TextBox& caja) { return caja.Text().empty(); })) {
        modulo_.App().MsgBox(descripcion_.faltaX);
        cajas.front().SetFocus();
        return;
    }
    std::vector<Double> valores;
    for (const TextBox& caja : cajas) {
        valores.push_back(Val(caja.Text()));
    }
    lblCalculoY.Caption = opcion.rotulo;
    txtvyy.Text = Format(opcion.ecuacion(valores), "#0.0000");
}

void AplicarEcuacion::bLimpiarDatos_Click() {
    for (TextBox& caja : cajas) {
        caja.Text = "";
    }
    txtvyy.Text = "";
    ApagarOpciones();
    cajas.front().SetFocus();
}

Disposicion AplicarEcuacion::Zona() {
    std::vector<Disposicion> valores, elecciones;
    for (std::size_t i = 0; i < cajas.size(); ++i) {
        valores.insert(valores.end(), {rotulos[i], cajas[i]});
    }
    valores.push_back(Espacio());
    for (OptionButton& opcion : opciones) {
        elecciones.emplace_back(opcion);
    }
    elecciones.push_back(Espacio());
    return Grupo(Frame4, {lblCalculoY, Fila(std::move(valores)), Fila(std::move(elecciones)),
                          Fila({Label7, txtvyy, bLimpiarDatos, Espacio()})});
}

}  // namespace cuencalia
