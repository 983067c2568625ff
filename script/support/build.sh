# Shared by the scripts of this folder; the caller stands in the project's root.

# quietly COMMAND...: says something only if something is wrong.
quietly() {
    local log
    log=$(mktemp)
    if ! "$@" >"$log" 2>&1; then
        grep -E -A12 'error|FAILED|CMake Error' "$log" >&2 || tail -n 40 "$log" >&2
        rm -f "$log"
        return 1
    fi
    grep -E -A6 'warning:' "$log" >&2 || true
    rm -f "$log"
}

# configure PRESET
configure() {
    local launcher=()
    command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    quietly cmake --preset "$1" "${launcher[@]}"
}

# build PRESET [TARGET...]: configures and builds these targets, or all.
build() {
    local preset=$1
    shift
    configure "$preset" && quietly cmake --build --preset "$preset" ${1:+--target "$@"}
}
