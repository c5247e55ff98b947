#include "shell/formas.h"

#include "frame/reportes/frmPadre.h"
#include "modules/aforo/frmAforoCorren.h"
#include "modules/caudales/frmQmaxGumbel.h"
#include "modules/caudales/frmQmaxMacMath.h"
#include "modules/caudales/frmQmaxMacMathDyckPeschke.h"
#include "modules/caudales/frmQmaxNash.h"
#include "modules/caudales/frmQmaxRacDyckPeschke.h"
#include "modules/caudales/frmQmaxRacional.h"
#include "modules/comparacion/frmComparacion.h"
#include "modules/curvas/frmCurvaDuracion.h"
#include "modules/curvas/frmVariacionEsta.h"
#include "modules/distribuciones/frmDisGamma2par.h"
#include "modules/distribuciones/frmDisGamma3par.h"
#include "modules/distribuciones/frmDisGumbel.h"
#include "modules/distribuciones/frmDisLogGumbel.h"
#include "modules/distribuciones/frmDisLogNormal2.h"
#include "modules/distribuciones/frmDisLogNormal3.h"
#include "modules/distribuciones/frmDisLogPearson3.h"
#include "modules/distribuciones/frmDisNormal.h"
#include "modules/estadistica/frmDistriFre.h"
#include "modules/estadistica/frmParEstAgru.h"
#include "modules/estadistica/frmParamEsta.h"
#include "modules/evapotranspiracion/frmBalanceHidro.h"
#include "modules/evapotranspiracion/frmBlaneyCriddle.h"
#include "modules/evapotranspiracion/frmHargreaves.h"
#include "modules/evapotranspiracion/frmPenman.h"
#include "modules/evapotranspiracion/frmThornthwaite.h"
#include "modules/precipitacion/frmAnalisisTor.h"
#include "modules/precipitacion/frmBell.h"
#include "modules/precipitacion/frmDyckPeschkeImax.h"
#include "modules/precipitacion/frmIntensidadMax.h"
#include "modules/precipitacion/frmIsoyeta.h"
#include "modules/precipitacion/frmPromArit.h"
#include "modules/precipitacion/frmThiessen.h"
#include "modules/regresion/frmAutoregTrans.h"
#include "modules/regresion/frmAutoregresivo.h"
#include "modules/regresion/frmEjRegSimple.h"
#include "modules/regresion/frmRegMul2Var.h"
#include "modules/regresion/frmRegMul3Var.h"
#include "modules/regresion/frmRegPoli2Gra.h"
#include "modules/regresion/frmRegPoli3Gra.h"
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
        {"frmCuencalia", Hacer<frmCuencalia>},
        {"frmPadre", Hacer<frmPadre>},
        {"frmacerc", Hacer<frmacerc>},
        {"frmCalculadora", Hacer<frmCalculadora>},
        {"frmDistriFre", Hacer<frmDistriFre>},
        {"frmParEstAgru", Hacer<frmParEstAgru>},
        {"frmParamEsta", Hacer<frmParamEsta>},
        {"frmRegreLineal", Hacer<frmRegreLineal>},
        {"frmEjRegSimple", Hacer<frmEjRegSimple>},
        {"frmRegMul2Var", Hacer<frmRegMul2Var>},
        {"frmRegMul3Var", Hacer<frmRegMul3Var>},
        {"frmRegPoli2Gra", Hacer<frmRegPoli2Gra>},
        {"frmRegPoli3Gra", Hacer<frmRegPoli3Gra>},
        {"frmAutoregresivo", Hacer<frmAutoregresivo>},
        {"frmAutoregTrans", Hacer<frmAutoregTrans>},
        {"frmDisGamma2par", Hacer<frmDisGamma2par>},
        {"frmDisGamma3par", Hacer<frmDisGamma3par>},
        {"frmDisGumbel", Hacer<frmDisGumbel>},
        {"frmDisLogGumbel", Hacer<frmDisLogGumbel>},
        {"frmDisLogNormal2", Hacer<frmDisLogNormal2>},
        {"frmDisLogNormal3", Hacer<frmDisLogNormal3>},
        {"frmDisLogPearson3", Hacer<frmDisLogPearson3>},
        {"frmDisNormal", Hacer<frmDisNormal>},
        {"frmComparacion", Hacer<frmComparacion>},
        {"frmAnalisisTor", Hacer<frmAnalisisTor>},
        {"frmIntensidadMax", Hacer<frmIntensidadMax>},
        {"frmDyckPeschkeImax", Hacer<frmDyckPeschkeImax>},
        {"frmBell", Hacer<frmBell>},
        {"frmPromArit", Hacer<frmPromArit>},
        {"frmThiessen", Hacer<frmThiessen>},
        {"frmIsoyeta", Hacer<frmIsoyeta>},
        {"frmQmaxRacional", Hacer<frmQmaxRacional>},
        {"frmQmaxRacDyckPeschke", Hacer<frmQmaxRacDyckPeschke>},
        {"frmQmaxMacMath", Hacer<frmQmaxMacMath>},
        {"frmQmaxMacMathDyckPeschke", Hacer<frmQmaxMacMathDyckPeschke>},
        {"frmQmaxGumbel", Hacer<frmQmaxGumbel>},
        {"frmQmaxNash", Hacer<frmQmaxNash>},
        {"frmVariacionEsta", Hacer<frmVariacionEsta>},
        {"frmCurvaDuracion", Hacer<frmCurvaDuracion>},
        {"frmAforoCorren", Hacer<frmAforoCorren>},
        {"frmThornthwaite", Hacer<frmThornthwaite>},
        {"frmBlaneyCriddle", Hacer<frmBlaneyCriddle>},
        {"frmPenman", Hacer<frmPenman>},
        {"frmHargreaves", Hacer<frmHargreaves>},
        {"frmBalanceHidro", Hacer<frmBalanceHidro>},
    };
}

}  // namespace cuencalia
