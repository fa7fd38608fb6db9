# Sourced by the top-level scripts: installs the Debian packages that they need.
# shellcheck shell=bash

# Of the example programs: arguments, image files, labels, photographs.
# shellcheck disable=SC2034
example_packages=(libcli11-dev libpng-dev libjpeg-dev libturbojpeg0-dev libcairo2-dev fonts-dejavu-core lomiri-wallpapers-16.04)

# need_packages PACKAGE... - installs those that are missing, and is quick and silent where none is.
need_packages() {
  if ! command -v dpkg-query > /dev/null; then
    echo "not a Debian system; assumed to be installed: $*" >&2
    return
  fi
  local package missing=() sudo=() log
  for package in "$@"; do
    case " $(dpkg-query -W -f '${db:Status-Status} ' "$package" 2> /dev/null)" in
      *" installed "*) ;;
      *) missing+=("$package") ;;
    esac
  done
  [ ${#missing[@]} -gt 0 ] || return 0

  if [ "$(id -u)" != 0 ]; then
    if ! command -v sudo > /dev/null; then
      echo "missing packages; as root: apt-get install ${missing[*]}" >&2
      return 1
    fi
    sudo=(sudo)
  fi
  echo "installing ${missing[*]}"
  local apt=("${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300)
  log=$("${apt[@]}" update 2>&1 && "${apt[@]}" install -y --no-install-recommends "${missing[@]}" 2>&1) || {
    printf '%s\n' "$log" "FAILED: these packages could not be installed: ${missing[*]}" >&2
    return 1
  }
}
