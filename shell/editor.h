#pragma once

namespace cuencalia::editor {

/// Contact data of those who publish this build, shown in the About box: whoever publishes another build writes its own
/// here.
inline constexpr const char* kTrabajos = "El manual del programa, en el menú Ayuda";
inline constexpr const char* kConsultas = "Equipo de Cuencalia";

}  // namespace cuencalia::editor
