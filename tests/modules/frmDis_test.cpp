#include <cmath>

#include "modules/distribuciones/ajustepearson3.h"
#include "tests/archivos_en_disco.h"
#include "tests/forma_en_uso.h"

namespace cuencalia {
namespace {

using pruebas::Textos;
using Valores = std::vector<std::optional<Double>>;

constexpr const char* kNormal = "frmDisNormal";
constexpr const char* kLogNormal2 = "frmDisLogNormal2";
constexpr const char* kLogNormal3 = "frmDisLogNormal3";
constexpr const char* kGamma2 = "frmDisGamma2par";
constexpr const char* kGamma3 = "frmDisGamma3par";
constexpr const char* kLogPearson3 = "frmDisLogPearson3";
constexpr const char* kGumbel = "frmDisGumbel";
constexpr const char* kLogGumbel = "frmDisLogGumbel";

constexpr const char* kInadecuados = "Ingresar datos adecuadamente ";
constexpr const char* kInadecuadosLogPearson =
    "Sus datos no se ajustan a la distribución log-Pearson tipo 3. Guarde sus datos y pruebe ajustar con otra "
    "distribución ";
constexpr const char* kAviso = "Mensaje de Error";

const Textos kMuestra{"2.0", "3.0", "4.0", "2.4", "5.5", "1.2", "5.4", "2.2", "7.1", "1.3", "1.5"};

struct Parametro {
    const char* control;
    const char* etiqueta;
    const char* valor;
};

/// What a form shows of kMuestra, by each kind of moments. The figures were worked out apart from the program: moments
/// and L-moments from binomial sums, the normal function by erfc, the incomplete gamma function by its power series and
/// lgamma, quantiles by bisection. None lies near a rounding boundary; the approximations of the program are far closer
/// than the decimals shown, except for Q100, which has a tolerance.
struct Caso {
    const char* forma;
    const char* titulo;
    const char* marco;
    std::array<const char*, 2> teoricas;
    std::vector<Parametro> ordinarios, lineales;
    Textos primera, ultima;  ///< Rows 1 and 11 of the table.
    const char* nombre;
    std::array<const char*, 2> delta;  ///< Theoretical delta, ordinary and linear.
    std::array<double, 2> Q100;
    double tolerancia;                      ///< Of Q100.
    std::array<const char*, 2> T;           ///< Of 7.1.
    const char *excedencia, *noExcedencia;  ///< Of 7.1, ordinary moments.
    bool deNormal;
    std::array<const char*, 3> leyendas;
};

void PrintTo(const Caso& caso, std::ostream* salida) { *salida << caso.forma; }

// InversaNormal errs by 4.5e-4 of the scale. Gammainversa leaves P within 5e-5 of 0.99, which is 0.5 percent of the
// probability of exceedance: 5e-5 over the density there, at most 0.02.
// clang-format off
const std::vector<Caso> kCasos{
    {kNormal, "Ajuste de una serie de datos a la distribución Normal", "Parámetros distribución normal:",
     {"F(Z) Ordinario", "F(Z) Mom Lineal"},
     {{"txtux", "De localización (Xm):", "3.2364"}, {"txtsx", "De escala (S):", "1.9896"}},
     {{"txtmedial", "Media  lineal (Xl):", "3.2364"}, {"txtsl", "Des. Estandar (S l):", "2.0238"}},
     {"1", "1.2", "0.0833", "0.1530", "0.1572", "0.0697"}, {"11", "7.1", "0.9167", "0.9739", "0.9719", "0.0573"},
     "Normal", {"0.1629", "0.1603"}, {7.8649, 7.9445}, 0.006, {"38.4", "35.6"}, "2.61", "97.39", true,
     {"Exp", "Ord", "ML"}},
    {kLogNormal2, "Ajuste de una serie de datos a la distribución log-Normal de 2 parámetros",
     "Parámetros distribución log-normal:", {"F(Z) Ordinario", "F(Z) Mom Lineal"},
     {{"txtux", "De escala (µy):", "1.0039"}, {"txtsx", "De forma (Sy):", "0.6139"}},
     {{"txtmedial", "De escala (µyl):", "1.0039"}, {"txtsl", "De forma (Syl):", "0.6509"}},
     {"1", "1.2", "0.0833", "0.0904", "0.1034", "0.0071"}, {"11", "7.1", "0.9167", "0.9403", "0.9291", "0.0237"},
     "logNormal 2 parámetros", {"0.1169", "0.1028"}, {11.3831, 12.4057}, 0.009, {"16.8", "14.1"}, "5.97", "94.03", true,
     {"Exp", "Ord", "ML"}},
    {kLogNormal3, "Ajuste de una serie de datos a la distribución log-Normal de 3 parámetros",
     "Parámetros distribución log-normal:", {"Z", "F(Z)"},
     {{"txtxo", "De posición (xo):", "0.7886"}, {"txtux", "De escala (µy):", "0.5451"},
      {"txtsx", "De forma (Sy):", "0.8839"}},
     {},
     {"1", "1.2", "0.0833", "-1.6214", "0.0525", "0.0309"}, {"11", "7.1", "0.9167", "1.4677", "0.9289", "0.0122"},
     "logNormal 3 parámetros", {"0.1171", ""}, {14.2696, 0}, 0.012, {"14.1", ""}, "7.11", "92.89", true,
     {"Exp", "Teo", ""}},
    {kGamma2, "Ajuste de una serie de datos a la distribución Gamma de 2 parámetros",
     "Parámetros distribución Gamma 2 par:", {"G(Y) Ordinario", "G(Y) Mom Lineal"},
     {{"txtgamma", "De forma (gamma):", "3.0885"}, {"txtbeta", "De escala (beta):", "1.0479"}},
     {{"txtgammal", "De forma (gammal):", "1.0668"}, {"txtbetal", "De escala (betal):", "3.0338"}},
     {"1", "1.2", "0.0833", "0.0978", "0.2962", "0.0144"}, {"11", "7.1", "0.9167", "0.9612", "0.8922", "0.0445"},
     "Gamma de 2 parámetros", {"0.1282", "0.2128"}, {8.9647, 14.4294}, 0.025, {"25.8", "9.3"}, "3.88", "96.12", false,
     {"Exp", "Ord", "ML"}},
    {kGamma3, "Ajuste de una serie de datos a la distribución Gamma de 3 parámetros",
     "Parámetros distribución Gamma 3 par:", {"G(Y) Ordinario", "G(Y) Mom Lineal"},
     {{"txtgamma", "De forma (gamma):", "5.4301"}, {"txtbeta", "De escala (beta):", "0.8538"},
      {"txtxo", "De posición (x0):", "-1.3999"}},
     {{"txtgammal", "De forma (gammal):", "1.4761"}, {"txtbetal", "De escala (betal):", "1.8104"},
      {"txtxol", "De posición (x0l):", "0.5641"}},
     {"1", "1.2", "0.0833", "0.1401", "0.1330", "0.0567"}, {"11", "7.1", "0.9167", "0.9560", "0.9371", "0.0394"},
     "Gamma de 3 parámetros", {"0.11899", "0.10608"}, {9.0655, 10.7459}, 0.02, {"22.8", "15.9"}, "4.4", "95.6", false,
     {"Exp", "Ord", "ML"}},
    {kLogPearson3, "Ajuste de una serie de datos a la distribución log-Pearson tipo III",
     "Parámetros distribución LogPearson3:", {"G(Y) Ordinario", "G(Y) Mom Lineal"},
     {{"txtgamma", "De forma (gamma):", "102.5206"}, {"txtbeta", "De escala (beta):", "0.0606"},
      {"txtxo", "De posición (x0):", "-5.2121"}},
     {{"txtgammal", "De forma (gammal):", "29.63"}, {"txtbetal", "De escala (betal):", "0.1201"},
      {"txtxol", "De posición (x0l):", "-2.5541"}},
     {"1", "1.2", "0.0833", "0.0855", "0.0956", "0.0022"}, {"11", "7.1", "0.9167", "0.9353", "0.9206", "0.0187"},
     "Log-Pearson tipo 3", {"0.11564", "0.10182"}, {12.4362, 14.8558}, 0.025, {"15.5", "12.6"}, "6.47", "93.53", false,
     {"Teo", "Ord", "ML"}},
    {kGumbel, "Ajuste de una serie de datos a la distribución Gumbel", "Parámetros distribución Gumbel:",
     {"G(Y) Ordinario", "G(Y) Mom Lineal"},
     {{"txtmodau", "De posición (µ):", "2.3409"}, {"txtalfa", "De escala (alfa):", "1.5513"}},
     {{"txtmodaul", "De posición (µl):", "2.2855"}, {"txtalfal", "De escala (alfal):", "1.6473"}},
     {"1", "1.2", "0.0833", "0.1241", "0.1447", "0.0408"}, {"11", "7.1", "0.9167", "0.9545", "0.9476", "0.0379"},
     "Gumbel", {"0.1201", "0.1099"}, {9.4771, 9.8633}, 0.0051, {"22.0", "19.1"}, "4.55", "95.45", false,
     {"Exp", "Ord", "ML"}},
    {kLogGumbel, "Ajuste de una serie de datos a la distribución log-Gumbel o distribución de Fréchet",
     "Parámetros distribución logGumbel:", {"G(Y) Ordinario", "G(Y) Mom Lineal"},
     {{"txtmodau", "De posición (µ):", "0.7276"}, {"txtalfa", "De escala (alfa):", "0.4787"}},
     {{"txtmodaul", "De posición (µl):", "0.6981"}, {"txtalfal", "De escala (alfal):", "0.5298"}},
     {"1", "1.2", "0.0833", "0.0440", "0.0708", "0.0394"}, {"11", "7.1", "0.9167", "0.9267", "0.9118", "0.0100"},
     "logGumbel", {"0.1238", "0.1066"}, {18.7202, 22.9955}, 0.0051, {"13.6", "11.3"}, "7.33", "92.67", false,
     {"Exp", "Ord", "ML"}},
};
// clang-format on

class AjusteTest : public pruebas::FormaEnUso<MarcoAjuste> {
  protected:
    explicit AjusteTest(const std::string& forma = kGumbel) : FormaEnUso(forma) {}

