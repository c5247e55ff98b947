#include "guion/guion.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "frame/modulo/modulo.h"
#include "shell/formas.h"

namespace cuencalia::pruebas {
namespace {

using Lineas = std::vector<std::string>;

/// A module with a control of each kind.
class FormaGuion : public ModuloCalculo {
  public:
    explicit FormaGuion(Aplicacion& app)
        : ModuloCalculo(app, "frmGuion", {.titulo = "Módulo de prueba", .encabezados = {"Par", "X", "Y"}}) {
        AgregarBoton(bCalcular, "calcular");
        txtDigitos.KeyPress.Conectar([](int& c) { c = c < ' ' || (c >= '0' && c <= '9') ? c : 0; });
        txtFijo.Locked = true;
        cbFijo.Editable = false;
        cbLatitud.Click.Conectar([this] { lblDato.Caption = "elegida " + cbLatitud.Text(); });
        opt2.Click.Conectar([this] { lblDato.Caption = "dos"; });
        bOculto.Visible = false;
        bGris.Enabled = false;
        num7.Click.Conectar([this] { lblDato.Caption = lblDato.Caption() + "7"; });
        mnuAviso.Click.Conectar([this] { App().MsgBox("Con \"comillas\",\n\\ y\ttab", kIconoInformacion, "Título"); });
    }

    TextBox txtDigitos{*this, "txtDigitos"}, txtFijo{*this, "txtFijo"}, txtPagina{*this, "txtPagina"};
    Label lblDato{*this, "lblDato", "dato"};
    Frame FrameO{*this, "FrameO", "Opciones:"}, FrameP{*this, "FrameP"};
    OptionButton opt1{*this, "opt1", "Uno", true}, opt2{*this, "opt2", "Dos"};
    ComboBox cbLatitud{*this, "cbLatitud", {"0", "10", "20"}}, cbFijo{*this, "cbFijo", {"a", "b"}};
    CommandButton bOculto{*this, "bOculto", "Oculto"}, bGris{*this, "bGris", "Gris"};
    CommandButton num7{*this, "cmdNum(7)", "7"};
    SSTab SSTab1{*this, "SSTab1", {"Datos", "Más"}};
    Menu mnuFile{*this, "mnuFile", "&Archivo"};
    Menu mnuAviso{mnuFile, "mnuAviso", "Aviso"};

    void GenerarReporte(Reporte&) override {}

    /// Fails after its first statement.
    void bCalcular_Click() override {
        lblDato.Caption = "antes";
        lblDato.Caption = Double(1) / Double(0) > 0 ? "después" : "nunca";
    }

  protected:
    Disposicion Contenido() override {
        return Columna({txtDigitos, txtFijo, lblDato, Grupo(FrameO, {opt1, opt2}), cbLatitud, cbFijo, bOculto, bGris,
                        num7, Fichas(SSTab1, {Espacio(), Grupo(FrameP, {txtPagina})})});
    }
};

class MenuGuion : public Formulario {
  public:
    explicit MenuGuion(Aplicacion& app) : Formulario(app, "frmCuencalia", "Menú de prueba") {
        mguion.Click.Conectar([this] { App().ModuloAbrir("frmGuion"); });
        mgris.Enabled = false;
        bsalir.Click.Conectar([this] { App().Terminar(); });
    }

    Menu mpara{*this, "mpara", "Menú"};
    Menu mguion{mpara, "mguion", "Módulo"};
    Menu mgris{mpara, "mgris", "Gris"};
    CommandButton bsalir{*this, "bsalir", "&Salir"};

  protected:
    Disposicion Disponer() override { return bsalir; }
};

class GuionTest : public testing::Test {
  protected:
    GuionTest() { guion.Ejecutar("menu mguion"); }

    static TablaFormas Formas() {
        return {{"frmCuencalia", [](Aplicacion& a) { return std::make_unique<MenuGuion>(a); }},
                {"frmGuion", [](Aplicacion& a) { return std::make_unique<FormaGuion>(a); }}};
    }

