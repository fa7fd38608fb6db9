#!/usr/bin/env bash
# Installs the build, moves the prefix elsewhere, and uses it as a user would: through the CMake package and through
# pkg-config, from C and C++, on each copy of the library.
# usage: run.sh CMAKE BUILD_DIR WORK_DIR CC CXX
set -euo pipefail
cmake=$1 build=$2 work=$3 CC=$4 CXX=$5
export CC CXX
here=$(cd "$(dirname "$0")" && pwd)
unset LD_LIBRARY_PATH GLIBC_TUNABLES PKG_CONFIG_PATH CMAKE_PREFIX_PATH DESTDIR
strict=(-Wall -Wextra -Wpedantic -Werror)
soname=libkvriu8-8.2.so

fail() { echo "FAILED: $*" >&2; exit 1; }

rm -rf "$work"
mkdir -p "$work"
cd "$work"
"$cmake" --install "$build" --prefix "$work/staged" > install.log
mv staged moved
lib=$work/moved/lib include=$work/moved/include

echo "-- what is installed"
for file in lib/$soname lib/glibc-hwcaps/x86-64-v{3,4}/$soname lib/libkvrcore.so include/kvri.h include/kvrcore.h; do
  [ -f "moved/$file" ] || fail "$file is missing"
done
[ "$(readlink "$lib/libkvri.so")" = $soname ] || fail "libkvri.so is not a link to $soname"
if grep -rIl -e "$work" -e "$build" moved; then fail "these files name the folder they were built or installed in"; fi

echo "-- every header on its own"
(cd "$include" && find . -name '*.h' -printf '%P\n') | sort > headers
for header in $(<headers); do
  echo "#include <$header>" | "$CC" -x c -std=c11 "${strict[@]}" -fsyntax-only -I"$include" - || fail "$header as C11"
  echo "#include <$header>" | "$CXX" -x c++ -std=c++17 "${strict[@]}" -fsyntax-only -I"$include" - || fail "$header as C++17"
done
echo "   $(wc -l < headers) headers"

echo "-- consumers by the CMake package"
"$cmake" -G Ninja -S "$here" -B cmake_way -DCMAKE_PREFIX_PATH="$work/moved" > cmake_way.log
"$cmake" --build cmake_way >> cmake_way.log || { cat cmake_way.log; exit 1; }

echo "-- consumers by pkg-config"
export PKG_CONFIG_PATH=$lib/pkgconfig
flags=()
eval "flags=($(pkg-config --cflags --libs "kvri = 8.2.3"))"  # it quotes for the shell
mkdir pkgconfig_way
"$CC" -std=c11 "${strict[@]}" -o pkgconfig_way/consumer_c "$here/consumer.c" "${flags[@]}"
"$CXX" -std=c++17 "${strict[@]}" -o pkgconfig_way/consumer_cpp "$here/consumer.cpp" "${flags[@]}" -lkvrcore

# The loader says which copies this processor runs; hiding features brings the others out.
expected_library() {
  local level
  for level in x86-64-v4 x86-64-v3; do
    if /lib64/ld-linux-x86-64.so.2 --help | grep -q "$level (supported"; then
      echo "$lib/glibc-hwcaps/$level/$soname"
      return
    fi
  done
  echo "$lib/$soname"
}

for hidden in "" -AVX512F -AVX2,-AVX512F; do
  export GLIBC_TUNABLES=glibc.cpu.hwcaps=$hidden
  expected=$(expected_library)
  echo "-- running on $expected"
  for program in {cmake,pkgconfig}_way/consumer_{c,cpp}; do
    # CMake gives its programs a search path, pkg-config does not.
    case $program in cmake_way/*) path= ;; *) path=$lib ;; esac
    loaded=$(LD_LIBRARY_PATH=$path "$program") || fail "$program"
    [ "$(realpath "$loaded")" = "$expected" ] || fail "$program loaded $loaded"
    echo "   $program"
  done
done
