# The soak's samples as two pictures: GDI objects and private memory over the cycles, one line
# per kind. Called by ./kiv soak with dir (the soak's folder) and kinds (the kinds' names).
set datafile separator ","
set terminal pngcairo size 960,540 font "Liberation Sans,10"
set key outside right
set grid
set xlabel "cycles"

set output dir."/soak-gdi.png"
set ylabel "GDI objects of the process"
set yrange [0:*]
plot for [k in kinds] dir."/".k.".csv" using 2:3 with linespoints title k

set output dir."/soak-memory.png"
set ylabel "private memory kept since the first cycle (KiB)"
set yrange [*:*]
plot for [k in kinds] dir."/".k.".csv" using 2:6 with linespoints title k
