# shellcheck shell=bash
# How run and test speak. Sourced; $0 is the command that the user typed.

say() {
    printf '==> %s\n' "$*"
}

# One line that says why, and the end.
fail() {
    printf '%s: stopped: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# step "What happens" command...: says it, does it, stops if it fails.
step() {
    local what=$1
    shift
    say "$what"
    "$@" || fail "\"$what\" failed"
}

# configure_build PRESET FOLDER [options...]: once; after that the build itself notices what changed.
configure_build() {
    local preset=$1 folder=$2
    shift 2
    # A tree that was moved or copied with its build folder: what was configured for the old place is of no use.
    if [[ -f $folder/CMakeCache.txt ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$folder/CMakeCache.txt"; then
        rm -rf "$folder"
    fi
    [[ -f $folder/build.ninja ]] || step "Configuring in $folder" cmake --preset "$preset" -B "$folder" "$@"
}
