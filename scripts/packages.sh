# shellcheck shell=bash
# What a Debian 12 machine needs, one package a line with its purpose, and the routine that installs what is missing.
# Sourced by run and test, so that both speak of the same list.

packages_to_run=(
    g++                 # the C++20 compiler
    cmake               # configures the build
    ninja-build         # carries it out
    qt6-base-dev        # Qt 6: core, widgets, printing, and what runs them under X
    qt6-svg-dev         # draws the icons
    qt6-tools-dev       # the engine that the help is read with
    qt6-documentation-tools # makes the help file of the pages
    libqt6sql6-sqlite   # the tables in which that file keeps them
    libxcb1-dev         # talks to the X server about windows of other programs
    libxcb-ewmh-dev     # the same in the terms of today's window managers
    libxcb-icccm4-dev   # and in those that all windows share
    qt6-wayland         # what runs Qt programs on a Wayland desktop without X
    qt6-gtk-platformtheme # fonts, colours and file dialogs of a GNOME desktop
    fonts-dejavu-core   # a font on a machine that has none
)

# shellcheck disable=SC2034  # read by test
packages_to_test=(
    "${packages_to_run[@]}"
    xvfb                # the X server of the end-to-end tests
    openbox             # their window manager
    xdotool             # their keys and mouse
    wmctrl              # lists and activates windows
    x11-utils           # xprop, xwininfo: looks at windows from outside
    poppler-utils       # pdftotext: reads what was printed
    hunspell            # looks at the spelling of the help
    hunspell-en-us      # its American words
    libbenchmark-dev    # the benchmarks
    python3             # the end-to-end tests' scripts
    clang               # builds the fuzz target
    libclang-rt-14-dev  # clang's fuzzer and sanitizers
    ccache              # keeps what was compiled once, for the next build of the same file
)

# What scripts/check-code looks at the code with, beside what the tests need.
# shellcheck disable=SC2034  # read by check-code
packages_to_check=(
    "${packages_to_test[@]}"
    clang-format        # the layout of the code
    clang-tidy          # finds what compilers do not warn of
    shellcheck          # the same for shell scripts
)

# announce_size COMMAND...: how much that installation brings, in apt's own words, since nothing is heard while it runs.
announce_size() {
    local words
    words=$(LC_ALL=C "$@" --assume-no </dev/null 2>/dev/null | grep -E '^(Need to get|After this operation)' || true)
    say "apt-get works without a word now, some minutes for each gigabyte. ${words//$'\n'/ }"
}

# Installs those of the named packages that are not there yet, as root or by way of sudo, and says so.
install_missing_packages() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        fail "this needs Debian 12 (no apt-get here); on another system install by hand what scripts/packages.sh lists"
    fi

    local installed missing=() package
    installed=$(dpkg-query --show --showformat='${db:Status-Status} ${Package}\n' "$@" 2>/dev/null || true)
    for package in "$@"; do
        grep -qx "installed $package" <<<"$installed" || missing+=("$package")
    done
    ((${#missing[@]})) || return 0

    local as_root=()
    if ((EUID != 0)); then
        command -v sudo >/dev/null ||
            fail "missing packages: ${missing[*]}; run this as root, or as a user with sudo, to install them"
        as_root=(sudo)
    fi

    say "Installing with apt-get${as_root:+, by way of sudo}: ${missing[*]}"
    # Lists that cannot be refreshed (a source that is down) are no reason to stop: the old ones may do.
    "${as_root[@]}" apt-get update -qq || say "The package lists could not be refreshed; going on with those at hand"
    announce_size "${as_root[@]}" apt-get install --no-install-recommends "${missing[@]}"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq -o Dpkg::Use-Pty=0 \
        --no-install-recommends "${missing[@]}" </dev/null >/dev/null || fail "apt-get could not install the packages"
}
