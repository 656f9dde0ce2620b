# What ./run and ./test share: setting the machine up and building. Sourced, from the repository's root.

say() { printf '\033[2m%s\033[0m\n' "$*" >&2; }
fail() { printf 'error: %s\n' "$*" >&2; exit 1; }

# Everything that the build and the tests use, by its Debian name.
packages=(
	g++ cmake ninja-build ccache pkg-config
	libcurl4-openssl-dev libssl-dev libcpp-httplib-dev nlohmann-json3-dev libre2-dev zlib1g-dev
	libgtest-dev libgmock-dev git libgit2-dev
	python3-dev pybind11-dev
	qt6-base-dev libqt6svg6 fonts-dejavu-core fonts-noto-color-emoji
)

install_missing() {
	command -v dpkg-query >/dev/null || fail "this is not a Debian machine; install by hand what is like: $*"
	local missing=() package
	for package in "$@"; do
		[ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
	done
	[ ${#missing[@]} -eq 0 ] && return
	say "Installing ${missing[*]}"
	local as_root=()
	if [ "$(id -u)" -ne 0 ]; then
		command -v sudo >/dev/null || fail "missing packages, and no right to install them: ${missing[*]}"
		as_root=(sudo)
	fi
	"${as_root[@]}" apt-get update -qq || fail "the list of packages can't be updated; missing: ${missing[*]}"
	"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null \
		|| fail "could not be installed: ${missing[*]}"
}

# build PRESET: configures and builds; quick when nothing has changed. What is printed goes to stderr.
build() {
	say "Building ($1)"
	cmake --preset "$1" >"${TMPDIR:-/tmp}/kestrin-configure.$$" 2>&1 || { cat "${TMPDIR:-/tmp}/kestrin-configure.$$" >&2; fail "cmake could not configure the build"; }
	rm -f "${TMPDIR:-/tmp}/kestrin-configure.$$"
	cmake --build --preset "$1" --parallel "$(nproc)" >&2 || fail "the build failed"
}