    template <typename C = Control>
    C& Control_(const std::string& nombre) {
        return dynamic_cast<C&>(*F().Controls(nombre));
    }
    std::string Texto(const std::string& caja) { return Control_<TextBox>(caja).Text(); }
    Textos Fila(int fila) {
        Textos celdas;
        for (int c = 0; c < 6; ++c) {
            celdas.push_back(F().grddis.TextMatrix(fila, c));
        }
        return celdas;
    }
    void Calcular(const Textos& valores = kMuestra) {
        TeclearDatos(valores);
        PulsarCalcular();
    }
    /// A calculation that has nothing to complain about.
    void PulsarCalcular() {
        sistema.mensajes.clear();
        app.Pulsar(F().bCalcular);
        EsperarSilencio();
    }
    void CalcularDeNuevo(const Textos& valores) {
        app.Pulsar(F().bLimpiar);
        Calcular(valores);
    }
    void Elegir(const char* opcion) {
        app.Despachar([&] { Control_<OptionButton>(opcion).Value = true; });
    }
    std::string Evaluar(TextBox& entrada, const std::string& valor, CommandButton& boton, const TextBox& resultado) {
        Escribir(entrada, valor);
        app.Pulsar(boton);
        return resultado.Text();
    }
    std::string Q(const std::string& T) { return Evaluar(F().txtxt, T, F().bQ, F().txtxq); }
    std::string T(const std::string& Q) { return Evaluar(F().txtxq, Q, F().bT, F().txtxt); }
    std::string Mayor(const std::string& Q) { return Evaluar(F().txtxq, Q, F().bPmayor, F().txtxp); }
    std::string Menor(const std::string& Q) { return Evaluar(F().txtxq, Q, F().bPmenor, F().txtxp); }
    void EsperarFallo(const std::string& forma) {
        const bool logPearson = forma == kLogPearson3;
        EsperarMensaje(F().bCalcular, logPearson ? kInadecuadosLogPearson : kInadecuados, kIconoInformacion,
                       "Mensaje de error");
    }
};

class CadaAjuste : public AjusteTest, public testing::WithParamInterface<Caso> {
  protected:
    CadaAjuste() : AjusteTest(GetParam().forma) {}

