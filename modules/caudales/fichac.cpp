#include "modules/caudales/fichac.h"

#include "frame/base/textos.h"
#include "frame/modulo/cajas.h"

namespace cuencalia {

namespace {

constexpr int kFilasTabla = 50;  // the heading and 49 groups

DescripcionTabla TablaDeGrupos(const std::vector<const char*>& encabezados) {
    constexpr int kAnchos[] = {340, 800, 2600, 1500, 800, 600};
    DescripcionTabla tabla{.filas = kFilasTabla, .columnas = {}};
    for (std::size_t c = 0; c < encabezados.size(); ++c) {
        tabla.columnas.push_back({encabezados[c], kAnchos[c]});
    }
    return tabla;
}

/// A cell with the blanks up to the next column of the report.
std::string CeldaDeGrupo(const std::string& texto, int /*fila*/, int columna) {
    constexpr int kAnchos[] = {8, 14, 37, 24, 16, 0};  // of the columns, in characters
    return " " + texto + Space(kAnchos[columna] - 1 - Len(texto));
}

}  // namespace

FichaC::Lista::Lista(Formulario& forma, const ListaSuelo& descripcion)
    : rotulo(forma, std::string("lbl") + descripcion.nombre, descripcion.rotulo),
      combo(forma, descripcion.nombre, descripcion.entradas) {
    rotulo.Nombra(combo);
    combo.Text = descripcion.inicio;
}

FichaC::FichaC(MarcoModulo& modulo, const TablasDeC& tablas, FichaQ& destino)
    : fraDatosC(modulo, "fraDatosC", "Ingreso datos:"),
      grupo(modulo, {"txtgrupo", "Grupo N°:"}),
      area(modulo, {"txtac", "Area (a):", "has"}),
      pendiente(modulo, {"txts", "Pendiente", "%"}),
      bAgregar(modulo, "bAgregar", "Agregar", "Agregar el grupo a la tabla"),
      grdC(modulo, "grdC", "Grupos de la cuenca", TablaDeGrupos(tablas.encabezados)),
      fraResultadosC(modulo, "fraResultadosC", "Resultados:"),
      bCponderado(modulo, "bCponderado", "C ponderado", "Calcular el C ponderado y pasarlo al cálculo de Q"),
      ponderado(modulo, {"txtCponderado", "C ponderado:"}),
      total(modulo, {"txtatotal", "Area total:", "has"}),
      modulo_(modulo),
      tablas_(tablas),
      destino_(destino),
      grupos_(1, tablas.gruposMaximos) {
    for (const ListaSuelo& lista : tablas.listas) {
        listas.push_back(std::make_unique<Lista>(modulo, lista));
    }
    for (Campo* campo : {&grupo, &ponderado, &total}) {
        campo->caja.Locked = true;
    }
    SoloNumero(area.caja);
    SoloNumero(pendiente.caja);
    EncadenarEnter({&area.caja, &pendiente.caja}, bAgregar);
    bAgregar.Click.Conectar([this] { bAgregar_Click(); });
    bCponderado.Click.Conectar([this] { bCponderado_Click(); });
}

void FichaC::ReiniciarC() {
    ngrupos_ = 0;
    grupo.caja.Text = "1";
    grdC.Iniciar();
    for (Campo* campo : {&area, &pendiente, &ponderado, &total}) {
        campo->caja.Text = "";
    }
}

void FichaC::Limpiar() {
    ReiniciarC();
    area.caja.SetFocus();
}

void FichaC::bAgregar_Click() {
    if (!Exigir(area.caja, tablas_.faltaArea) ||
        (tablas_.faltaPendiente && !Exigir(pendiente.caja, *tablas_.faltaPendiente))) {
        return;
    }
    GrupoSuelo& nuevo = grupos_(++ngrupos_);
    nuevo.area = CSng(Val(area.caja.Text()));
    std::vector<std::string> textos;
    for (const auto& lista : listas) {
        textos.push_back(lista->combo.Text);
    }
    const GrupoClasificado clase = tablas_.clasificar(textos, Val(pendiente.caja.Text()));
    nuevo.C = CSng(clase.C);
    if (ngrupos_ >= kFilasTabla) {
        Avisar("La tabla admite 49 grupos: los demás cuentan en el C ponderado, pero no se ven");
    } else {
        Avisar(clase.C == 0 ? "Los textos elegidos no están en las tablas: C = 0" : "");
    }
    grdC.PonerFila(ngrupos_,
                   {CStr(ngrupos_), CStr(nuevo.area), clase.cobertura, clase.textura, clase.pendiente, CStr(nuevo.C)});
    grupo.caja.Text = CStr(ngrupos_ + 1);
    area.caja.Text = "";
    pendiente.caja.Text = "";
    for (std::size_t i = 0; i < listas.size(); ++i) {
        if (tablas_.listas[i].vuelve) {
            listas[i]->combo.Text = tablas_.listas[i].inicio;
        }
    }
    area.caja.SetFocus();
}

void FichaC::bCponderado_Click() {
    Avisar(ngrupos_ == 0                 ? "No hay grupos: agregar por lo menos uno"
           : ngrupos_ > grupos_.UBound() ? "Hay más de " + CStr(grupos_.UBound()) + " grupos: limpiar y agregar menos"
                                         : "");
    const Ponderacion p = PonderarC(grupos_, ngrupos_);
    ponderado.caja.Text = Format(p.C, "0.0#");
    destino_.C.caja.Text = ponderado.caja.Text();
    total.caja.Text = CStr(p.area);
    destino_.A.caja.Text = total.caja.Text();
    Avisar("C y el área pasaron al cálculo de Q");
}

void FichaC::Reportar(Reporte& reporte) {
    std::string encabezado;
    for (int columna = 0; columna < grdC.Cols(); ++columna) {
        encabezado += CeldaDeGrupo(columna == 0 ? "N°" : grdC.TextMatrix(0, columna), 0, columna);
    }
    reporte.EscribirTabla(
        {.titulo = tablas_.tituloReporte, .regla = 140, .encabezado = encabezado, .celda = CeldaDeGrupo}, grdC,
        ngrupos_);
    reporte.ReporteLinea(Space(25) + "C ponderado:" + ponderado.caja.Text());
    reporte.ReporteLinea(Space(27) + "Area total:" + total.caja.Text() + " has");
    reporte.ReporteBlanco();
}

Disposicion FichaC::Zona() {
    std::vector<Disposicion> elecciones;
    for (const auto& lista : listas) {
        elecciones.insert(elecciones.end(), {lista->rotulo, lista->combo});
    }
    Disposicion ingreso = Grupo(fraDatosC, {EnColumna({&grupo, &area, &pendiente}), Pares(2, std::move(elecciones)),
                                            Fila({bAgregar, Espacio()})});
    Disposicion resultados = Grupo(fraResultadosC, {Fila({bCponderado, Espacio()}), EnColumna({&ponderado, &total})});
    return Fila({Columna({std::move(ingreso), std::move(resultados), Espacio()}), Disposicion(grdC).Estira(1)});
}

}  // namespace cuencalia
