#include "guion/guion.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <sstream>

#include "frame/modulo/cajas.h"
#include "frame/modulo/modulocalculo.h"
#include "shell/formas.h"
#include "tests/archivos_en_disco.h"

namespace cuencalia::pruebas {
namespace {

/// A module with a control of each kind.
class FormaGuion : public ModuloCalculo {
  public:
    explicit FormaGuion(Aplicacion& app)
        : ModuloCalculo(app, "frmGuion", {.titulo = "Módulo de prueba", .datos = {.encabezados = {"Par", "X", "Y"}}}) {
        DeclararBotones({});
        SoloNumero(txtDigitos, Cifras::Enteras);
        txtFijo.Locked = true;
        cbFijo.Editable = false;
        bOculto.Visible = false;
        bGris.Enabled = false;
        cbLatitud.Click.Conectar([this] { lblDato.Caption = "elegida " + cbLatitud.Text(); });
        opt2.Click.Conectar([this] { lblDato.Caption = "dos"; });
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

  protected:
    /// Fails after its first statement.
    bool Calcular() override {
        lblDato.Caption = "antes";
        lblDato.Caption = Double(1) / Double(0) > 0 ? "después" : "nunca";
        return true;
    }
    Disposicion Contenido() override {
        return Columna({txtDigitos, txtFijo, lblDato, Grupo(FrameO, {opt1, opt2}), cbLatitud, cbFijo, bOculto, bGris,
                        Fichas(SSTab1, {Espacio(), Grupo(FrameP, {txtPagina, num7})})});
    }
};

class MenuGuion : public Formulario {
  public:
    explicit MenuGuion(Aplicacion& app) : Formulario(app, "frmCuencalia", "Menú") {
        mguion.Click.Conectar([this] { App().ModuloAbrir("frmGuion"); });
        mgris.Enabled = false;
        bsalir.Click.Conectar([this] { App().Terminar(); });
    }

    Menu mpara{*this, "mpara", "Menú"};
    Menu mguion{mpara, "mguion", "Módulo"}, mgris{mpara, "mgris", "Gris"};
    CommandButton bsalir{*this, "bsalir", "&Salir"};

