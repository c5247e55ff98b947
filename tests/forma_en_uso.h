#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "guion/plataformaguion.h"
#include "shell/formas.h"

namespace cuencalia::pruebas {

using Textos = std::vector<std::string>;

/// A window of the program in front of a user who clicks and reads.
template <typename Forma>
class FormaEnUso : public testing::Test {
  protected:
    explicit FormaEnUso(const std::string& nombre) { Abrir(nombre); }

    void Abrir(const std::string& nombre) {
        app.Despachar([&] { app.ModuloAbrir(nombre); });
        if (dynamic_cast<Forma*>(app.Cargada(nombre)) != nullptr) {
            nombre_ = nombre;
        }
    }
    Forma& F() { return dynamic_cast<Forma&>(*app.Cargada(nombre_)); }

    /// Presses the button and expects that message alone.
    void EsperarMensaje(Control& boton, const std::string& texto, int icono, const std::string& titulo) {
        sistema.mensajes.clear();
        app.Pulsar(boton);
        ASSERT_EQ(sistema.mensajes.size(), 1U) << boton.Nombre();
        EXPECT_EQ(sistema.mensajes[0].texto, texto);
        EXPECT_EQ(sistema.mensajes[0].icono, icono);
        EXPECT_EQ(sistema.mensajes[0].titulo, titulo);
        EXPECT_TRUE(sistema.errores.empty());
        sistema.mensajes.clear();
    }
    void EsperarSilencio() {
        EXPECT_TRUE(sistema.mensajes.empty());
        EXPECT_TRUE(sistema.errores.empty());
    }

    PlataformaGuion sistema;
    Aplicacion app{sistema, FormasDelPrograma()};

  private:
    std::string nombre_;
};

}  // namespace cuencalia::pruebas