    std::vector<Parametro> Parametros() {
        std::vector<Parametro> todos = GetParam().ordinarios;
        todos.insert(todos.end(), GetParam().lineales.begin(), GetParam().lineales.end());
        return todos;
    }
    bool ConLineales() { return !GetParam().lineales.empty(); }
    std::string Sentencia(const char* delta, const char* nivel, const char* tabular = "0.4101") {
        return std::string("Como el delta teórico ") + delta + ", es menor que el delta tabular " + tabular +
               ". Los datos se ajustan a la distribución " + GetParam().nombre + ", con un nivel de significación del" +
               nivel;
    }
    void EsperarVacia() {
        EXPECT_EQ(Fila(0), (Textos{"m", "X", "P(X)", GetParam().teoricas[0], GetParam().teoricas[1], "Delta"}));
        EXPECT_EQ(Fila(1), Textos(6));
        for (const Parametro& p : Parametros()) {
            EXPECT_EQ(Texto(p.control), "");
        }
        EXPECT_EQ(F().txtxt.Text() + F().txtxq.Text() + F().txtxp.Text(), "");
        EXPECT_EQ(F().lblAjuste.Caption(), "Ajuste:");
        EXPECT_EQ(F().lblmensaje.Caption(), "");
        EXPECT_FALSE(F().Graph1.EsVisible() || F().lblEjeX.EsVisible() || F().lblEjeY.EsVisible());
        EsperarMensaje(F().bGraficar, "Efectuar cálculos antes de graficar", kIconoError, kAviso);
    }
};

INSTANTIATE_TEST_SUITE_P(Formas, CadaAjuste, testing::ValuesIn(kCasos),
                         [](const auto& caso) { return std::string(caso.param.forma); });

TEST_P(CadaAjuste, AlAbrirYTrasLimpiar) {
    EXPECT_EQ(F().Caption(), GetParam().titulo);
    EXPECT_EQ(F().fraParametros.Caption(), GetParam().marco);
    for (const Parametro& p : Parametros()) {
        EXPECT_EQ(Control_<Label>(std::string("lbl") + p.control).Caption(), p.etiqueta);
    }
    EXPECT_EQ(F().tipo.has_value(), ConLineales());
    if (ConLineales()) {
        EXPECT_EQ(F().tipo->marco.Caption(), "Tipo de ajuste:");
        EXPECT_EQ(F().tipo->optOrdinario.Caption(), "Parámetros ordinarios");
        EXPECT_EQ(F().tipo->optMomentoLi.Caption(), "Momentos lineales");
        EXPECT_TRUE(F().tipo->optOrdinario.Value());
        const bool tres = GetParam().ordinarios.size() == 3;
        EXPECT_EQ(F().tipo->lblOrdinarios.Caption(), tres ? "Momentos ordinarios:" : "Con momentos ordinarios:");
        EXPECT_EQ(F().tipo->lblLineales.Caption(), tres ? "Momentos lineales:" : "Con momentos lineales:");
    }
    EXPECT_TRUE(F().opt005.Value());
    EXPECT_EQ(F().fraNivel.Caption(), "Nivel significación:");
    EXPECT_EQ(F().fraDiseno.Caption(), "Caudal de diseño:");
    EXPECT_EQ(F().lblT.Caption() + F().lblUnidadT.Caption(), "Período de retorno (T):años");
    EXPECT_EQ(F().lblQ.Caption() + F().lblUnidadQ.Caption(), "Caudal (Q):m3/s");
    EXPECT_EQ(F().bQ.Caption() + F().bQ.ToolTipText(), "Q=f(T)Caudal de diseño");
    EXPECT_EQ(F().bT.Caption() + F().bT.ToolTipText(), "T=f(Q)Periodo de retorno");
    EXPECT_EQ(F().bPmayor.Caption() + F().bPmayor.ToolTipText(), "P(Q>q)Probabilidad de excedencia");
    EXPECT_EQ(F().bPmenor.Caption() + F().bPmenor.ToolTipText(), "P(Q<q)Probabilidad de no excedencia");
    const FlexGrid& g = F().grddis;
    EXPECT_EQ(g.Rows(), 500);
    EXPECT_EQ(g.FixedRows(), 1);
    EXPECT_EQ(g.FixedCols(), 0);
    EXPECT_EQ(g.RowHeight(0), 340);
    const int anchos[] = {700, 1000, 1000, 1200, 1300, 1000};
    for (int c = 0; c < 6; ++c) {
        EXPECT_EQ(g.ColWidth(c), anchos[c]);
        EXPECT_EQ(g.ColAlignment(c), 4);
    }
    EsperarVacia();
    Calcular();
    Q("100");
    Mayor("7.1");
    app.Pulsar(F().bGraficar);
    app.Pulsar(F().bLimpiar);
    EsperarVacia();
}

TEST_P(CadaAjuste, ParametrosTablaYVeredicto) {
    Calcular();
    for (const Parametro& p : Parametros()) {
        EXPECT_EQ(Texto(p.control), p.valor) << p.control;
    }
    EXPECT_EQ(Fila(1), GetParam().primera);
    // The difference of two probabilities, both within 1e-7: its last decimal may turn.
    Textos ultima = Fila(11);
    EXPECT_NEAR(std::stod(ultima[5]), std::stod(GetParam().ultima[5]), 1.01e-4);
    ultima[5] = GetParam().ultima[5];
    EXPECT_EQ(ultima, GetParam().ultima);
    EXPECT_EQ(Fila(12), Textos(6));
    EXPECT_EQ(F().lblAjuste.Caption(), "Ajuste con momentos ordinarios:");
    EXPECT_EQ(F().lblmensaje.Caption(), Sentencia(GetParam().delta[0], " 5%"));
    // c / sqrt(11) with 1.07, 1.22 and 1.63.
    Elegir("opt020");
    app.Pulsar(F().bCalcular);
    EXPECT_EQ(F().lblmensaje.Caption(), Sentencia(GetParam().delta[0], " 20%", "0.3226"));
    Elegir("opt010");
    app.Pulsar(F().bCalcular);
    EXPECT_EQ(F().lblmensaje.Caption(), Sentencia(GetParam().delta[0], " 10%", "0.3678"));
    Elegir("opt001");
    app.Pulsar(F().bCalcular);
    EXPECT_EQ(F().lblmensaje.Caption(), Sentencia(GetParam().delta[0], " 1%", "0.4915"));
    EsperarSilencio();
}

TEST_P(CadaAjuste, EvaluacionPorAmbosMomentos) {
    Calcular();
    EXPECT_NEAR(std::stod(Q("100")), GetParam().Q100[0], GetParam().tolerancia);
    EXPECT_EQ(T("7.1"), GetParam().T[0]);
    EXPECT_EQ(Mayor("7.1"), GetParam().excedencia);
    EXPECT_EQ(Menor("7.1"), GetParam().noExcedencia);
    EXPECT_EQ(Q("2").find('.'), Q("2").size() - 3) << "two decimals, also of a whole number";
    EsperarSilencio();
    if (!ConLineales()) {
        return;
    }
    // The choice counts at the click; the verdict is that of the last calculation.
    const std::string veredicto = F().lblmensaje.Caption();
    Elegir("optMomentoLi");
    EXPECT_NEAR(std::stod(Q("100")), GetParam().Q100[1], GetParam().tolerancia);
    EXPECT_EQ(T("7.1"), GetParam().T[1]);
    EXPECT_EQ(F().lblmensaje.Caption(), veredicto);
    EXPECT_EQ(F().lblAjuste.Caption(), "Ajuste con momentos ordinarios:");
    app.Pulsar(F().bCalcular);
    EXPECT_EQ(F().lblAjuste.Caption(), "Ajuste con momentos lineales:");
    EXPECT_EQ(F().lblmensaje.Caption(), Sentencia(GetParam().delta[1], " 5%"));
    EXPECT_EQ(Fila(1)[3], GetParam().primera[3]) << "both columns stay";
    EXPECT_EQ(Fila(1)[4], GetParam().primera[4]);
    EXPECT_NEAR(std::stod(Fila(1)[5]), std::fabs(std::stod(Fila(1)[2]) - std::stod(Fila(1)[4])), 1.01e-4);
}

TEST_P(CadaAjuste, AvisosDeEvaluacion) {
    const std::string antes = "Efectuar cálculos antes de evaluar ";
    EsperarMensaje(F().bQ, antes + "caudal de diseño", kIconoError, kAviso);
    EsperarMensaje(F().bT, antes + "el período de retorno", kIconoError, kAviso);
    EsperarMensaje(F().bPmayor,
                   antes + (GetParam().deNormal ? "la probabilidad de excedencia" : "la probabilidad de no excedencia"),
                   kIconoError, kAviso);
    EsperarMensaje(F().bPmenor, antes + "la probabilidad de no excedencia", kIconoError, kAviso);
    Calcular();
    EsperarMensaje(F().bQ, "Ingresar un valor de T, antes de evaluar", kIconoError, kAviso);
    for (CommandButton* boton : {&F().bT, &F().bPmayor, &F().bPmenor}) {
        EsperarMensaje(*boton, "Ingresar un valor para Q, antes de evaluar", kIconoError, kAviso);
    }
    // A text that is no number counts as 0, and 1/0 ends the handler.
    Escribir(F().txtxt, "abc");
    EsperarError(F().bQ, 11);
    EXPECT_EQ(F().txtxq.Text(), "");
}

TEST_P(CadaAjuste, Grafico) {
    TeclearDatos(kMuestra);
    EsperarMensaje(F().bGraficar, "Efectuar cálculos antes de graficar", kIconoError, kAviso);
    PulsarCalcular();
    app.Pulsar(F().bGraficar);
    EsperarSilencio();
    const GraficoModulo& g = F().Graph1;
    const std::size_t curvas = ConLineales() ? 3 : 2;
    ASSERT_TRUE(g.EsVisible() && F().lblEjeX.EsVisible() && F().lblEjeY.EsVisible());
    EXPECT_EQ(g.NumPoints(), 12);
    ASSERT_EQ(g.Conjuntos().size(), curvas);
    // The table's columns, of which F(Z) is the second theoretical one where there is one kind of moments alone.
    const std::array<std::size_t, 3> columna{2, ConLineales() ? 3U : 4U, 4};
    for (std::size_t s = 0; s < curvas; ++s) {
        const auto& c = g.Conjuntos()[s];
        EXPECT_EQ(c.leyenda, GetParam().leyendas[s]);
        EXPECT_EQ(c.x[0], 0);
        EXPECT_EQ(c.y[0], 0);
        EXPECT_EQ(c.x[1], 1.2);
        EXPECT_EQ(c.x[11], 7.1);
        EXPECT_NEAR(c.y[1]->valor(), std::stod(GetParam().primera[columna[s]]), 5.1e-5);
        EXPECT_NEAR(c.y[11]->valor(), std::stod(GetParam().ultima[columna[s]]), 5.1e-5);
    }
}

// The fourth L-moment needs four values; three suffice where there are none. 1, 2, 5: x0 = (5 - 4)/2 = 0.5, the
// logarithms of 0.5, 1.5, 4.5 are ln 1.5 and ln 1.5 -+ ln 3, sy = ln 3 · sqrt(2/3) = 0.8970, Z = -+1.2247.
TEST_P(CadaAjuste, PocosValoresIgualesYFallos) {
    const std::string forma = GetParam().forma;
    EsperarFallo(forma);
    EsperarVacia();
    TeclearDatos({"1", "2", "5"});
    if (ConLineales()) {
        EsperarFallo(forma);
        EsperarVacia();
    } else {
        PulsarCalcular();
        EXPECT_EQ(Texto("txtxo") + " " + Texto("txtux") + " " + Texto("txtsx"), "0.5 0.4055 0.897");
        EXPECT_EQ(Fila(1), (Textos{"1", "1.0", "0.2500", "-1.2247", "0.1103", "0.1397"}));
    }
    // Enough again: four values.
    Calcular({"12"});
    EXPECT_TRUE(F().calculado);
    EXPECT_EQ(Fila(4)[1], "12.0");
    // A failed calculation keeps what was there, and all but one form go on evaluating it.
    Q("50");
    const std::string Q50 = F().txtxq.Text();
    const Textos fila = Fila(1);
    const std::string veredicto = F().lblmensaje.Caption();
    TeclearDesde(1, 1, {"3", "3", "3", "3"});
    EsperarFallo(forma);
    EXPECT_EQ(Fila(1), fila);
    EXPECT_EQ(F().lblmensaje.Caption(), veredicto);
    if (forma == kLogPearson3) {
        EsperarMensaje(F().bQ, "Efectuar cálculos antes de evaluar caudal de diseño", kIconoError, kAviso);
    } else {
        EXPECT_EQ(Q("50"), Q50);
    }
}

TEST_P(CadaAjuste, ValoresNoPositivos) {
    const std::string forma = GetParam().forma;
    constexpr const char* kNoCero =
        "Para esta distribución, los valores de la serie no pueden ser iguales a 0, ¡Corregir valores¡";
    for (const char* valor : {"0", "-0.5"}) {
        SCOPED_TRACE(valor);
        Textos valores = kMuestra;
        valores[4] = valor;
        app.Pulsar(F().bLimpiar);
        TeclearDatos(valores);
        if (forma == kLogNormal2 || forma == kLogGumbel) {
            EsperarMensaje(F().bCalcular, kNoCero, forma == kLogNormal2 ? kIconoError : kIconoInformacion,
                           "Mensaje de error");
            EsperarVacia();
        } else if (forma == kLogNormal3) {
            EsperarMensaje(F().bCalcular, "Verificar que los datos sean positivos y mayor que 0 ¡ Corregir datos!",
                           kIconoInformacion, "Mensaje de Error");
            EsperarVacia();
        } else if (forma == kGamma2 || forma == kLogPearson3) {
            EsperarFallo(forma);
            EsperarVacia();
        } else {
            PulsarCalcular();
            EXPECT_TRUE(F().calculado);
        }
    }
}

// The table has room for 499 values; the error of row 500 leaves what was written before it.
TEST_P(CadaAjuste, SerieLarga) {
    const auto llenar = [this](int filas) {
        app.Despachar([&] {
            F().grdt.PonerRows(filas + 2);
            for (int i = 1; i <= filas; ++i) {
                // Logarithms of an exponential spread, with ties.
                F().grdt.PonerTextMatrix(i, 1, std::to_string(97 / (97.5 - i % 97)));
            }
        });
    };
    llenar(499);
    PulsarCalcular();
    EXPECT_EQ(Fila(499)[0], "499");
    EXPECT_EQ(Fila(499)[2], "0.9980");
    EXPECT_NE(F().lblmensaje.Caption(), "");
    app.Pulsar(F().bLimpiar);
    llenar(500);
    EsperarFallo(GetParam().forma);
    EXPECT_EQ(Fila(499)[2], "0.9960") << "499/501";
    EXPECT_EQ(F().lblAjuste.Caption(), "Ajuste con momentos ordinarios:");
    EXPECT_EQ(F().lblmensaje.Caption(), "");
    EXPECT_EQ(Texto(GetParam().ordinarios[0].control).empty(), GetParam().deNormal) << "shown after the table";
    EXPECT_FALSE(F().calculado);
    llenar(1501);
    EsperarFallo(GetParam().forma);
}

// Ten values after eleven: the last row of the longer table is gone, and tied values have a rank each.
TEST_P(CadaAjuste, SerieMasCortaYEmpates) {
    Calcular();
    app.Despachar([this] {
        F().grdt.PonerCelda(11, 1);
        F().EliminarFila();
    });
    TeclearDesde(2, 1, {"2"});
    PulsarCalcular();
    EXPECT_EQ(Fila(10)[1], "7.1");
    EXPECT_EQ(Fila(11), Textos(6));
    EXPECT_EQ((Textos{Fila(3)[1], Fila(3)[2], Fila(4)[1], Fila(4)[2]}), (Textos{"2.0", "0.2727", "2.0", "0.3636"}));
    EXPECT_EQ(Fila(3)[3], Fila(4)[3]);
}

TEST_P(CadaAjuste, ArchivosDeSerie) {
    const pruebas::CarpetaTemporal carpeta;
    const std::string archivo = carpeta / "maximos.X";
    Calcular();
    PulsarCon(F().bCrear, archivo);
    app.Pulsar(F().bLimpiar);
    Calcular({"1", "2", "3", "9"});
    PulsarCon(F().bAccesar, archivo);
    EsperarVacia();
    app.Pulsar(F().bCalcular);
    // The parameters of the series as it was typed, to the precision of the file's numbers.
    for (const Parametro& p : Parametros()) {
        EXPECT_EQ(Texto(p.control), p.valor) << p.control;
    }
}

// At the limit itself the data do not fit: one value with |0.5 - 1.86| = 1.36 = 1.36/sqrt(1), all exact or rounded
// alike.
class AjusteAlLimite : public MarcoAjuste {
  public:
    explicit AjusteAlLimite(Aplicacion& app)
        : MarcoAjuste(app, "frmLimite",
                      {.titulo = "Límite",
                       .nombre = "de prueba",
                       .marcoParametros = "",
                       .tituloReporte = "",
                       .porAmbosMomentos = false,
                       .leyendas = {"Exp", "Ord"}}) {}
    void GenerarReporte(Reporte&) override {}
    Double teorica;

