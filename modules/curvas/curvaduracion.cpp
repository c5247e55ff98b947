#include "modules/curvas/curvaduracion.h"

#include <algorithm>

#include "modules/estadistica/orden.h"

namespace cuencalia {

void OrdenarDescendente(ColumnaDuracion& Q, int n) {
    OrdenarSerie(Q, n);
    std::reverse(&Q(1), &Q(n) + 1);
}

CurvaDuracion FormarCurva(const ColumnaDuracion& Q, int n) {
    CurvaDuracion curva;
    for (int i = 1; i <= n; ++i) {
        if (i < n && Q(i + 1) == Q(i)) {
            continue;
        }
        ++curva.m;
        curva.Q(curva.m) = Q(i);
        curva.Prob(curva.m) = 100 * (Double(i) / n);
    }
    return curva;
}

void DividirEntre(Double Qm, const CurvaDuracion& curva, ColumnaDuracion& Qadi) {
    for (int i = 1; i <= curva.m; ++i) {
        Qadi(i) = curva.Q(i) / Qm;
    }
}

Double CaudalDeDuracion(const CurvaDuracion& curva, Double P) {
    const ColumnaDuracion &Q = curva.Q, &Prob = curva.Prob;
    int k = 0;  // the last point with a percentage up to P
    while (k < curva.m && P >= Prob(k + 1)) {
        ++k;
    }
    if (Prob(k) == P) {
        return Q(k);
    }
    return Q(k) + ((P - Prob(k)) * (Q(k + 1) - Q(k))) / (Prob(k + 1) - Prob(k));
}

}  // namespace cuencalia
