#include <map>

#include "frame/modulo/marcomodulo.h"
#include "modules/evapotranspiracion/blaneycriddle.h"
#include "modules/evapotranspiracion/hargreaves.h"
#include "modules/evapotranspiracion/valoresporlatitud.h"
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

TEST(BlaneyCriddle, LosVeintisieteClimas) {
    const std::map<std::string, Clase> clases{{"baja", Clase::Baja}, {"media", Clase::Media}, {"alta", Clase::Alta}};
    int rectas = 0;
    for (const std::string& linea : LineasDe("fao24_blaney_criddle.csv")) {
        const Textos recta = Partir(linea);
        if (clases.contains(recta[0])) {
            ++rectas;
            const RectaFao r = RectaDelClima(clases.at(recta[0]), clases.at(recta[1]), clases.at(recta[2]));
            EXPECT_EQ(r.a, Single(std::stof(recta[3]))) << linea;
            EXPECT_EQ(r.b, Single(std::stof(recta[4]))) << linea;
        }
    }
    EXPECT_EQ(rectas, 27);
    for (const auto& [clase, desde, hasta] :
         {std::tuple(&ClaseDeInsolacion, 0.6, 0.8), {&ClaseDeHumedad, 20, 50}, {&ClaseDeViento, 7.2, 18}}) {
        EXPECT_EQ(clase(desde - 0.001), Clase::Baja);
        EXPECT_TRUE(clase(desde) == Clase::Media && clase(hasta) == Clase::Media) << desde;
        EXPECT_EQ(clase(hasta + 0.001), Clase::Alta);
    }
}

class Cultivos : public FormaEnUso<Formulario> {
  protected:
    Cultivos() : FormaEnUso("frmBlaneyCriddle") {}
};

// An entry shows the coefficient that is used.
TEST_F(Cultivos, TienenSuKc) {
    Textos lista;
    for (const Textos& cultivo : Renglones("cultivos.csv", "temporada")) {
        lista.push_back(cultivo[0] + " (" + cultivo[1] + ")");
    }
    EXPECT_EQ(dynamic_cast<ComboBox&>(*F().Controls("cobKc")).List(), lista);
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
