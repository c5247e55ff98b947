#pragma once

namespace cuencalia {

inline constexpr double kTwipsPorPixel = 15;  ///< 1440 twips and 96 pixels make an inch.

}  // namespace cuencalia
