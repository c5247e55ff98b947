#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "frame/controles/flexgrid.h"
#include "frame/modulo/modulo.h"
#include "shell/formas.h"
#include "guion/plataformaguion.h"

namespace cuencalia::pruebas {

using Textos = std::vector<std::string>;
using Tabla = std::vector<Textos>;

/// All cells of a grid, its headings included.
inline Tabla Filas(const FlexGrid& grid) {
    Tabla filas;
    for (int f = 0; f < grid.Rows(); ++f) {
        Textos& fila = filas.emplace_back();
        for (int c = 0; c < grid.Cols(); ++c) {
            fila.push_back(grid.TextMatrix(f, c));
        }
    }
    return filas;
}

/// A module of the program in front of a user who types, clicks and reads.
template <typename Forma, typename Sistema = PlataformaGuion>
class FormaEnUso : public testing::Test {
  protected:
    explicit FormaEnUso(const std::string& nombre) { Abrir(nombre); }

    void Abrir(const std::string& nombre) {
        app.Despachar([&] { app.ModuloAbrir(nombre); });
        nombre_ = nombre;
    }
    Forma& F() { return dynamic_cast<Forma&>(*app.Cargada(nombre_)); }

    void Teclear(const std::string& texto) {
        for (const char c : texto) {
            app.PulsarTecla(0, c);
        }
    }
    /// Types the values into the grid from that cell on, each with its ENTER.
    void TeclearDesde(int fila, int columna, const Textos& valores) {
        app.Despachar([&] { F().grdt.Presionar(kBotonIzquierdo, fila, columna); });
        for (const std::string& valor : valores) {
            Teclear(valor);
            app.PulsarTecla(kTeclaEnter, kTeclaEnter);
        }
    }
    /// Types rows behind those that are there.
    void TeclearDatos(const Textos& valores) { TeclearDesde(F().grdt.Rows() - 1, 1, valores); }
    void Escribir(TextBox& caja, const std::string& texto) {
        app.Despachar([&] {
            caja.SetFocus();
            app.DoEvents();
            caja.Seleccionar(0, static_cast<int>(caja.Text().size()));
        });
        app.PulsarTecla(kTeclaSuprimir, 0);
        Teclear(texto);
    }
    /// Presses a button that asks for a file, and answers with that one.
    void PulsarCon(Control& boton, const std::string& archivo) {
        sistema.archivo = archivo;
        app.Pulsar(boton);
    }

    /// Presses the button and expects that message alone.
    void EsperarMensaje(Control& boton, const std::string& texto, int icono = kSinIcono,
                        const std::string& titulo = {}) {
        sistema.mensajes.clear();
        app.Pulsar(boton);
        ASSERT_EQ(sistema.mensajes.size(), 1U) << boton.Nombre();
        EXPECT_EQ(sistema.mensajes[0].texto, texto);
        EXPECT_EQ(sistema.mensajes[0].icono, icono);
        EXPECT_EQ(sistema.mensajes[0].titulo, titulo);
        EXPECT_TRUE(sistema.errores.empty());
    }
    /// Presses the button and expects that it is stopped by that run-time error.
    void EsperarError(Control& boton, int numero) {
        sistema.errores.clear();
        sistema.mensajes.clear();
        app.Pulsar(boton);
        ASSERT_EQ(sistema.errores.size(), 1U) << boton.Nombre();
        EXPECT_EQ(sistema.errores[0].Numero(), numero);
        EXPECT_TRUE(sistema.mensajes.empty());
        sistema.errores.clear();
    }
    void EsperarSilencio() {
        EXPECT_TRUE(sistema.mensajes.empty());
        EXPECT_TRUE(sistema.errores.empty());
    }

    Sistema sistema;
    Aplicacion app{sistema, FormasDelPrograma()};

  private:
    std::string nombre_;
};

}  // namespace cuencalia::pruebas
