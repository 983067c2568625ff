#!/bin/bash
# A schedule that did not change is evaluated without opening a file: one look at the location file's status each time.
# Arguments: the program that evaluates, how often.
set -eu
trace=$TMPDIR/trace
strace -f -o "$trace" -e trace=file,desc "$1" "$2"
between=$(sed -n '/evaluations-begin/,/evaluations-end/p' "$trace" | sed '1d;$d')
opened=$(grep -cE '\bopen(at2?)?\(|\bread\(|\bmmap\(' <<<"$between" || true)
looked=$(grep -c 'location\.plist' <<<"$between" || true)
echo "$2 evaluations: $opened opened or read, $looked looks at the location file"
[ "$opened" = 0 ] && [ "$looked" = "$2" ]
