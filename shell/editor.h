#pragma once

namespace cuencalia::editor {

/// Contact data of the publisher of this build, shown in the About box; another publisher replaces them here.
inline constexpr const char* kTrabajos = "El manual del programa, en el menú Ayuda";
inline constexpr const char* kConsultas = "Equipo de Cuencalia";

}  // namespace cuencalia::editor
