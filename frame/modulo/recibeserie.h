#pragma once

#include <string>
#include <vector>

namespace cuencalia {

/// A window that another one opens with its own series.
class RecibeSerie {
  public:
    virtual ~RecibeSerie() = default;
    /// `serie` in the order in which it was observed; `origen` is the title of the window that has it.
    virtual void RecibirSerie(const std::string& origen, std::vector<double> serie) = 0;
};

}  // namespace cuencalia
