#include "modules/evapotranspiracion/frmPenman.h"

#include <array>
#include <utility>

#include "frame/modulo/cajas.h"

namespace cuencalia {

namespace {

constexpr const char* kPatron = "0.0#";

/// A box of the climate, and how a message names it when it is empty.
struct Entrada {
    DescripcionCampo campo;
    Double DatosPenman::*valor;
    const char* que;
};

/// In the order in which they are read and reported.
constexpr std::array kEntradas{
    Entrada{{"txth", "Altitud (h):", "m.s.n.m", " Altitud: h = ", "m.s.n.m."}, &DatosPenman::h, "la altitud"},
    Entrada{{"txtt", "Tmedia (T):", "ºC", " Temperatura: Tmed = "}, &DatosPenman::T, "la temperatura"},
    Entrada{{"txtHRmed", "HRmedia", "%", " Humedad relativa media: HRmed = "},
            &DatosPenman::HRmed,
            "la humedad relativa media"},
    Entrada{{"txtHRmax", "HRmáxima", "%", " Humedad relativa máxima: HRmáx = "},
            &DatosPenman::HRmax,
            "la humedad relativa máxima"},
    Entrada{{"txtUz", "Velocidad viento:", "km/hr", " Velocidad del viento: Uz = "},
            &DatosPenman::Uz,
            "la velocidad del viento"},
    Entrada{{"txtHz", "Altura medición viento (z):", "m", " Altura medición del viento hz = : "},
            &DatosPenman::z,
            "la altura de medición del viento"},
    Entrada{{"txtRVdVn", "Relación Vdía/Vnoche", "", " Relación velocidad dia/velocidad noche: Ud/Un = "},
            &DatosPenman::R,
            "la relación de velocidades del viento Vd/Vn"},
    Entrada{{"txtnp", "Horas de insolación real (n):", "hr/día", " Horas de insolación real: n = "},
            &DatosPenman::n,
            "el número de horas de insolación solar real"},
};

/// The intermediate results and the final ones, in the order of the report.
constexpr std::array kParciales{"txtRa",  "txtN",    "txtRnpNg", "txtFhv", "txtU2",  "txtea",
                                "txted",  "txteaed", "txtw",     "txt1w",  "txtfu",  "txtft",
                                "txtfed", "txtfnN",  "txtRn1",   "txtRs",  "txtRns", "txtRn"};
constexpr std::array kFinales{"txtC", "txtRadiacion", "txtAdveccion", "txtETo"};

std::vector<DescripcionCampo> DescripcionesDeEntradas() {
    std::vector<DescripcionCampo> campos;
    campos.reserve(kEntradas.size());
    for (const Entrada& entrada : kEntradas) {
        campos.push_back(entrada.campo);
    }
    return campos;
}

}  // namespace

frmPenman::frmPenman(Aplicacion& app)
    : MarcoRadiacion(app, "frmPenman",
                     "Cálculo de la evapotranspiración potencial por el método de Penman modificado por la FAO"),
      entradas(*this, DescripcionesDeEntradas()),
      radiacion(
          *this,
          {{{"txtN", "N:", "hr/día", " Duración máxima posible de horas de insolación : N = "}, &ResultadoPenman::N},
           {{"txtRa", "Ra:", "mm/día", " Radiación extraterrestre: Ra = "}, &ResultadoPenman::Ra},
           {{"txtRnpNg", "n/N:", "", " Insolación relativa: n/N = "}, &ResultadoPenman::n_N},
           {{"txtRs", "Rs:", "mm/día", " Radiación de onda corta: Rs = "}, &ResultadoPenman::Rs},
           {{"txtRns", "Rns:", "mm/día", " Radiación neta de onda corta: Rns = "}, &ResultadoPenman::Rns},
           {{"txtft", "f(t):", "", " Función de la temperatura: ft = "}, &ResultadoPenman::fT},
           {{"txtfed", "f(ed):", "", " Función de la presión del vapor del agua: fed = "}, &ResultadoPenman::fed},
           {{"txtfnN", "f(n/N):", "", " Función de la relación entre hora de insolación reales y máxima: fu/N = "},
            &ResultadoPenman::fnN},
           {{"txtRn1", "Rn1:", "mm/día", " Radiación neta de onda larga: Rn1 = "}, &ResultadoPenman::Rn1},
           {{"txtRn", "Rn:", "mm/día", " Radiación neta total: Rn = "}, &ResultadoPenman::Rn}}),
      viento(*this,
             {{{"txtFhv", "f(z)2m:", "", " Coeficiente de correción por altura velocidad fz = "}, &ResultadoPenman::fz},
              {{"txtU2", "Vviento2m:", "km/hr", " Velocidad del viento medida a 2 m: U2 = "}, &ResultadoPenman::U2},
              {{"txtfu", "f(u):", "", " Función del viento: fu = "}, &ResultadoPenman::fu}}),
      vapor(*this,
            {{{"txtea", "ea:", "mbar", " Presión de vapor del agua a saturación: ea = "}, &ResultadoPenman::ea},
             {{"txted", "ed:", "mbar", " Presión de vapor del agua actual: ed = "}, &ResultadoPenman::ed},
             {{"txteaed", "ea-ed:", "mbar", " Déficit presión de vapor: ea - ed = "}, &ResultadoPenman::deficit}}),
      ponderacion(*this, {{{"txtw", "w:", "", " Factor de ponderación para Penman: w = "}, &ResultadoPenman::W},
                          {{"txt1w", "1-w:", "", " Valor de: 1 - w = "}, &ResultadoPenman::W1}}),
      resultado(*this,
                {{{"txtRadiacion", "Término Radiación:", "mm/día", " Témino de radiación: TerRadiación = "},
                  &ResultadoPenman::radiacion},
                 {{"txtAdveccion", "Término Advección:", "mm/día", " Témino de advección: TerAdvección = "},
                  &ResultadoPenman::adveccion},
                 {{"txtC", "C:", "", " Factor de ajuste para Penman: c = "}, &ResultadoPenman::c},
                 {{"txtETo", "ETo:", "mm/día", " Evapotranpiración de referencia: ETo = "}, &ResultadoPenman::ETo}}) {
    DeclararEntradas(entradas.Cajas());
    std::vector<Control*> recorrido{&txtLatitud, &cobNS, &cobMes};
    for (TextBox* caja : entradas.Cajas()) {
        recorrido.push_back(caja);
    }
    EncadenarEnter(recorrido, bCalcular);
    for (CamposDe<ResultadoPenman>* grupo : resultados_) {
        DeclararResultados(grupo->Cajas());
    }
}

void frmPenman::LeerDatos() {
    const Double T = std::exchange(datos_, {}).T;
    datos_.T = T;
    std::string sinDato;
    const auto sin = [&](const std::string& que, Double valor) {
        sinDato += (sinDato.empty() ? "Se calculó con " : ", ") + que + " = " + CStr(valor);
    };
    if (const std::optional<Double> lat = LeerLatitud()) {
        datos_.lat = *lat;
    } else {
        sin("la latitud", 0);
    }
    datos_.mes = Mes();
    for (std::size_t i = 0; i < kEntradas.size(); ++i) {
        const Entrada& entrada = kEntradas[i];
        Double& valor = datos_.*entrada.valor;
        if (Exigir(entradas.Caja(i), Ingresar(std::string("para ") + entrada.que))) {
            valor = Val(entradas.Caja(i).Text());
        } else {
            sin(entrada.que, valor);
        }
    }
    if (!sinDato.empty()) {
        Avisar(sinDato);
    }
}

bool frmPenman::Calcular() {
    LeerDatos();
    const ResultadoPenman r = EToPenman(datos_);
    for (CamposDe<ResultadoPenman>* grupo : resultados_) {
        grupo->Mostrar(r, kPatron);
    }
    return true;
}

std::string frmPenman::Consejo(const ErrorEjecucion& /*error*/) const {
    if (std::string consejo = ConsejoDelSol(datos_.lat); !consejo.empty()) {
        return consejo;
    }
    return datos_.z <= kAlturaMinima ? "La altura de medición del viento debe ser mayor que 0.08 m" : "";
}

void frmPenman::GenerarReporte(Reporte& reporte) {
    const auto renglon = [&](const std::string& nombre) {
        for (const Campos* grupo : resultados_) {
            if (const Campo* campo = grupo->Hallar(nombre)) {
                reporte.ReporteLinea(campo->Renglon());
            }
        }
    };
    reporte.ReporteLinea("Datos: ");
    reporte.ReporteLinea(RenglonLatitud());
    reporte.ReporteLinea(entradas.Renglon(0));
    reporte.ReporteLinea(RenglonMes());
    for (std::size_t i = 1; i < kEntradas.size(); ++i) {
        reporte.ReporteLinea(entradas.Renglon(i));
    }
    reporte.ReporteLinea(" Resultados parciales:");
    for (const char* nombre : kParciales) {
        renglon(nombre);
    }
    reporte.ReporteLinea(" Resultados finales:");
    for (const char* nombre : kFinales) {
        renglon(nombre);
    }
}

Disposicion frmPenman::Cuerpo() {
    Disposicion pasos = Fila({Columna({Grupo(fraDatos, {TablaDeDatos(entradas)}), Espacio()}),
                              Columna({Grupo(fraRadiacion, {radiacion.Tabla()}), Espacio()}),
                              Columna({Grupo(fraViento, {viento.Tabla()}), Grupo(fraVapor, {vapor.Tabla()}),
                                       Grupo(fraPonderacion, {ponderacion.Tabla()}), Espacio()}),
                              Espacio()});
    // The sum of both terms and its factor, in one line below the steps.
    return Columna({std::move(pasos), Fila({Grupo(fraResultado, {resultado.Tabla(12)}), Espacio()}), Espacio()});
}

}  // namespace cuencalia
