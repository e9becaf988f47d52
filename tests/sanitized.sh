#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# sanitized.sh TEST...: runs a test with sanitizers. Whole stacks of what is allocated take most of its time, and only
# what libraries keep is told by them, since Qt has no frame pointers: so they are taken where something is said to leak
# without them, and what they say counts.
#
# Where the sanitizer follows the variables of threads in libraries that are loaded later, it takes what stands before
# them for their size, and dies of it at the end of a process that has read pictures.
set -euo pipefail
reports=$(mktemp -d)
trap 'rm -rf "$reports"' EXIT
status=0
ASAN_OPTIONS=intercept_tls_get_addr=0:log_path=$reports/of "$@" || status=$?
if grep -qs 'LeakSanitizer: detected memory leaks' "$reports"/*; then
    status=0
    ASAN_OPTIONS=intercept_tls_get_addr=0:fast_unwind_on_malloc=0 "$@" || status=$?
elif [ "$status" -ne 0 ]; then
    cat "$reports"/* >&2 || true
fi
exit "$status"
