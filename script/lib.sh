# shellcheck shell=bash
# What the scripts of this folder have in common. Sourced, not run: it leaves the working directory alone, so that
# relative paths among a script's arguments mean what its caller meant.
set -euo pipefail

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
jobs=$(nproc)

# Nothing here opens a window, so the display that the environment names, which may not be reachable, is not used.
export QT_QPA_PLATFORM=offscreen

# Read by programs that are built with the address sanitizer, and by no others.
export LSAN_OPTIONS="${LSAN_OPTIONS:-suppressions=$root/cmake/leaks.supp:print_suppressions=0}"

say()
{
    printf '%s: %s\n' "$(basename -- "$0")" "$*" >&2
}

die()
{
    say "$@"
    exit 1
}

# quietly COMMAND...: standard output stays free for results. The command's output goes to standard error, as it comes
# on a terminal, otherwise only when the command fails.
quietly()
{
    if [[ -t 2 ]]; then
        "$@" >&2
        return
    fi
    local log status=0
    log=$(mktemp)
    "$@" >"$log" 2>&1 || status=$?
    if ((status != 0)); then
        cat -- "$log" >&2
    fi
    rm -f -- "$log"
    return "$status"
}

# build_dir PRESET: where that preset of CMakePresets.json builds.
build_dir()
{
    case $1 in
    release) printf '%s\n' "$root/build" ;;
    *) printf '%s\n' "$root/build-$1" ;;
    esac
}

# build PRESET TARGET [CMAKE FLAG...]: configures and builds, having installed what that takes. The words of
# EDITOREFFECTS_CMAKE_FLAGS are further flags.
build()
{
    local preset=$1 target=$2 extra=()
    shift 2
    read -ra extra <<<"${EDITOREFFECTS_CMAKE_FLAGS:-}"
    "$root/script/bootstrap"
    quietly cmake -S "$root" --preset "$preset" "$@" "${extra[@]}" || die "configuring failed"
    quietly cmake --build "$(build_dir "$preset")" --parallel "$jobs" --target "$target" || die "the build failed"
}
