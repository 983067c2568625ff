#!/bin/bash
# SPDX-License-Identifier: MIT
# A frame that nothing changed opens, reads and maps no file and talks to nobody.
set -u
trace=$(mktemp)
strace -f -o "$trace" "$@" || exit 1
between=$(sed -n '/mark-begin/,/mark-end/p' "$trace" | grep -v mark-)
grep -q mark-end "$trace" || { echo "FAILED: no trace"; exit 1; }
busy=$(grep -vE ' (stat|newfstatat|statx|clock_gettime|brk|futex|gettid)\(' <<<"$between" | grep -v '^$')
if [ -n "$busy" ]; then
    echo "FAILED: these calls are made while nothing changed:"
    sed 's/^[0-9]* *//; s/(.*//' <<<"$busy" | sort | uniq -c
    head -3 <<<"$busy"
    exit 1
fi
