#include "modules/caudales/fichaq.h"

#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"

namespace cuencalia {

namespace {

Aviso Falta(const char* que) {
    return {std::string("Ingresar un valor adecuado para ") + que, kIconoInformacion, "Error por dato inadecuado"};
}

}  // namespace

FichaQ::FichaQ(MarcoModulo& modulo, const FormulaCaudal& formula)
    : lblFormula(modulo, "lblFormula", formula.texto, Papel::Encabezado),
      fraDatosQ(modulo, "fraDatosQ", "Datos para calcular Q:"),
      C(modulo, {"txtcq", formula.rotuloC}),
      A(modulo, {"txtaq", formula.rotuloA, "has"}),
      I(modulo, {"txtiq", "Intensidad máxima (I):", "mm/hr"}),
      lblMensajeI(modulo, "lblMensajeI", "para una duración igual al tiempo de concentración y un período de retorno T",
                  Papel::Nota),
      lblPasos(modulo, "lblPasos",
               "C y el área vienen de la ficha Cálculo de C, e I de la ficha Cálculo de I. También se pueden escribir "
               "aquí.",
               Papel::Nota),
      fraResultadoQ(modulo, "fraResultadoQ", "Resultado:"),
      Qmax(modulo, {"txtqmax", "Q máximo:", "m3/s"}),
      formula_(formula) {
    if (formula.conPendiente) {
        datos_.push_back(&S.emplace(modulo, DescripcionCampo{"txtsp", "Pendiente cauce (S):", "o/oo"}));
    }
    std::vector<Control*> cajas;
    for (Campo* dato : datos_) {
        SoloNumero(dato->caja);
        cajas.push_back(&dato->caja);
    }
    EncadenarEnter(cajas, modulo.bCalcular);
    Qmax.caja.Locked = true;
}

std::vector<std::string> FichaQ::TextosDeDatos() const {
    std::vector<std::string> textos;
    for (const Campo* dato : datos_) {
        textos.push_back(dato->caja.Text);
    }
    return textos;
}

bool FichaQ::Calcular() {
    if (!Exigir(C.caja, Falta("C")) || !Exigir(A.caja, Falta("el área")) || !Exigir(I.caja, Falta("la Imáx")) ||
        (S && !Exigir(S->caja, Falta("la pendiente")))) {
        return false;
    }
    const Double Q = formula_.caudal(Val(C.caja.Text()), Val(I.caja.Text()), Val(A.caja.Text()),
                                     S ? Val(S->caja.Text()) : Double(0));
    Qmax.caja.Text = Format(Q, "0.##0");
    calculadaCon_ = TextosDeDatos();
    return true;
}

void FichaQ::Limpiar() {
    for (Campo* dato : datos_) {
        dato->caja.Text = "";
    }
    Qmax.caja.Text = "";
    C.caja.SetFocus();
}

std::string FichaQ::Resumen() const {
    const auto valor = [](const char* simbolo, const Campo& campo) {
        const std::string& texto = campo.caja.Text();
        const std::string& unidad = campo.unidad.Caption();
        return std::string(simbolo) + " = " + (texto.empty() ? "–" : texto + (unidad.empty() ? "" : " " + unidad));
    };
    const bool anterior = !Qmax.caja.Text().empty() && calculadaCon_ != TextosDeDatos();
    return valor("C", C) + ",  " + valor("A", A) + ",  " + valor("I", I) + (S ? ",  " + valor("S", *S) : "") +
           "   →   " + valor("Q máximo", Qmax) + (anterior ? " (anterior a estos datos)" : "");
}

void FichaQ::Reportar(Reporte& reporte, const char* titulo) const {
    const auto renglon = [&reporte](const std::string& rotulo, const Campo& campo) {
        const std::string& unidad = campo.unidad.Caption();
        reporte.ReporteLinea(Space(5) + rotulo + campo.caja.Text() + (unidad.empty() ? "" : " " + unidad));
    };
    reporte.Titulo(titulo);
    if (S) {
        renglon("Pendiente cauce S: ", *S);
    }
    renglon("Coeficiente C: ", C);
    renglon("Área de la cuenca: ", A);
    renglon("I máx: ", I);
    renglon("Q máx: ", Qmax);
    reporte.ReporteBlanco();
}

Disposicion FichaQ::Zona() {
    return Fila({Columna({lblFormula, Grupo(fraDatosQ, {EnColumna(datos_), lblMensajeI, lblPasos}),
                          Grupo(fraResultadoQ, {EnColumna({&Qmax})}), Espacio()}),
                 Espacio()});
}

}  // namespace cuencalia
