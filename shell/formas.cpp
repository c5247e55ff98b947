#include "shell/formas.h"

#include "frame/frmPadre.h"
#include "modules/estadistica/frmDistriFre.h"
#include "modules/estadistica/frmParEstAgru.h"
#include "modules/estadistica/frmParamEsta.h"
#include "modules/regresion/frmRegreLineal.h"
#include "shell/frmCalculadora.h"
#include "shell/frmCuencalia.h"
#include "shell/frmacerc.h"

namespace cuencalia {

namespace {

template <typename Forma>
std::unique_ptr<Formulario> Hacer(Aplicacion& app) {
    return std::make_unique<Forma>(app);
}

}  // namespace

TablaFormas FormasDelPrograma() {
    return {
        {"frmCuencalia", Hacer<frmCuencalia>}, {"frmPadre", Hacer<frmPadre>},
        {"frmacerc", Hacer<frmacerc>},         {"frmCalculadora", Hacer<frmCalculadora>},
        {"frmDistriFre", Hacer<frmDistriFre>}, {"frmParEstAgru", Hacer<frmParEstAgru>},
        {"frmParamEsta", Hacer<frmParamEsta>}, {"frmRegreLineal", Hacer<frmRegreLineal>},
    };
}

}  // namespace cuencalia
