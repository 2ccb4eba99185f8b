#!/usr/bin/env bash
# Counts the lines of test against the lines of code and prints the share.
# A counted line is non-blank and not a comment: in .cpp, .h and .js files a comment
# line starts (after blanks) with //; in .session and .py files with # followed by a
# blank or nothing; .html and .css lines count when they are not blank. Tests are
# everything under tests/; code is src/ and app/.
set -euo pipefail
cd "$(dirname "$0")/.."

count() {
    find "$@" -type f \( -name '*.cpp' -o -name '*.h' -o -name '*.session' -o -name '*.js' -o -name '*.py' \
        -o -name '*.html' -o -name '*.css' \) -print0 |
        xargs -0 -r awk '
            FILENAME ~ /\.(session|py)$/ { if ($0 ~ /^[ \t]*$/ || $0 ~ /^[ \t]*#([ \t]|$)/) next; n++; next }
            FILENAME ~ /\.(html|css)$/ { if ($0 ~ /^[ \t]*$/) next; n++; next }
            { if ($0 ~ /^[ \t]*$/ || $0 ~ /^[ \t]*\/\//) next; n++ }
            END { print n + 0 }' |
        awk '{ s += $1 } END { print s + 0 }'
}

tests=$(count tests)
code=$(count src app)
awk -v t="$tests" -v c="$code" 'BEGIN {
    printf "tests %d\ncode  %d\nshare %.1f%%\n", t, c, (c ? 100 * t / c : 0) }'