  protected:
    void Ajustar() override { Gord(1) = teorica; }
    Double Cuantil(Double p) override { return p; }
    std::optional<Double> Probabilidad(Double Q, Evaluacion) override { return Q; }
};

TEST(LimiteDelAjuste, IgualdadNoSeAjusta) {
    PlataformaGuion sistema;
    Aplicacion app{sistema, {{"frmLimite", [](Aplicacion& a) -> std::unique_ptr<Formulario> {
                                  return std::make_unique<AjusteAlLimite>(a);
                              }}}};
    app.Despachar([&] { app.ModuloAbrir("frmLimite"); });
    auto& forma = dynamic_cast<AjusteAlLimite&>(*app.Cargada("frmLimite"));
    const auto veredicto = [&](double delta) {
        app.Despachar([&] {
            forma.grdt.PonerRows(3);
            forma.grdt.PonerTextMatrix(1, 1, "5");
            forma.teorica = 0.5 + delta;
        });
        app.Pulsar(forma.bCalcular);
        return forma.lblmensaje.Caption();
    };
    ASSERT_EQ(Abs(Double(0.5) - (Double(0.5) + 1.36)), 1.36) << "exact in binary";
    EXPECT_EQ(veredicto(1.36),
              "Como el delta teórico 1.3600, es mayor que el delta tabular 1.3600. Los datos no se ajustan a la "
              "distribución de prueba, con un nivel de significación del 5%");
    EXPECT_NE(veredicto(1.3599999).find("es menor que el delta tabular 1.3600. Los datos se ajustan"),
              std::string::npos)
        << "the unrounded values decide";
    // One value is too few for a chart.
    app.Pulsar(forma.bGraficar);
    ASSERT_EQ(sistema.mensajes.size(), 1U);
    EXPECT_EQ(sistema.mensajes[0].texto, "Para graficar se requiere por lo menos dos puntos");
    EXPECT_EQ(sistema.mensajes[0].titulo, "Error");
    EXPECT_EQ(sistema.mensajes[0].icono, kIconoError);
}

TEST_F(AjusteTest, EvaluacionesSinGuarda) {
    Calcular();
    for (const char* T : {"1", "0.5"}) {  // the logarithm of 0 and of a negative number
        Escribir(F().txtxt, T);
        EsperarError(F().bQ, 5);
    }
    Escribir(F().txtxq, "1000000");  // G is 1
    EsperarError(F().bT, 11);
    Escribir(F().txtxq, "-2000");  // exp(-y) is beyond a Double
    EsperarError(F().bPmayor, 6);
    Abrir(kLogGumbel);
    Calcular();
    for (CommandButton* boton : {&F().bT, &F().bPmayor, &F().bPmenor}) {
        Escribir(F().txtxq, "0");
        EsperarError(*boton, 5);
    }
    Abrir(kNormal);
    Calcular();
    Escribir(F().txtxt, "1");  // p = 0
    EsperarError(F().bQ, 11);
    // The mean is 0: the coefficient of variation does not exist.
    app.Pulsar(F().bLimpiar);
    TeclearDatos({"-2", "-1", "1", "2"});
    EsperarFallo(kNormal);
}

TEST_F(AjusteTest, LogNormal3DebajoDeSuPosicion) {
    Abrir(kLogNormal3);
    Calcular();  // x0 = 0.78857
    const std::string no = "Para este valor, no es posible calcular ";
    for (const char* Q : {"0.5", "-1"}) {
        Escribir(F().txtxq, Q);
        EsperarMensaje(F().bT, no + "el período de retorno, además este valor es muy pequeño", kIconoError, "Error");
        EsperarMensaje(F().bPmayor, no + "la probabilidad de excedencia", kIconoError, "Error");
        EsperarMensaje(F().bPmenor, no + "la probabilidad de no excedencia", kIconoError, "Error");
    }
    EXPECT_EQ(F().txtxt.Text() + F().txtxp.Text(), "");
    // Symmetric values: no x0. A long lower tail: x0 above the values, whose probabilities do not exist.
    app.Pulsar(F().bLimpiar);
    TeclearDatos({"1", "2", "3"});
    EsperarFallo(kLogNormal3);
    app.Pulsar(F().bLimpiar);
    TeclearDatos({"1", "4", "5", "5.5"});
    EsperarFallo(kLogNormal3);
}

class PearsonTest : public AjusteTest {
  protected:
    explicit PearsonTest(const std::string& forma = kGamma3) : AjusteTest(forma) {}

