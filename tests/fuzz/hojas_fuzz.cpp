// Throws damaged workbooks at the readers: whatever the bytes, the outcome is a sheet or a run-time error.
//
//   clang++-14 -std=c++20 -O1 -g -fsanitize=fuzzer,address,undefined -I. $(pkg-config --cflags libgsf-1) \
//       tests/fuzz/hojas_fuzz.cpp hojas/*.cpp frame/errores.cpp \
//       $(pkg-config --libs libgsf-1 expat xlsxwriter) -o hojas_fuzz
//   ./hojas_fuzz -rss_limit_mb=1024 -malloc_limit_mb=300 -timeout=10 CORPUS tests/datos/hojas
//
// Seeds that serve best: workbooks packed with `zip -0`, so that a changed byte reaches the XML, and the bare record
// streams of .xls workbooks.
#include <cstdint>
#include <span>

#include "hojas/libros.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo) {
    try {
        cuencalia::LeerLibro(std::as_bytes(std::span(datos, largo)), 4, 1501);
    } catch (const cuencalia::ErrorEjecucion&) {
        // A refusal is a sound answer.
    }
    return 0;
}
