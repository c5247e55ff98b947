#pragma once

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "frame/controles/aplicacion.h"
#include "guion/plataformaguion.h"

namespace cuencalia {

/// Plays a script of user actions on the program's real forms, without a screen. A script has one command a line; for
/// each, what a user would see is printed as one JSON object on a line. docs/guion.md describes the commands and their
/// output.
class Guion {
  public:
    Guion(TablaFormas formas, std::ostream& salida);
    ~Guion();

    /// Plays one line of a script.
    void Ejecutar(const std::string& linea);
    /// Whether some command could not be carried out.
    bool HuboRechazo() const { return huboRechazo_; }

    Aplicacion& App() { return *app_; }
    PlataformaGuion& Sistema() { return *plataforma_; }

  private:
    using Palabras = std::vector<std::string>;
    struct Orden;

    void Nuevo();
    void OrdenNuevo(const Palabras& p);
    void OrdenMenu(const Palabras& p);
    void OrdenForma(const Palabras& p);
    void OrdenFila(const Palabras& p);
    void OrdenCelda(const Palabras& p);
    void OrdenMenuFila(const Palabras& p);
    void OrdenTeclas(const Palabras& p);
    void OrdenClick(const Palabras& p);
    void OrdenOpcion(const Palabras& p);
    void OrdenPoner(const Palabras& p);
    void OrdenElegir(const Palabras& p);
    void OrdenFicha(const Palabras& p);
    void OrdenCerrar(const Palabras& p);
    void OrdenVer(const Palabras& p);
    void OrdenEstado(const Palabras& p);
    void OrdenMensajes(const Palabras& p);
    void OrdenArchivo(const Palabras& p);
    void OrdenDeshacer(const Palabras& p);
    void OrdenRehacer(const Palabras& p);
    void OrdenPegar(const Palabras& p);
    void OrdenReloj(const Palabras& p);

    Formulario& FormaActual();
    Control& Buscar(const std::string& nombre);
    /// Finds the control of that type by name, brings its tab page to the front, and checks that the user could operate
    /// it.
    template <typename T>
    T& Usable(const std::string& nombre, const char* clase);
    void Teclear(const std::string& texto);
    void PulsarConControl(int codigo, bool enDatos);
    void TeclearCaracter(int codigoCaracter);
    void MostrarErrores();
    void Rechazar(const std::string& motivo);

    TablaFormas formas_;
    std::ostream& salida_;
    std::unique_ptr<PlataformaGuion> plataforma_;
    std::unique_ptr<Aplicacion> app_;
    std::string formaActual_;
    int linea_ = 0;
    bool huboRechazo_ = false;
};

}  // namespace cuencalia
