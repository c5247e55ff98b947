#include "shell/formas.h"

#include "frame/reportes/frmPadre.h"
#include "shell/frmCalculadora.h"
#include "shell/frmCuencalia.h"
#include "shell/frmacerc.h"
#include "shell/ventanas.h"

namespace cuencalia {

namespace {

template <typename Forma>
std::unique_ptr<Formulario> Hacer(Aplicacion& app) {
    return std::make_unique<Forma>(app);
}

}  // namespace

TablaFormas FormasDelPrograma() {
    return {
        {"frmCuencalia", Hacer<frmCuencalia>},
        {"frmPadre", Hacer<frmPadre>},
        {"frmacerc", Hacer<frmacerc>},
        {"frmCalculadora", Hacer<frmCalculadora>},
#include "shell/filasdeventanas.h"
    };
}

}  // namespace cuencalia
