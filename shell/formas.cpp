#include "shell/formas.h"

#include "modules/estadistica/frmParamEsta.h"
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
        {"frmCuencalia", Hacer<frmCuencalia>},
        {"frmacerc", Hacer<frmacerc>},
        {"frmParamEsta", Hacer<frmParamEsta>},
    };
}

}  // namespace cuencalia
