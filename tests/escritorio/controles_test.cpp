#include "tests/escritorio/mesa.h"

namespace cuencalia::pruebas {

using Controles = Mesa;

TEST_F(Controles, UnaPropiedadSeVeEnElControl) {
    const std::tuple<std::function<void(FormaDePrueba&)>, const char*, const char*, QVariant> casos[] = {
        {[](auto& f) { f.txt1.Text = "año €"; }, "txt1", "text", "año €"},
        {[](auto& f) { f.txt1.Locked = true; }, "txt1", "readOnly", true},
        {[](auto& f) { f.txt1.Enabled = false; }, "txt1", "enabled", false},
        {[](auto& f) { f.txt1.Visible = false; }, "txt1", "visible", false},
        {[](auto& f) { f.txt1.ToolTipText = "Qué es"; }, "txt1", "toolTip", "Qué es"},
        {[](auto& f) { f.txt1.ToolTipText = "Otra"; }, "txt1", "toolTip", "Otra"},
        {[](auto& f) { f.txt1.NombreAccesible = "Media"; }, "txt1", "accessibleName", "Media"},
        {[](auto& f) { f.lbl1.Caption = "a < b"; }, "lbl1", "text", "a < b"},
        {[](auto&) {}, "lbl1", "textFormat", "PlainText"},
        {[](auto& f) { f.btn1.Caption = "Otro"; }, "btn1", "text", "Otro"},
        {[](auto&) {}, "cmb2", "editable", false},
        {[](auto& f) { f.opt2.Value = true; }, "opt1", "checked", false},
        {[](auto& f) { f.opt2.Value = false; }, "opt2", "checked", false},
        {[](auto& f) { f.cmb1.Text = "ni uno ni dos"; }, "cmb1", "currentText", "ni uno ni dos"},
        {[](auto& f) { f.cmb2.Text = "b"; }, "cmb2", "currentText", "b"},
        {[](auto& f) { f.cmb2.List = Textos(3, "b"); }, "cmb2", "currentIndex", 0},
        {[](auto& f) { f.Frame1.Caption = "Grupo"; }, "Frame1", "title", "Grupo"},
    };
    for (const auto& [poner, control, propiedad, esperado] : casos) {
        Hacer([&, poner = poner] { poner(F()); });
        const QVariant visto = Widget(*F().Controls(control)).property(propiedad);
        EXPECT_EQ(visto.toString(), esperado.toString()) << control << "." << propiedad;
    }
    Hacer([this] {
        F().Caption = "a[*]b [*]";
        F().StatusBar1.PonerPanel(3, "3");
        F().mnuUno.Enabled = false;
        F().mnuDos.Visible = false;
        F().btn1.ConColor = true;
        F().btn1.BackColor = Color{75, 115, 166};
        F().btn1.Picture = "calcular";
        F().cmb1.List = Textos{"tres", "cuatro"};
    });
    EXPECT_EQ(Ventana()->windowHandle()->title(), "a[*]b [*]");
    EXPECT_EQ(Widget(F().StatusBar1).findChildren<QLabel*>()[2]->text(), "3");
    EXPECT_FALSE(AccionDe(F().mnuUno)->isEnabled());
    EXPECT_FALSE(AccionDe(F().mnuDos)->isVisible());
    auto& boton = Widget<QAbstractButton>(F().btn1);
    EXPECT_NEAR(boton.grab().toImage().pixelColor(7, boton.height() / 2).hue(), QColor(75, 115, 166).hue(), 3);
    EXPECT_FALSE(boton.icon().isNull());
    EXPECT_EQ(Widget<QComboBox>(F().cmb1).itemText(1), "cuatro") << "a new list of the same length";
    EXPECT_EQ(Widget<QComboBox>(F().cmb1).currentText(), "ni uno ni dos");
}

// A grid leaves no key but Tab to its widget. A character counts below zero here.
TEST_F(Controles, UnaTeclaLlegaConSuCodigoYSuCaracter) {
    std::vector<int> llega;
    F().grd1.KeyDown.Conectar([&](int codigo) { llega.push_back(codigo); });
    F().grd1.KeyPress.Conectar([&](int& letra) { llega.push_back(-letra); });
    Clic(*Widget<QTableView>(F().grd1).viewport());
    Escribir("5x *+-/.,");
    Tecla(Qt::Key_Comma, Qt::KeypadModifier, ",");  // the number pad of a Spanish keyboard
    EXPECT_EQ(llega, (std::vector{53,  -53, 88,  -120, 32,  -32, 106, -42, 107, -43,
                                  109, -45, 111, -47,  190, -46, 190, -44, 190, -46}));
    llega.clear();
    for (const Qt::Key tecla : {Qt::Key_Backspace, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_PageUp,
                                Qt::Key_PageDown, Qt::Key_End, Qt::Key_Home, Qt::Key_Left, Qt::Key_Up, Qt::Key_Right,
                                Qt::Key_Down, Qt::Key_Delete, Qt::Key_F2, Qt::Key_F5}) {
        Tecla(tecla);
    }
    EXPECT_EQ(llega, (std::vector{8, -8, 13, -13, 13, -13, 27, -27, 33, 34, 35, 36, 37, 38, 39, 40, 46, 113}));
    llega.clear();
    Tecla(Qt::Key_Delete, {}, "\x7f");
    Tecla(Qt::Key_Ntilde, {}, "ñ");
    Tecla(Qt::Key_unknown, {}, "😀");
    Tecla(Qt::Key_E, Qt::ControlModifier | Qt::AltModifier, "€");
    Tecla(Qt::Key_X, Qt::ControlModifier, "\x18");
    Tecla(Qt::Key_X, Qt::AltModifier, "x");
    EXPECT_EQ(llega, (std::vector{46, 0, -0xf1, 0, -0x1f600, 69, -0x20ac}))
        << "AltGr writes, Control and Alt give orders";
}

TEST_F(Controles, UnaCajaFiltraCaracteresYSeMuevePorSiMisma) {
    auto& caja = Widget<QLineEdit>(F().txt1);
    Clic(caja);
    F().txt1.KeyPress.Conectar([](int& letra) { letra = letra == 'b' ? 0 : letra; });
    Escribir("abc");
    Tecla(Qt::Key_E, Qt::ControlModifier | Qt::AltModifier, "€");
    EXPECT_EQ(caja.text(), "ac€");
    Tecla(Qt::Key_Left);
    Tecla(Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(F().txt1.SelLength, 2);
    Tecla(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(F().txt1.Text(), "€");
    Tecla(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(F().txt1.Text(), "ac€");
    Tecla(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(caja.text(), "€");
    Tecla(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(caja.text(), "ac€");

    // The widget counts units of UTF-16, the program characters: 😀 is two of the former.
    Hacer([this] {
        F().txt1.Text = "a😀b😀c";
        F().txt1.Seleccionar(2, 2);
    });
    EXPECT_EQ(caja.selectedText(), "b😀");
    caja.setSelection(1, 3);
    EXPECT_EQ(F().txt1.SelLength, 2);
    caja.setCursorPosition(6);
    EXPECT_TRUE(F().txt1.SelStart == 4 && F().txt1.SelLength == 0);
}

TEST_F(Controles, ElTecladoEstaDondeLoTieneElModelo) {
    // A text box that is left drops its mark, which is no reason to have the focus back.
    Clic(Widget(F().txt1));
    Escribir("12");
    Tecla(Qt::Key_A, Qt::ControlModifier);
    Sucesos();
    Clic(Widget(F().txt2));
    Clic(Widget(F().btn1));
    EXPECT_EQ(Sucesos(), (Textos{"txt1 sale", "txt2 entra", "txt2 sale", "btn1 entra", "btn1 clic"}));
    Hacer([this] { F().grd1.SetFocus(); });
    EXPECT_TRUE(Widget(F().grd1).hasFocus());
    Tecla(Qt::Key_T, Qt::AltModifier);
    EXPECT_EQ(Foco(), &F().txt1) << "the label's access key";
    // A widget that is hidden gives the keyboard to any other one, which is no wish of the user's.
    for (const bool visible : {true, false}) {
        Sucesos();
        Hacer([&] {
            F().txtt.Visible = visible;
            visible ? F().txtt.SetFocus() : F().grd1.SetFocus();
        });
    }
    EXPECT_EQ(Sucesos(), (Textos{"txtt sale", "grd1 entra"}));
    Hacer([this] { F().txt2.Locked = true; });
    std::set<std::string> alcanzados;
    for (int i = 0; i < 10; ++i) {
        Tecla(i < 5 ? Qt::Key_Tab : Qt::Key_Backtab);
        EXPECT_TRUE(Widget(*Foco()).hasFocus()) << Foco()->Nombre();
        alcanzados.insert(Foco()->Nombre());
    }
    EXPECT_GE(alcanzados.size(), 5u) << "Tab leads out of a grid and on";
    EXPECT_FALSE(alcanzados.contains("txt2")) << "not to a box of results";
}

TEST_F(Controles, LoQueElUsuarioEligeLlega) {
    Clic(Widget(F().btn1));
    Tecla(Qt::Key_Return);
    Tecla(Qt::Key_Space);
    Tecla(Qt::Key_Return, Qt::ControlModifier);  // an order, not a press
    EXPECT_EQ(std::count(F().sucesos.begin(), F().sucesos.end(), "btn1 clic"), 3);
    Clic(Widget(F().opt2), QPoint(8, Widget(F().opt2).height() / 2));
    EXPECT_TRUE(F().opt2.Value);
    AccionDe(F().mnuUno)->trigger();
    EXPECT_EQ(Sucesos().back(), "mnuUno clic");
    for (ComboBox* combo : {&F().cmb1, &F().cmb2}) {
        Widget(*combo).setFocus();
        Tecla(Qt::Key_Down);
        Tecla(Qt::Key_Down);
        EXPECT_EQ(combo->Text(), combo->List()[1]);
        EXPECT_EQ(Sucesos().back(), combo->Nombre() + " clic");
        Tecla(Qt::Key_Return);
        EXPECT_EQ(Sucesos().back(), combo->Nombre() + " letra 13");
    }
    Widget(F().cmb1).setFocus();
    Escribir("x");
    EXPECT_EQ(F().cmb1.Text(), "dosx");
    Hacer([this] { F().cmb1.Text = "uno"; });
    Tecla(Qt::Key_Down);
    EXPECT_EQ(F().cmb1.Text(), "dos") << "the arrows go on from the text that the program set";
}

TEST_F(Controles, LasFichasSiguenAlModeloYLeAvisan) {
    QTabBar& fichas = *Widget<QTabWidget>(F().SSTab1).tabBar();
    Clic(fichas, fichas.tabRect(1).center());
    EXPECT_TRUE(F().SSTab1.Tab == 1 && Widget(F().txt3).isVisible());
    Hacer([this] {
        F().SSTab1.Tab = 0;
        F().txt2.SetFocus();
    });
    EXPECT_TRUE(Widget(F().txt2).hasFocus());
    fichas.setFocus();
    for (const Qt::Key tecla : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Right}) {
        EXPECT_EQ(Foco(), &F().SSTab1);
        Tecla(tecla);
    }
    EXPECT_EQ(F().SSTab1.Tab, 1);
}

// A button is lit by the pointer over it and goes dark by the pointer over what is around it.
TEST_F(Controles, DelPunteroSabeSoloLoQueTieneDebajo) {
    QWidget &boton = Widget(F().btn1), &marco = Widget(F().Frame1), &lienzo = *Ventana()->centralWidget();
    Apuntar(boton, boton.rect().center());
    F().punteros.clear();
    Apuntar(boton, boton.rect().center() + QPoint(3, 0));
    Apuntar(marco, QPoint(4, marco.height() - 4));
    Apuntar(lienzo, QPoint(3, 3));
    EXPECT_EQ(F().punteros, (Textos{"btn1", "Frame1", "frmPrueba"}));
    Apuntar(boton, boton.rect().center());
    QEvent fuera(QEvent::Leave);
    QCoreApplication::sendEvent(&lienzo, &fuera);
    EXPECT_EQ(F().punteros.back(), "frmPrueba") << "out of the window";
}

}  // namespace cuencalia::pruebas
