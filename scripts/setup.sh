# Sourced by the other scripts: goes to the project's folder and installs what a task needs.

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1

build_packages=(g++ cmake ninja-build qt6-base-dev qt6-l10n-tools libqt6svg6 libgl-dev
    libfreetype-dev libfontconfig-dev libharfbuzz-dev libpng-dev libhpdf-dev qt6-translations-l10n)
fuzz_packages=(gcc make clang libclang-rt-dev python3 python3-fonttools fonts-dejavu-core fonts-inter
    fonts-inter-variable fonts-materialdesignicons-webfont)

# install PACKAGE...: installs the Debian packages that are missing, and says nothing otherwise.
install() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q ' installed$' ||
            missing+=("$package")
    done
    ((${#missing[@]})) || return 0
    echo "Installing ${missing[*]}" >&2
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "Please install as root: apt-get install ${missing[*]}" >&2
            exit 1
        }
        as_root=(sudo)
    fi
    "${as_root[@]}" apt-get update >&2 &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y --no-install-recommends "${missing[@]}" >&2 || return 1
    export packages_changed=1
}

# build PRESET [TARGET...]: configures where the preset is new or changed, or more can be found than before,
# and builds; prints to standard error only.
build() {
    local preset=$1
    shift
    if [ ! "build/$preset/build.ninja" -nt CMakePresets.json ] || [ -n "${packages_changed-}" ]; then
        cmake --preset "$preset" >&2 || return 1
    fi
    cmake --build --preset "$preset" ${1:+--target "$@"} >&2
}