    /// Plays the lines and gives the lines that they printed.
    Lineas Salida(const Lineas& ordenes) {
        salida.str("");
        for (const std::string& orden : ordenes) {
            guion.Ejecutar(orden);
        }
        Lineas dichas;
        std::istringstream texto(salida.str());
        for (std::string linea; std::getline(texto, linea);) {
            dichas.push_back(linea);
        }
        return dichas;
    }
    /// What `ver` prints of a control with a text.
    static std::string Texto(const std::string& control, const std::string& texto) {
        return R"({"control":")" + control + R"(","texto":")" + texto + "\"}";
    }
    /// Plays a line that must be refused, and nothing else printed.
    void EsperarRechazo(const std::string& orden) {
        const Lineas dichas = Salida({orden});
        ASSERT_EQ(dichas.size(), 1U) << orden;
        EXPECT_TRUE(dichas[0].starts_with(R"({"rechazo":")")) << orden << " -> " << dichas[0];
        EXPECT_TRUE(guion.HuboRechazo());
    }

    std::ostringstream salida;
    Guion guion{Formas(), salida};
};

const std::string kGridVacio = R"({"control":"grdt","filas":[["Par","X","Y"],["[?]","",""]]})";

TEST_F(GuionTest, VerCadaClaseDeControl) {
    EXPECT_EQ(Salida({"ver lblDato bCalcular opt2 FrameO", "ver frmGuion mnuAviso txtDigitos StatusBar1 grdt"}),
              (Lineas{Texto("lblDato", "dato"), Texto("bCalcular", "Calc&ular"), Texto("opt2", "Dos"),
                      Texto("FrameO", "Opciones:"), Texto("frmGuion", "Módulo de prueba"), Texto("mnuAviso", "Aviso"),
                      Texto("txtDigitos", ""), Texto("StatusBar1", ""), kGridVacio}));
    EsperarRechazo("ver");
    EsperarRechazo("ver noHay");
    EsperarRechazo("ver ImageList1");  // it has no text
}

TEST_F(GuionTest, EstadoDeCadaClaseDeControl) {
    EXPECT_EQ(Salida({"estado grdt opt1 bOculto bGris"}),
              (Lineas{R"({"control":"grdt","visible":true,"habilitado":true,"foco":true,"Row":1,"Col":1,"TopRow":1})",
                      R"({"control":"opt1","visible":true,"habilitado":true,"valor":true,"foco":false})",
                      R"({"control":"bOculto","visible":false,"habilitado":true,"foco":false})",
                      R"({"control":"bGris","visible":true,"habilitado":false,"foco":false})"}));
}

TEST_F(GuionTest, PalabrasYComillas) {
    EXPECT_EQ(Salida({"", "# nota", "   ", "\t# no: es una orden"}),
              Lineas{R"({"rechazo":"orden desconocida: #","linea":5})"})
        << "a comment starts at the first character";
    const auto elegida = [&](const std::string& palabra) {
        return Salida({"elegir cbLatitud " + palabra, "ver cbLatitud"});
    };
    EXPECT_EQ(elegida(R"("dos palabras")"), Lineas{Texto("cbLatitud", "dos palabras")});
    EXPECT_EQ(elegida(R"("a\"b\\c")"), Lineas{Texto("cbLatitud", R"(a\"b\\c)")});
    EXPECT_EQ(elegida("  15°  "), Lineas{Texto("cbLatitud", "15°")});
    EXPECT_EQ(elegida("\tfin\r"), Lineas{Texto("cbLatitud", "fin")});
    EXPECT_EQ(Salida({R"(ver "a\nb")"}), Lineas{R"({"rechazo":"no hay tal control: a\nb","linea":14})"});
    EsperarRechazo(R"(poner txtDigitos "sin cerrar)");
    EsperarRechazo(R"(poner txtDigitos "sin cerrar\")");
}

TEST_F(GuionTest, FilaTecleaEnLaFilaDeEntrada) {
    EXPECT_EQ(Salida({"fila 1 2.5", "fila 3,9 abc", "celda grdt 1 2", "fila \"\" -4", "ver grdt"}),
              Lineas{R"({"control":"grdt","filas":[["Par","X","Y"],[" 1","1.0","2.5"],[" 2","3.0","0.0"],)"
                     R"([" 3","0.0","-4.0"],["[->]","",""]]})"});
}

TEST_F(GuionTest, CeldaYTeclas) {
    EXPECT_EQ(
        Salida({"fila 1 2", "fila 3 4", "celda grdt 1 2", "teclas 7.5{BACK}6{DOWN}", "teclas 9{ESC}", "teclas 8{ENTER}",
                "teclas {UP}", "ver grdt", "estado grdt"}),
        (Lineas{R"({"control":"grdt","filas":[["Par","X","Y"],[" 1","1.0","7.6"],[" 2","3.0","8.0"],["[?]","",""]]})",
                R"({"control":"grdt","visible":true,"habilitado":true,"foco":true,"Row":2,"Col":2,"TopRow":1})"}));
    EsperarRechazo("celda grdt 4 1");
    EsperarRechazo("celda grdt 1 3");
    EsperarRechazo("celda grdt uno 1");
    EsperarRechazo("celda txtDigitos 1 1");
    EXPECT_EQ(Salida({"poner txtDigitos 12", "teclas 3x{BACK}4{x}", "ver txtDigitos"}),
              Lineas{Texto("txtDigitos", "124")})
        << "through the box's own filter; what is no key stands for itself";
    EXPECT_EQ(Salida({"click cmdNum(7)", "teclas {ENTER}", "teclas \" \"", "ver lblDato"}),
              Lineas{Texto("lblDato", "dato777")})
        << "ENTER and the blank press a button";
}

TEST_F(GuionTest, MenuDeFila) {
    EXPECT_EQ(Salida({"fila 1 2", "fila 3 4", "menufila mnuEditInsertar 2", "ver grdt"}),
              Lineas{R"({"control":"grdt","filas":[["Par","X","Y"],[" 1","1.0","2.0"],[" 2","",""],)"
                     R"([" 3","3.0","4.0"],["[?]","",""]]})"});
    EsperarRechazo("menufila mnuEditInsertar 4");  // greyed on the entry row
    EsperarRechazo("menufila mnuEditraya1 1");
    EsperarRechazo("menufila mnuEditEliminar 5");
    EXPECT_EQ(Salida({"menufila mnuEditEliminar 4", "ver grdt"}), Lineas{kGridVacio});
}

TEST_F(GuionTest, OpcionElegirYPoner) {
    EXPECT_EQ(Salida({"opcion opt2", "ver lblDato", "click cmdNum(7)", "opcion opt2", "ver lblDato", "estado opt1"}),
              (Lineas{Texto("lblDato", "dos"), Texto("lblDato", "dos7"),
                      R"({"control":"opt1","visible":true,"habilitado":true,"valor":false,"foco":false})"}))
        << "an option that is on is left alone";
    EXPECT_EQ(Salida({"elegir cbLatitud 10", "ver cbLatitud lblDato", "elegir cbLatitud 15", "ver cbLatitud lblDato"}),
              (Lineas{Texto("cbLatitud", "10"), Texto("lblDato", "elegida 10"), Texto("cbLatitud", "15"),
                      Texto("lblDato", "elegida 10")}));
    EXPECT_EQ(Salida({"poner txtDigitos 1a2", "ver txtDigitos", "poner txtDigitos 9", "ver txtDigitos",
                      "poner txtDigitos \"\"", "ver txtDigitos", "estado txtDigitos"}),
              (Lineas{Texto("txtDigitos", "12"), Texto("txtDigitos", "9"), Texto("txtDigitos", ""),
                      R"({"control":"txtDigitos","visible":true,"habilitado":true,"foco":true})"}));
    EsperarRechazo("opcion cmdNum(7)");
    EsperarRechazo("elegir opt1 1");
    EsperarRechazo("poner lblDato 1");
    EsperarRechazo("poner txtFijo 1");
}

// A list that takes no text but its own entries keeps what it shows.
TEST_F(GuionTest, ElegirLoQueUnaListaFijaNoTiene) {
    EXPECT_EQ(Salida({"elegir cbFijo a", "ver cbFijo"}), Lineas{Texto("cbFijo", "a")});
    EsperarRechazo("elegir cbFijo z");
    EXPECT_EQ(Salida({"ver cbFijo"}), Lineas{Texto("cbFijo", "a")});
}

TEST_F(GuionTest, UnControlDeOtraFichaLaTraeAlFrente) {
    const auto& fichas = dynamic_cast<SSTab&>(*guion.App().Cargada("frmGuion")->Controls("SSTab1"));
    EXPECT_EQ(Salida({"poner txtPagina hola", "ver txtPagina"}), Lineas{Texto("txtPagina", "hola")});
    EXPECT_EQ(fichas.Tab(), 1);
    Salida({"ficha SSTab1 0"});
    EXPECT_EQ(fichas.Tab(), 0);
    EsperarRechazo("ficha SSTab1 2");
    EsperarRechazo("ficha SSTab1 -1");
    EXPECT_EQ(fichas.Tab(), 0);
}

TEST_F(GuionTest, UnErrorSeDiceYElGuionSigue) {
    EXPECT_EQ(Salida({"click bCalcular", "ver lblDato", "mensajes"}),
              (Lineas{R"({"error":11,"texto":"División por cero"})", Texto("lblDato", "antes"), R"({"mensajes":[]})"}));
    EXPECT_FALSE(guion.HuboRechazo()) << "the program's own faults are results";
}

TEST_F(GuionTest, MensajesSeOlvidanAlMostrarlos) {
    const std::string aviso = R"({"texto":"Con \"comillas\",\n\\ y\ttab","icono":64,"titulo":"Título"})";
    EXPECT_EQ(Salida({"click mnuAviso", "click mnuAviso", "mensajes", "mensajes"}),
              (Lineas{R"({"mensajes":[)" + aviso + "," + aviso + "]}", R"({"mensajes":[]})"}));
}

TEST_F(GuionTest, RechazosDicenSuLinea) {
    EXPECT_FALSE(guion.HuboRechazo());
    EXPECT_EQ(Salida({"# comentario", "", "click bGris", "baila"}),
              (Lineas{R"({"rechazo":"está inhabilitado: bGris","linea":4})",
                      R"({"rechazo":"orden desconocida: baila","linea":5})"}));
    for (const char* orden :
         {"click bOculto", "click noHay", "click lblDato", "click opt1", "click", "menu mgris", "menu noHay",
          "menu bsalir", "poner txtDigitos", "forma frmOtra", "cerrar frmOtra", "fichas SSTab1 0", "Click cmdNum(7)"}) {
        EsperarRechazo(orden);
    }
    EXPECT_EQ(Salida({"click cmdNum(7)", "ver lblDato"}), Lineas{Texto("lblDato", "dato7")})
        << "the current form stays the same";
}

TEST_F(GuionTest, FormasQueSeAbrenYSeCierran) {
    const std::string menu = Texto("frmCuencalia", "Menú de prueba");
    EXPECT_EQ(Salida({"fila 1 2", "forma frmCuencalia", "ver frmCuencalia", "menu mguion", "ver frmGuion grdt"}),
              (Lineas{menu, Texto("frmGuion", "Módulo de prueba"),
                      R"({"control":"grdt","filas":[["Par","X","Y"],[" 1","1.0","2.0"],["[->]","",""]]})"}));
    EXPECT_EQ(Salida({"click bMenu", "ver frmCuencalia"}), Lineas{menu});
    EsperarRechazo("forma frmGuion");
    EXPECT_EQ(Salida({"menu mguion", "ver grdt", "cerrar frmGuion", "ver frmCuencalia"}), (Lineas{kGridVacio, menu}));
    EsperarRechazo("ver grdt");
}

TEST_F(GuionTest, NuevoEmpiezaOtraVez) {
    EXPECT_EQ(
        Salida({"fila 1 2", "click mnuAviso", "nuevo", "mensajes", "ver frmCuencalia", "menu mguion", "ver grdt"}),
        (Lineas{R"({"mensajes":[]})", Texto("frmCuencalia", "Menú de prueba"), kGridVacio}));
    Salida({"baila", "nuevo"});
    EXPECT_TRUE(guion.HuboRechazo()) << "the exit status is that of the whole script";
    EXPECT_EQ(Salida({"click bsalir"}), Lineas{});
    EsperarRechazo("menu mguion");
    EXPECT_EQ(Salida({"nuevo", "menu mguion", "ver lblDato"}), Lineas{Texto("lblDato", "dato")});
}

std::string Leer(const std::filesystem::path& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    EXPECT_TRUE(archivo) << ruta;
    return {std::istreambuf_iterator<char>(archivo), {}};
}

// Each script stands beside what it must print, written by hand.
TEST(Guiones, ImprimenLoEsperado) {
    int jugados = 0;
    const std::filesystem::path carpeta = std::filesystem::path(CUENCALIA_DATOS) / "../guion/guiones";
    for (const auto& entrada : std::filesystem::directory_iterator(carpeta)) {
        if (entrada.path().extension() != ".guion") {
            continue;
        }
        SCOPED_TRACE(entrada.path().filename());
        std::ostringstream salida;
        Guion guion(FormasDelPrograma(), salida);
        std::istringstream lineas(Leer(entrada.path()));
        for (std::string linea; std::getline(lineas, linea);) {
            guion.Ejecutar(linea);
        }
        EXPECT_EQ(salida.str(), Leer(std::filesystem::path(entrada.path()).replace_extension(".esperado")));
        EXPECT_EQ(guion.HuboRechazo(), salida.str().find("{\"rechazo\":") != std::string::npos);
        ++jugados;
    }
    EXPECT_GE(jugados, 3);
}

}  // namespace
}  // namespace cuencalia::pruebas
