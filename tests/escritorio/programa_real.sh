#!/usr/bin/env bash
# The real program on a virtual display, with mouse and keys: the series 1, 2, 3, 4, 5 must give the figures worked out
# by hand: mean 15/5; sums of powers of the deviations 10, 0, 34; s² = 10/4, v = 10/5; Ck = 5³·6.8/(4·3·2·2.5²);
# population kurtosis 6.8/2²; L1 = 3, L2 = 1, L3 = L4 = 0.
# Usage: programa_real.sh SOURCE_TREE PROGRAM FOLDER
set -euo pipefail

esperado=$'3.0000\t3.0000\t3.0000
2.5\t2.0\t1.0
1.5811\t1.4142\t1.0000
0.5270\t0.4714\t0.3333
0.0000\t0.0000\t0.0000
5.6667\t1.7000\t0.0000'

salida=$("$1/tools/capturas" "$2" "$3" 1 2 3 4 5)
echo "$salida"
obtenido=$(sed '1,/^Resultados:/d' <<<"$salida")
if [ "$obtenido" != "$esperado" ]; then
    diff <(echo "$esperado") <(echo "$obtenido") || true
    exit 1
fi
for foto in 1-menu 4-resultados; do
    # A blank picture has one colour: the window was never painted.
    colores=$(identify -format '%k' "$3/$foto.png")
    [ "$colores" -gt 50 ] || { echo "$foto.png tiene $colores colores" >&2; exit 1; }
done
