# Sourced by the scripts: what they need from Debian, and how they get it.

build_packages=(cmake g++ libcli11-dev ninja-build qtbase5-dev)
test_packages=("${build_packages[@]}" gnuplot-nox libbenchmark-dev libgmock-dev libgtest-dev)
fuzz_packages=("${build_packages[@]}" clang libclang-rt-14-dev llvm)  # llvm: names and lines in the findings
lint_packages=(clang-tidy cppcheck)

# need_packages NAME...: installs the missing packages; prints nothing when all are installed.
need_packages() {
    local name missing=() as_root=()
    for name in "$@"; do
        [[ $(dpkg-query -W -f='${db:Status-Status}' "$name" 2>/dev/null) == installed ]] || missing+=("$name")
    done
    [[ ${#missing[@]} -gt 0 ]] || return 0

    [[ $EUID -eq 0 ]] || as_root=(sudo)
    echo "Installing ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -qq --yes --no-install-recommends "${missing[@]}" >/dev/null
}
