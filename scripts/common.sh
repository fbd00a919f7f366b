# What the scripts share: the place they work in, and how a preset is built.
# shellcheck shell=bash
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Qt expects UTF-8 and says so on stderr where a bare machine has nothing but the C locale.
[ "$(locale charmap 2>/dev/null)" = UTF-8 ] || export LC_ALL=C.UTF-8

if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache
fi

heading() {
    printf '\n== %s\n' "$*"
}

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# build_dir PRESET: where a preset is built.
build_dir() {
    case $1 in
    dev) echo build ;;
    *) echo "build-$1" ;;
    esac
}

# configure PRESET: warnings are errors only where the caller exports ZEL_WERROR=ON, as CI does with its one compiler.
configure() {
    local output
    output=$(cmake --preset "$1" "-DZEL_WERROR=${ZEL_WERROR:-OFF}" 2>&1) || { printf '%s\n' "$output" >&2; fail "cannot configure preset $1"; }
}

# build PRESET [TARGET...]: configures and builds; silent on success except for progress on a terminal.
build() {
    local preset=$1 targets=() output
    shift
    [ $# -eq 0 ] || targets=(--target "$@")
    configure "$preset"
    if [ -t 1 ]; then
        cmake --build --preset "$preset" --parallel "$(nproc)" "${targets[@]}"
    else
        output=$(cmake --build --preset "$preset" --parallel "$(nproc)" "${targets[@]}" 2>&1) ||
            { printf '%s\n' "$output" >&2; fail "cannot build preset $preset"; }
    fi
}

# sources: every C++ file of the project, also those not yet committed.
sources() {
    git ls-files --cached --others --exclude-standard --deduplicate -- '*.cpp' '*.h' | while IFS= read -r file; do
        [ ! -e "$file" ] || printf '%s\n' "$file"
    done
}
