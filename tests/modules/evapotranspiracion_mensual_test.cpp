#include <map>

#include "modules/evapotranspiracion/frmBlaneyCriddle.h"
#include "modules/evapotranspiracion/hargreaves.h"
#include "tests/archivos_en_disco.h"
#include "tests/datos_publicados.h"
#include "tests/forma_en_uso.h"
#include "tests/numero_de_error.h"

namespace cuencalia::pruebas {
namespace {

// Each key against the line of the published table that bears it.
TEST(TablasPorLatitud, CadaClaveTieneSuRenglon) {
    int claves = 0;
    for (const auto& [tabla, lista, publicada] : {std::tuple{&kTablaF, &kTablaF, "thornthwaite_f"},
                                                  {&kTablaP, &kTablaP, "fao_p"},
                                                  {&kTablaN, &kTablaP, "fao_n"}}) {
        ValoresPorLatitud valores(*tabla);
        valores.Cargar(PlataformaGuion().CarpetaInstalacion() + "/tablas");
        EXPECT_EQ(valores.Falta(), "");
        for (const std::string& grados : ListaDeLatitudes(*lista)) {
            for (const char* hemisferio : {"N", "S"}) {
                ASSERT_TRUE(valores.Elegir(grados + hemisferio)) << grados << hemisferio;
                const bool polar = tabla == &kTablaN && std::stoi(grados) > 50;
                const std::string clave = grados == "0" ? "0N" : (polar ? "50" : grados) + hemisferio;
                for (const std::string& linea : LineasDe(std::string("../../../tablas/") + publicada + ".csv")) {
                    const Textos campos = Partir(linea);
                    for (int m = 1; campos[0] == clave && m <= 12; ++m, ++claves) {
                        EXPECT_EQ(valores(m), Single(std::stof(campos[static_cast<std::size_t>(m)]))) << clave << m;
                    }
                }
            }
        }
        const Single ultimo = valores(1);
        for (const char* otra : {"", "N", "10", "010N", "10n", "12N", "55N", "61S"}) {
            EXPECT_FALSE(valores.Elegir(otra)) << otra;
        }
        EXPECT_EQ(valores(1), ultimo);
    }
    EXPECT_EQ(claves, 12 * 2 * (11 + 19 + 19));
    EXPECT_EQ(ListaDeLatitudes(kTablaF), (Textos{"0", "5", "10", "15", "20", "25", "30", "35", "40", "45", "50"}));
}

// A table that is not there is made, empty; its folder is not. Values are what the file has, -1 for no file, -2 for no
// folder.
TEST(TablasPorLatitud, FaltanOSobran) {
    const CarpetaTemporal carpeta;
    const std::string ruta = carpeta / "tablas/FThornthwite.TF";
    const std::tuple<int, const char*, int> casos[] = {{-2, "", 76},
                                                       {-1, "No se encontró la tabla", 0},
                                                       {0, "faltan 252 valores", 0},
                                                       {251, "faltan 1 ", 0},
                                                       {252, "n = 0", 0},
                                                       {300, "n = 0", 0},
                                                       {301, "", 9}};
    for (const auto& [valores, aviso, error] : casos) {
        SCOPED_TRACE(valores);
        std::filesystem::create_directory(carpeta / (valores == -2 ? "" : "tablas"));
        if (valores >= 0) {
            Guardar(ruta, std::string(static_cast<std::size_t>(4 * valores), '\0'));
        }
        PlataformaGuion sistema;
        sistema.carpeta = carpeta / "";
        Aplicacion app{sistema, FormasDelPrograma()};
        app.Despachar([&] { app.ModuloAbrir("frmThornthwaite"); });
        const auto* modulo = static_cast<const MarcoModulo*>(app.Cargada("frmThornthwaite"));
        const std::string panel = modulo == nullptr ? "" : modulo->StatusBar1.Panel(kPanelAvisos) + "n = 0";
        EXPECT_TRUE(panel.starts_with(aviso) || panel.find(std::string(": ") + aviso) != panel.npos) << panel;
        EXPECT_EQ(NumerosDe(sistema.errores), error == 0 ? std::vector<int>{} : std::vector{error});
        EXPECT_EQ(std::filesystem::exists(ruta), valores >= -1);
    }
}

class BlaneyCriddle : public FormaEnUso<frmBlaneyCriddle> {
  protected:
    BlaneyCriddle() : FormaEnUso("frmBlaneyCriddle") {}
    /// The reference evapotranspiration of May.
    double Calcular(const std::function<void()>& poner) {
        app.Despachar(poner);
        app.Pulsar(F().bCalcular);
        return F().ETo(5).valor();
    }
};

// Estimates by their places in the lists, measurements at the bounds and beside them. In May N is 13.6 hours at 30N,
// and f is 0.31·(0.46·28.5 + 8.13).
TEST_F(BlaneyCriddle, LosVeintisieteClimas) {
    app.Despachar([this] {
        F().datos.EmpezarCarga(12);
        F().datos.grdt.PonerTextMatrix(5, 1, "28.5");
        F().cobLatitud.Text = "30";
        F().cobKc.Elegir(0);
    });
    const std::map<std::string, int> clases{{"baja", 0}, {"media", 1}, {"alta", 2}};
    const Textos horas[] = {{"0", "8.15"}, {"8.17", "10.87"}, {"10.89", "13.6"}};
    const Textos humedades[] = {{"0", "19.999"}, {"20", "50"}, {"50.001", "100"}};
    const Textos vientos[] = {{"0", "7.199"}, {"7.2", "18"}, {"18.001", "90"}};
    int rectas = 0;
    for (const std::string& linea : LineasDe("fao24_blaney_criddle.csv")) {
        const Textos recta = Partir(linea);
        if (!clases.contains(recta[0])) {
            continue;
        }
        SCOPED_TRACE(linea);
        ++rectas;
        const int s = clases.at(recta[0]), h = clases.at(recta[1]), v = clases.at(recta[2]);
        const double ETo = std::stod(recta[3]) + std::stod(recta[4]) * 0.31 * 21.24;
        const auto estimar = [&] {
            F().OptEstimado.Value = true;
            F().cobInsolacion.Elegir(2 - s), F().cobHumedad.Elegir(h), F().cobViento.Elegir(v);
        };
        EXPECT_NEAR(Calcular(estimar), ETo, 2e-6);
        EXPECT_NEAR(Calcular([&] { F().cobInsolacion.Elegir(s == 0 ? 3 : 2 - s); }), ETo, 2e-6) << "Cubierto";
        for (const std::size_t orilla : {0U, 1U}) {
            const auto medir = [&] {
                F().OptMedido.Value = true;
                F().txtcn.Text = horas[s][orilla];
                F().txtchrmin.Text = humedades[h][orilla], F().txtcv.Text = vientos[v][orilla];
            };
            EXPECT_NEAR(Calcular(medir), ETo, 2e-6) << orilla;
        }
    }
    EXPECT_EQ(rectas, 27);
    EsperarSilencio();
}

// An entry shows the coefficient that is used.
TEST_F(BlaneyCriddle, LosKcDeLosCultivos) {
    Textos lista;
    for (const Textos& cultivo : Renglones("cultivos.csv", "temporada")) {
        lista.push_back(cultivo[0] + " (" + cultivo[1] + ")");
    }
    EXPECT_EQ(F().cobKc.List(), lista);
    for (const auto& [etapa, columna] :
         {std::pair(EtapaCultivo::Inicial, 1U), {EtapaCultivo::Mediados, 2U}, {EtapaCultivo::Final, 3U}}) {
        lista.clear();
        for (const Textos& cultivo : Renglones("cultivos.csv", "etapas")) {
            const std::string& Kc = cultivo[columna];
            EXPECT_EQ(KcDeCultivo(etapa, static_cast<int>(lista.size())), Single(std::stof(Kc))) << cultivo[0];
            lista.push_back(cultivo[0] + " (" + Kc + ")");
        }
        EXPECT_EQ(CultivosConKc(etapa), lista);
    }
}

}  // namespace
}  // namespace cuencalia::pruebas
