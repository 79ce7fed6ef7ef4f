# Sourced by ./run and ./test: installs what is missing of Debian's packages, and says what it does.
# Touches nothing when all is there.

# need PACKAGE...
need() {
  local missing=() package as_root=()
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing from Debian: ${missing[*]}" >&2
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Please install these packages as root: ${missing[*]}" >&2; return 1; }
    as_root=(sudo)
  fi
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq >&2
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

# build PRESET [cmake options...]: configures and builds the preset; the output is shown when something fails.
build() {
  local preset=$1 log
  shift
  log=$(mktemp)
  if ! (cd "$root" && cmake --preset "$preset" "$@" && cmake --build --preset "$preset") >"$log" 2>&1; then
    cat "$log" >&2
    rm -f "$log"
    return 1
  fi
  rm -f "$log"
}