    AjustePearson3& P() { return dynamic_cast<AjustePearson3&>(F()); }
    /// No evaluation by the chosen moments.
    void EsperarRechazo(const std::string& momentos) {
        Escribir(F().txtxt, "100");
        Escribir(F().txtxq, "5");
        for (CommandButton* boton : {&F().bQ, &F().bT, &F().bPmayor, &F().bPmenor}) {
            EsperarMensaje(*boton, "Los datos no se ajustan a la distribución Gamma de 3 parámetros, con " + momentos,
                           kIconoError, kAviso);
        }
    }
    void EsperarIncorrectos(const std::string& momentos, const std::string& distribucion) {
        EXPECT_EQ(F().lblmensaje.Caption(), "Los parámetros: Xo, gamma y ß calculada por " + momentos +
                                                ", son incorrectos, por lo que los datos no se ajustan a la "
                                                "distribución " +
                                                distribucion);
    }
};

// 1, 2, 4, 5, 6 and their exponentials have a negative skew, Cs = -0.2355 and tau = -1/13: ordinary moments fail,
// linear ones give gamma = 18.03, beta = 0.5464, x0 = -6.2521, below every value.
TEST_F(PearsonTest, SesgoNegativo) {
    const Textos logaritmos{"1", "2", "4", "5", "6"};
    const Textos valores{"2.718281828", "7.389056099", "54.598150033", "148.413159103", "403.428793493"};
    for (const std::string forma : {kGamma3, kLogPearson3}) {
        SCOPED_TRACE(forma);
        Abrir(forma);
        const bool enLogaritmos = forma == kLogPearson3;
        const std::string nombre = enLogaritmos ? "Log-Pearson tipo 3" : "gamma de 3 parámetros";
        Calcular(enLogaritmos ? valores : logaritmos);
        EXPECT_EQ(Texto("txtgammal") + " " + Texto("txtbetal") + " " + Texto("txtxol"), "18.0303 0.5464 -6.2521");
        EXPECT_EQ(Texto("txtbeta").front(), '-') << "computed and shown all the same";
        EXPECT_EQ(Fila(5)[3], "0.0000");
        EXPECT_EQ(Fila(5)[5], "0.8333") << "the difference is P(X) itself";
        EsperarIncorrectos("momentos ordinarios", nombre);
        EsperarRechazo("momentos ordinarios");
        Elegir("optMomentoLi");
        PulsarCalcular();
        EXPECT_NE(F().lblmensaje.Caption().find("Los datos se ajustan"), std::string::npos);
        EXPECT_NE(Q("10"), "");
        EsperarSilencio();
        // 1, 3, 4, 4.5, 5: the linear x0 = 1.74 leaves a value below it.
        CalcularDeNuevo(enLogaritmos
                            ? Textos{"2.718281828", "20.085536923", "54.598150033", "90.017131301", "148.413159103"}
                            : Textos{"1", "3", "4", "4.5", "5"});
        EXPECT_EQ(Texto("txtxol"), "1.7394");
        EXPECT_TRUE(P().paramMalOrd && P().paramMalLin);
        EXPECT_EQ(Fila(1)[4], "0.0000");
        EsperarIncorrectos("momentos lineales", nombre);
        EsperarRechazo("momentos lineales");
    }
}

// By ordinary moments x0 = -1.40, by linear ones 0.56.
TEST_F(PearsonTest, VariableReducidaNegativa) {
    Calcular();
    const auto esperar = [this](const std::string& Q, const std::string& momentos) {
        Escribir(F().txtxq, Q);
        for (CommandButton* boton : {&F().bPmayor, &F().bPmenor}) {
            EsperarMensaje(*boton,
                           "Para los parámetros: Xo y ß la variable reducida y, por " + momentos +
                               ", es negativa, por lo que por lo que no se puede calcular su probabilidad",
                           kIconoInformacion, kAviso);
        }
        EXPECT_EQ(F().txtxp.Text(), "");
        EsperarError(F().bT, 5);  // no such test there: a power of a negative number
    };
    esperar("-2", "momentos ordinarios");
    Elegir("optMomentoLi");
    esperar("0.5", "momentos lineales");
}

// The counter of the quantile's rounds is the n of the module: the next chart has as many points.
TEST_F(PearsonTest, ElCuantilDejaSuCuenta) {
    for (const std::string forma : {kGamma2, kGamma3, kLogPearson3}) {
        SCOPED_TRACE(forma);
        Abrir(forma);
        Calcular();
        Q("100");
        const int rondas = F().n;
        EXPECT_GT(rondas, 11);
        app.Pulsar(F().bGraficar);
        EXPECT_EQ(F().Graph1.NumPoints(), rondas + 1);
        EXPECT_EQ(F().Graph1.Conjuntos()[0].x[11], 7.1);
        EXPECT_EQ(F().Graph1.Conjuntos()[0].x[12], 0) << "beyond the series";
        app.Pulsar(F().bCalcular);
        app.Pulsar(F().bGraficar);
        EXPECT_EQ(F().Graph1.NumPoints(), 12);
        EsperarSilencio();
    }
}

}  // namespace
}  // namespace cuencalia
