#pragma once

namespace cuencalia {

/// Counts a box or a dialog for as long as it is open; no command runs meanwhile.
class Espera {
  public:
    explicit Espera(int& cajas) : cajas_(cajas) { ++cajas_; }
    ~Espera() { --cajas_; }
    Espera(const Espera&) = delete;
    Espera& operator=(const Espera&) = delete;

  private:
    int& cajas_;
};

}  // namespace cuencalia
