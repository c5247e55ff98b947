#include "frame/base/bloque.h"

#include <gtest/gtest.h>

#include "frame/base/textos.h"

namespace cuencalia {
namespace {

TEST(BloqueTest, NumerosConCadaSignoDecimal) {
    struct Caso {
        const char* celda;
        const char *conPunto, *conComa;  ///< Empty: no number.
    };
    // clang-format off
    static constexpr Caso kCasos[] = {
        {"12", "12", "12"}, {"12.5", "12.5", ""}, {"12,5", "", "12.5"}, {"1.234", "1.234", "1234"},
        {"1,234", "1234", "1.234"}, {"1.234,5", "", "1234.5"}, {"1,234,567.25", "1234567.25", ""},
        {"1.234.567", "", "1234567"}, {"1 234,5", "", "1234.5"}, {"1\u00A0234\u202F567", "1234567", "1234567"},
        {"12 34", "", ""}, {"1234,567", "", "1234.567"}, {"-.5", "-.5", ""}, {"+7,", "", "7."},
        {"\u22123,2", "", "-3.2"}, {"1.5E+3", "1.5e+3", ""}, {"1e", "", ""}, {"", "", ""}, {".", "", ""},
        {"n/d", "", ""}, {"2024-01-05", "", ""}};
    // clang-format on
    for (const Caso& caso : kCasos) {
        EXPECT_EQ(LeerNumero(caso.celda, SignoDecimal::Punto).value_or(""), caso.conPunto) << caso.celda;
        EXPECT_EQ(LeerNumero(caso.celda, SignoDecimal::Coma).value_or(""), caso.conComa) << caso.celda;
    }
    for (const char* entero : {"5", " -1.5 ", ".5", "1e3", "+2."}) {
        EXPECT_TRUE(ValLeeTodo(entero)) << entero;
    }
    for (const char* aMedias : {"12,5", "1,234", "7x", "", "abc", "1 2", "1e", "2-3"}) {
        EXPECT_FALSE(ValLeeTodo(aMedias)) << aMedias;
    }
}

TEST(BloqueTest, UnBloqueDejaUnaLecturaONo) {
    EXPECT_EQ(SepararBloque("a\t b \r\n\tc\n\n"), (Bloque{{"a", "b"}, {"", "c"}}));
    EXPECT_EQ(SepararBloque(UnirBloque({{"1", "2"}, {"3", "4"}})), (Bloque{{"1", "2"}, {"3", "4"}}));
    struct Caso {
        const char* texto;
        std::size_t encabezados;
        char signo;  ///< '?': both are possible.
    };
    // clang-format off
    static constexpr Caso kCasos[] = {
        {"Año\tQ\n(-)\t(m3/s)\n1998\t1.5\n", 2, '.'}, {"1.234\n2,5\n", 0, ','}, {"1,234\n2,500\n", 0, '?'},
        {"1.234\n7\n", 0, '?'}, {"1.234,5\n1.234\n", 0, ','}, {"1\nn/d\n2\n", 0, '.'}, {"n/d\nx\n", 0, '.'},
        {"1.5\n2,5\n1.234\n", 0, '?'}, {"0,0\n", 0, ','}};
    // clang-format on
    for (const Caso& caso : kCasos) {
        const LecturaBloque lectura = LeerBloque(SepararBloque(caso.texto));
        EXPECT_EQ(lectura.encabezados, caso.encabezados) << caso.texto;
        EXPECT_EQ(!lectura.signo ? '?' : *lectura.signo == SignoDecimal::Punto ? '.' : ',', caso.signo) << caso.texto;
    }
}

TEST(BloqueTest, UnBloqueSePegaEnLasColumnasQueHay) {
    const Pegado pegado =
        LeerPegado(SepararBloque("Año\tQ\tNota\n1998\t1,5\tseca\n1999\tn/d\n\t\t\n2001"), 1, SignoDecimal::Coma, 2);
    EXPECT_EQ(pegado.celdas, (Bloque{{"1998", "1.5"}, {"1999", "n/d"}, {"", ""}, {"2001"}}));
    EXPECT_EQ(pegado.ajenas, 1) << "n/d; a blank is none";
    EXPECT_EQ(pegado.sobrantes, 1) << "seca";
}

}  // namespace
}  // namespace cuencalia
