# One benchmark's figures as a picture of the cost per item against the number of items, a
# line per figure and a dashed one for its baseline: flat lines mean a linear total. Called by
# ./kiv bench with csv (a benchmark's CSV), figures (their names), ylabel and out (the PNG).
set datafile separator ","
set terminal pngcairo size 960,540 font "Liberation Sans,10"
set output out
set key outside right
set grid
set logscale x
set logscale y
set xlabel "items"
set ylabel ylabel
pick(name, column) = strcol(1) eq name ? column(column) : NaN
plot for [i=1:words(figures)] csv using 2:(pick(word(figures, i), 3)) with linespoints lc i pt 7 \
       title word(figures, i), \
     for [i=1:words(figures)] csv using 2:(pick(word(figures, i), 4) > 0 ? pick(word(figures, i), 4) : NaN) \
       with linespoints lc i dt 2 pt 6 title word(figures, i)." (baseline)"
