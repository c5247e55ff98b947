#include <QPrinterInfo>
#include <new>

#include "escritorio/programa/traduccion.h"
#include "frame/base/hojas.h"
#include "tests/escritorio/mesa.h"

namespace cuencalia::pruebas {

using Mensajes = Mesa;

TEST_F(Mensajes, UnMensajeSeVeComoEs) {
    const Icono iconos[] = {kSinIcono, kIconoInformacion, kIconoAdvertencia, kIconoError, kIconoPregunta};
    for (int i = 0; i < 5; ++i) {  // the toolkit counts its icons in this order
        escritorio_->MsgBox("a < b & <b>c</b>", iconos[i], "Título");
        EXPECT_EQ(vigia_.mensajes.back().icono, QMessageBox::Icon(i));
    }
    EXPECT_EQ(vigia_.mensajes.back().texto, "a < b & <b>c</b>");
    EXPECT_EQ(vigia_.mensajes.back().formato, Qt::PlainText);
    EXPECT_EQ(vigia_.mensajes.back().titulo, "Título");
    for (const bool si : {true, false}) {
        EXPECT_FALSE(escritorio_->Preguntar("¿?", "", si)) << "left unanswered";
        EXPECT_EQ(vigia_.mensajes.back().omision == "&Sí", si);
    }
    EXPECT_EQ(escritorio_->PreguntarOCancelar("¿?", ""), std::nullopt);
    const TraduccionRestante restante;
    EXPECT_EQ(restante.translate("QPrintSettingsOutput", "Off", nullptr, 0), "No");
    EXPECT_EQ(restante.translate("Otro", "Off", nullptr, 0), QString());
    vigia_.mensajes.clear();
    if (QPrinterInfo::defaultPrinter().isNull()) {
        escritorio_->ImprimirForma(F());
        EXPECT_EQ(vigia_.mensajes.size(), 1u) << "no printer is told";
    }
}

TEST_F(Mensajes, BajoUnMensajeNoCorreNingunaOrden) {
    QMenu menu(Ventana());
    menu.popup({});
    QCoreApplication::processEvents();
    QTimer::singleShot(0, [this] {
        QCloseEvent cierre;
        QCoreApplication::sendEvent(Ventana(), &cierre);
        EXPECT_FALSE(cierre.isAccepted());
        escritorio_->App().Pulsar(F().btn1);
    });
    escritorio_->MsgBox("abierta", kSinIcono, "");
    ASSERT_NE(Ventana(), nullptr);
    EXPECT_EQ(vigia_.mensajes[0].padre, Ventana()) << "a menu goes before the box does";
    EXPECT_EQ(Sucesos(), Textos{});
}

/// A widget whose painting fails.
class Roto : public QWidget {
    using QWidget::QWidget;
    void paintEvent(QPaintEvent*) override { throw ErrorEjecucion(kDesbordamiento); }
};

TEST_F(Mensajes, UnErrorSeDiceVengaDeDondeVenga) {
    const std::tuple<std::function<void()>, const char*, const char*> casos[] = {
        {[this] { Hacer([] { throw ErrorEjecucion(kDivisionPorCero); }); }, "11", "División por cero"},
        {[] { QTimer::singleShot(0, [] { throw std::bad_alloc(); }); }, "7", "Memoria insuficiente"},
        {[] { QTimer::singleShot(0, [] { throw std::out_of_range("lejos"); }); }, "51", "lejos"},
        {[] { (new Roto(Ventana()))->show(); }, "6", "Desbordamiento"}};
    for (const auto& [causa, numero, texto] : casos) {
        vigia_.mensajes.clear();
        causa();
        causa();
        QTest::qWait(100);
        const bool pintura = numero == std::string("6");
        ASSERT_EQ(vigia_.mensajes.size(), pintura ? 1u : 2u) << "a painting that fails each time is told once";
        EXPECT_TRUE(vigia_.mensajes[0].texto.contains(numero)) << numero;
        EXPECT_TRUE(vigia_.mensajes[0].texto.contains(texto)) << texto;
    }
}

TEST_F(Mensajes, SePideUnArchivo) {
    const QTemporaryDir carpeta;
    bool primero = true;  // the later dialogs open in the folder of the file chosen last
    QFile(carpeta.filePath("hay.x")).open(QIODevice::WriteOnly);
    QFile(carpeta.filePath("otro.y.X")).open(QIODevice::WriteOnly);
    const std::tuple<ModoArchivo, std::string, const char*, const char*> casos[] = {
        {ModoArchivo::Guardar, "viejo.x", "nuevo", "nuevo.X"},
        {ModoArchivo::Guardar, "", "nuevo.dat", "nuevo.dat.X"},
        {ModoArchivo::Guardar, "", "nuevo.x", "nuevo.x"},
        {ModoArchivo::Abrir, "", "hay.x", "hay.x"}};
    for (const auto& [modo, propuesto, elegido, esperado] : casos) {
        vigia_.elegir = [&, modo = modo, &propuesto = propuesto, elegido = elegido](QFileDialog& dialogo) {
            EXPECT_EQ(dialogo.acceptMode() == QFileDialog::AcceptSave, modo == ModoArchivo::Guardar);
            EXPECT_EQ(dialogo.nameFilters(), QStringList({"Valores X (*.X)", "Todos (*.*)"}));
            EXPECT_EQ(dialogo.findChild<QLineEdit*>("fileNameEdit")->text(), Q(propuesto));
            EXPECT_EQ(dialogo.directory() == QDir(carpeta.path()), std::exchange(primero, false) == false);
            return carpeta.filePath(elegido);
        };
        std::string nombre = propuesto;
        for (int i = 0; i < 2; ++i) {  // the second time it is cancelled
            escritorio_->ElegirArchivo(modo, "Serie", "Valores X|*.X|Todos (*.*)|*.*", nombre);
            EXPECT_EQ(nombre, Std(carpeta.filePath(esperado)));
        }
    }
    EXPECT_EQ(vigia_.otrosDialogos.count("Serie"), 8);
    std::string nombre = "no";
    vigia_.elegir = [&](QFileDialog&) { return carpeta.filePath("otro.y"); };
    escritorio_->ElegirArchivo(ModoArchivo::Guardar, "Serie", "Valores X|*.X", nombre);
    EXPECT_TRUE(nombre == "no" && vigia_.mensajes.size() == 1) << "asked about the name with its extension";
    vigia_.elegir = [&](QFileDialog& dialogo) {
        EXPECT_EQ(dialogo.nameFilters().first(), "Libros de Excel (*.xlsx *.xls)");
        return carpeta.filePath("hay.x");
    };
    escritorio_->ElegirArchivo(ModoArchivo::Abrir, "Hoja", "Nuevos|*.xlsx|Viejos|*.xls", nombre);
}

TEST_F(Mensajes, ElManualSeAbreEnLaVentanaDelFrente) {
    Abrir("frmParamEsta");
    Tecla(Qt::Key_F1);
    QFile salto(vigia_.abiertos.at(0).toLocalFile());
    ASSERT_TRUE(salto.open(QIODevice::ReadOnly));
    EXPECT_TRUE(salto.readAll().contains("ayuda/estadistica.html#frmParamEsta\""));
}

TEST_F(Mensajes, AjustesPortapapelesYArchivosLleganAlSistema) {
    escritorio_->GuardarAjuste("Ancho", "1024 ñ");
    EXPECT_EQ(escritorio_->LeerAjuste("Ancho", ""), "1024 ñ");
    EXPECT_EQ(escritorio_->LeerAjuste("NoHayTalAjuste", "9"), "9");
    escritorio_->PonerEnPortapapeles("1\t2\n°ñ");
    EXPECT_EQ(escritorio_->TextoDelPortapapeles(), "1\t2\n°ñ");
    escritorio_->AbrirConShell("/no/hay/manual.html");
    Tecla(Qt::Key_F1);
    ASSERT_EQ(vigia_.abiertos.size(), 1);
    EXPECT_TRUE(vigia_.abiertos[0].path().endsWith("/ayuda/index.html"));
}

TEST_F(Mensajes, UnLibroSeAbreDondeHayUnProgramaParaEl) {
    const QTemporaryDir carpeta;
    const QByteArray camino = qgetenv("PATH");
    qputenv("PATH", carpeta.path().toUtf8());
    const auto conPrograma = [&](const char* responde) {
        QFile consulta(carpeta.filePath("xdg-mime"));
        consulta.open(QIODevice::WriteOnly | QIODevice::Truncate);
        consulta.write(QByteArray("#!/bin/sh\n") + responde);
        consulta.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        consulta.close();
        return escritorio_->MostrarLibro(Hoja());
    };
    EXPECT_FALSE(conPrograma(""));
    EXPECT_TRUE(vigia_.abiertos.empty());
    EXPECT_TRUE(conPrograma("echo calc.desktop"));
    qputenv("PATH", camino);
    ASSERT_EQ(vigia_.abiertos.size(), 1);
    QFile libro(vigia_.abiertos[0].toLocalFile());
    EXPECT_TRUE(libro.fileName().endsWith(".xlsx") && libro.size() > 0);
    libro.remove();

    bool vivo = false;
    QTimer::singleShot(0, [&] { vivo = true; });
    escritorio_->Hojas().EscribirLibro(Std(carpeta.filePath("serie.xlsx")), Hoja());
    EXPECT_TRUE(vivo) << "the windows live while a workbook is written";
    EXPECT_THROW(escritorio_->Hojas().EscribirLibro("/no/hay/serie.xlsx", Hoja()), ErrorEjecucion);
}

}  // namespace cuencalia::pruebas
