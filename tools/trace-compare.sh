#!/usr/bin/env bash
# Compares the read sequences of two traces written by `orbehub-cli --trace`: the same frames in
# the same order, and how far each gap between two transfers differs. The read sequence starts at
# the first 83 sent; the wired input stream's reads (the key-test poll on its own handle) are left
# out, as their timing follows their own 20 ms poll.
# Usage: tools/trace-compare.sh BEFORE.trace AFTER.trace [TOLERANCE_MS]   (default 2)
# Exit status 0 when the frames match and the gaps differ by no more than the tolerance on
# average (real-time traces of one build already differ by about a millisecond).
set -euo pipefail

if [ $# -lt 2 ]; then
  sed -n '2,7p' "$0" >&2
  exit 2
fi
before=$1
after=$2
tolerance=${3:-2}

# "<ms> <direction kind bytes>" lines of the read sequence.
sequence() {
  awk '
    /^[0-9]+ > (feature|write) (00|06 55) 83( |$)/ { on = 1 }
    !on { next }
    / < read / && wired { next }
    { print }
  ' wired="$(grep -q ' > feature ' "$1" && echo 1 || echo 0)" "$1"
}

paste -d'|' <(sequence "$before") <(sequence "$after") | awk -F'|' -v tol="$tolerance" '
  function split_line(line, parts) {
    n = index(line, " ")
    parts["ms"] = substr(line, 1, n - 1) + 0
    parts["frame"] = substr(line, n + 1)
  }
  {
    split_line($1, a); split_line($2, b)
    if ($1 == "" || $2 == "") { missing++; next }
    if (a["frame"] != b["frame"]) {
      if (!mismatch) printf "first different transfer, line %d:\n  before: %s\n  after:  %s\n", NR, a["frame"], b["frame"]
      mismatch++
    }
    if (NR > 1) {
      d = (b["ms"] - pb) - (a["ms"] - pa); if (d < 0) d = -d
      sum += d; count++
      if (d > worst) { worst = d; worstLine = NR }
      if (d > tol) late++
    }
    pa = a["ms"]; pb = b["ms"]
  }
  END {
    printf "transfers compared: %d; different: %d; only in one trace: %d\n", NR - missing, mismatch, missing
    if (count) printf "gap difference: mean %.2f ms, largest %d ms (transfer %d); over %d ms: %d\n", sum / count, worst, worstLine, tol, late
    exit (mismatch || missing || (count && sum / count > tol)) ? 1 : 0
  }'
