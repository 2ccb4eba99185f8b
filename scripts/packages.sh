# The Debian packages the project builds with, and installing those that are
# missing. Sourced by setup.sh and the CI entry point.

DISPATCH_PACKAGES=(
    cmake ninja-build g++ ccache pkg-config
    libsqlite3-dev libgtest-dev libgmock-dev libbenchmark-dev
    libfmt-dev libcli11-dev nlohmann-json3-dev libinih-dev libcpp-httplib-dev
    libcairo2-dev libpango1.0-dev poppler-utils
    chromium chromium-driver python3-selenium
)

missing_packages() {
    local package
    for package in "${DISPATCH_PACKAGES[@]}"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" || echo "$package"
    done
}

# Installs what is missing; refreshes the package lists first only when asked to
# (a fresh machine has none) or when something has to be installed.
install_missing_packages() {
    local refresh=${1:-auto}
    local missing
    mapfile -t missing < <(missing_packages)
    if [ "$refresh" = always ] || [ "${#missing[@]}" -gt 0 ]; then
        if [ "$(id -u)" -ne 0 ]; then
            echo "packages to install: ${missing[*]:-none}; run this as root" >&2
            return 1
        fi
        apt-get update
    fi
    if [ "${#missing[@]}" -gt 0 ]; then
        echo "installing: ${missing[*]}"
        DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
    fi
}