  protected:
    Disposicion Disponer() override { return bsalir; }
};

/// What `ver` prints of a control with a text.
std::string Texto(const std::string& control, const std::string& texto) {
    return R"({"control":")" + control + R"(","texto":")" + texto + "\"}\n";
}
/// What `ver grdt` prints of these rows below the heading.
std::string Datos(const std::string& filas) {
    return R"({"control":"grdt","filas":[["Par","X","Y"],)" + filas + "]}\n";
}
std::string Estado(const std::string& control, const std::string& resto) {
    return R"({"control":")" + control + R"(","visible":)" + resto + "}\n";
}

/// Carries out commands, one after each separator.
void Jugar(Guion& guion, const std::string& ordenes, char separador = ';') {
    std::istringstream entrada(ordenes);
    for (std::string orden; std::getline(entrada, orden, separador);) {
        guion.Ejecutar(orden);
    }
}

// Each case is played on a program just started: its commands and what they print.
TEST(GuionTest, OrdenesYLoQueImprimen) {
    const std::string vacia = Datos(R"(["[?]","",""])");
    const std::pair<std::string, std::string> casos[] = {
        {"ver lblDato bCalcular opt2 FrameO frmGuion mnuAviso txtDigitos StatusBar1 grdt",
         Texto("lblDato", "dato") + Texto("bCalcular", "Calc&ular") + Texto("opt2", "Dos") +
             Texto("FrameO", "Opciones:") + Texto("frmGuion", "Módulo de prueba") + Texto("mnuAviso", "Aviso") +
             Texto("txtDigitos", "") + R"({"control":"StatusBar1","paneles":["","","n = 0"]})" + "\n" + vacia},
        {"estado grdt opt1 bOculto bGris txtPagina",
         Estado("grdt", R"(true,"habilitado":true,"foco":true,"Row":1,"Col":1,"TopRow":1)") +
             Estado("opt1", R"(true,"habilitado":true,"valor":true,"foco":false)") +
             Estado("bOculto", R"(false,"habilitado":true,"foco":false)") +
             Estado("bGris", R"(true,"habilitado":false,"foco":false)") +
             Estado("txtPagina", R"(false,"habilitado":true,"foco":false)")},
        {";# nota;   ;elegir cbLatitud \"a\\\"b\\\\c\";ver cbLatitud;\telegir  cbLatitud 15°  \r;"
         "ver cbLatitud lblDato;elegir cbLatitud 10;ver cbLatitud lblDato",
         Texto("cbLatitud", R"(a\"b\\c)") + Texto("cbLatitud", "15°") + Texto("lblDato", "dato") +
             Texto("cbLatitud", "10") + Texto("lblDato", "elegida 10")},
        {"fila 1 2.5;fila 3,9 abc;celda grdt 1 2;fila \"\" -4;ver grdt",
         Datos(R"([" 1","1.0","2.5"],[" 2","3.0","0.0"],[" 3","0.0","-4.0"],["[->]","",""])")},
        {"fila 1 2;fila 3 4;celda grdt 1 2;teclas 7.5{BACK}6{DOWN};teclas 9{ESC};teclas 8{ENTER};"
         "teclas {UP};ver grdt;estado grdt",
         Datos(R"([" 1","1.0","7.6"],[" 2","3.0","8.0"],["[?]","",""])") +
             Estado("grdt", R"(true,"habilitado":true,"foco":true,"Row":2,"Col":2,"TopRow":1)")},
        {"poner txtDigitos 1a2;teclas 3x{BACK}4{x};ver txtDigitos;poner txtDigitos 9;ver txtDigitos",
         Texto("txtDigitos", "124") + Texto("txtDigitos", "9")},
        {"click cmdNum(7);teclas {ENTER};teclas \" \";ver lblDato;opcion opt2;click cmdNum(7);opcion opt2;ver lblDato",
         Texto("lblDato", "dato777") + Texto("lblDato", "dos7")},
        {"poner txtPagina hola;estado txtPagina;ficha SSTab1 0;estado txtPagina",
         Estado("txtPagina", R"(true,"habilitado":true,"foco":true)") +
             Estado("txtPagina", R"(false,"habilitado":true,"foco":false)")},
        {"click bCalcular;ver lblDato;click mnuAviso;mensajes;mensajes",
         "{\"error\":11,\"texto\":\"División por cero\"}\n" + Texto("lblDato", "antes") +
             R"({"mensajes":[{"texto":"Con \"comillas\",\n\\ y\ttab","icono":64,"titulo":"Título"}]})" +
             "\n{\"mensajes\":[]}\n"},
        {"fila 1 2;forma frmCuencalia;ver frmCuencalia;menu mguion;ver grdt;click bMenu;"
         "ver frmCuencalia;menu mguion;ver grdt;cerrar frmGuion;ver frmCuencalia",
         Texto("frmCuencalia", "Menú") + Datos(R"([" 1","1.0","2.0"],["[->]","",""])") + Texto("frmCuencalia", "Menú") +
             vacia + Texto("frmCuencalia", "Menú")},
        {"fila 1 2;click mnuAviso;nuevo;mensajes;ver frmCuencalia;menu mguion;ver grdt",
         "{\"mensajes\":[]}\n" + Texto("frmCuencalia", "Menú") + vacia},
    };
    const TablaFormas formas{{"frmCuencalia", [](Aplicacion& a) { return std::make_unique<MenuGuion>(a); }},
                             {"frmGuion", [](Aplicacion& a) { return std::make_unique<FormaGuion>(a); }}};
    for (const auto& [ordenes, imprime] : casos) {
        std::ostringstream salida;
        Guion guion(formas, salida);
        Jugar(guion, "menu mguion;" + ordenes);
        EXPECT_EQ(salida.str(), imprime);
        EXPECT_FALSE(guion.HuboRechazo());
    }

    // Each of these is rejected, and what is printed names its line, the first one being that of "menu mguion".
    const std::string rechazadas =
        "ver;ver noHay;ver ImageList1;\t# no;poner txtDigitos \"sin cerrar;celda grdt 4 1;celda grdt 1 3;"
        "celda grdt uno 1;celda txtDigitos 1 1;menufila mnuEditInsertar 1;menufila mnuEditraya1 1;"
        "menufila mnuEditEliminar 5;opcion cmdNum(7);elegir opt1 1;elegir cbFijo z;poner lblDato 1;poner txtFijo 1;"
        "poner txtDigitos;ficha SSTab1 2;ficha SSTab1 -1;fichas SSTab1 0;click bOculto;click bGris;click noHay;"
        "click lblDato;click;menu mgris;menu noHay;menu bsalir;forma frmOtra;cerrar frmOtra;Click cmdNum(7)";
    std::ostringstream salida;
    Guion guion(formas, salida);
    Jugar(guion, "menu mguion;" + rechazadas);
    std::istringstream impresas(salida.str());
    int linea = 1;
    for (std::string rechazo; std::getline(impresas, rechazo);) {
        EXPECT_TRUE(rechazo.starts_with(R"({"rechazo":")")) << rechazo;
        EXPECT_TRUE(rechazo.ends_with("\"linea\":" + std::to_string(++linea) + "}")) << rechazo;
    }
    EXPECT_EQ(linea, 33);
    guion.Ejecutar("nuevo");
    EXPECT_TRUE(guion.HuboRechazo()) << "the exit status is that of the whole script";
    Jugar(guion, "click bsalir;menu mguion");
    EXPECT_TRUE(salida.str().ends_with("{\"rechazo\":\"el programa terminó\",\"linea\":36}\n")) << salida.str();
}

