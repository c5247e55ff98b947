// Throws damaged workbooks at the readers: whatever the bytes, the outcome is a sheet or a run-time error.
// Seeds that serve best: workbooks packed with `zip -0`, so that a changed byte reaches the XML (the checksum of a part
// is looked at when the part ends), and the bare record streams of .xls workbooks.
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
