#!/usr/bin/env python3
"""plot.py RESULTS.json PLOT.svg - every measured row's distance from the streaming limit, beside goals and peers."""
import json
import subprocess
import sys

results, plot = sys.argv[1:]
with open(results) as file:
    rows = [b for b in json.load(file)["benchmarks"] if "x limit" in b]
if any("goal" in b for b in rows):
    rows = [b for b in rows if "goal" in b]
rows.sort(key=lambda b: b["x limit"])


def name(row):
    return row["name"].split("/iterations")[0].removeprefix("kvri").replace("_", "\\\\_")


lines = [f'{i} {row["x limit"]} {row.get("goal", "NaN")} {row.get("peer", "NaN")} "{name(row)}"' for i, row in enumerate(rows)]
script = f"""
set terminal svg size 900,{80 + 13 * len(rows)} font "sans,9" background "white"
set output "{plot}"
$rows << EOD
{chr(10).join(lines)}
EOD
set title "Time, as a multiple of the fastest loop that moves the same bytes"
set logscale x 2
set xrange [0.5:*]
set yrange [-1:{len(rows)}]
set grid x
set key top right
set arrow from 1,-1 to 1,{len(rows)} nohead lc rgb "gray"
plot $rows using 4:1:ytic(5) with points pt 6 ps 0.6 lc rgb "gray50" title "best public peer", \\
     $rows using 3:1 with points pt 1 ps 0.6 lc rgb "orange" title "goal", \\
     $rows using 2:1 with points pt 7 ps 0.6 lc rgb "blue" title "kvri"
"""
subprocess.run(["gnuplot"], input=script, text=True, check=True)
