# Shared by the scripts of this folder; the caller stands in the project's root.

# build PRESET [TARGET...]: configures once and builds, quiet unless something is wrong.
build() {
    local preset=$1 log
    shift
    log=$(mktemp)
    local launcher=()
    command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    if ! { cmake --preset "$preset" "${launcher[@]}" &&
        cmake --build --preset "$preset" ${1:+--target "$@"}; } >"$log" 2>&1; then
        grep -E -A12 'error|FAILED|CMake Error' "$log" >&2 || tail -n 40 "$log" >&2
        rm -f "$log"
        return 1
    fi
    grep -E -A6 'warning:' "$log" >&2 || true
    rm -f "$log"
}