/// An output as it is compared: a chart's numbers, which come in full precision, to four decimals, as a calculation by
/// hand has them; a document's line ends as such, so that a difference shows its line.
std::string Comparable(const std::string& texto) {
    static const std::regex kLargo(R"(-?\d+\.\d{5,}(e-\d+)?)");
    std::string comparable;
    std::istringstream entrada(texto);
    for (std::string linea; std::getline(entrada, linea); comparable += '\n') {
        auto desde = linea.cbegin();
        const bool grafico = linea.find("\"GraphType\"") != std::string::npos;
        for (std::smatch numero; grafico && std::regex_search(desde, linea.cend(), numero, kLargo);) {
            char cifras[32];
            std::snprintf(cifras, sizeof cifras, "%.4f", std::stod(numero.str()));
            comparable.append(desde, numero[0].first).append(cifras);
            desde = numero[0].second;
        }
        comparable.append(desde, linea.cend());
    }
    return std::regex_replace(comparable, std::regex(R"(\\n)"), "\n");
}

// Each script stands beside what it must print, worked out apart from the program.
TEST(Guiones, ImprimenLoEsperado) {
    int jugados = 0;
    const std::filesystem::path datos = CUENCALIA_DATOS, anterior = std::filesystem::current_path();
    for (const auto& entrada : std::filesystem::directory_iterator(datos / "../guion/guiones")) {
        std::filesystem::path archivo = entrada.path();
        if (archivo.extension() != ".guion") {
            continue;
        }
        SCOPED_TRACE(archivo.filename());
        // A new folder to work in, from which the sample files are reached as ejemplos/.
        const CarpetaTemporal carpeta;
        std::filesystem::create_directory_symlink(datos / "../../ejemplos", carpeta / "ejemplos");
        std::filesystem::current_path(carpeta / "");
        std::ostringstream salida;
        Guion guion(FormasDelPrograma(), salida);
        Jugar(guion, BytesDe(archivo), '\n');
        EXPECT_EQ(Comparable(salida.str()), Comparable(BytesDe(archivo.replace_extension(".esperado"))));
        EXPECT_FALSE(guion.HuboRechazo());
        std::filesystem::current_path(anterior);
        ++jugados;
    }
    EXPECT_GE(jugados, 7);
}

}  // namespace
}  // namespace cuencalia::pruebas
