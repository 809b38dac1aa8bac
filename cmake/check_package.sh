#!/bin/sh
# check_package.sh BUILD COMPILER: installs the build into a folder of its own and uses what is there as a stranger
# would, by CMake and by pkg-config.
set -eu
build=$1 compiler=$2
examples=$(cd "$(dirname "$0")/../examples" && pwd)
work=$build/package_check
stage=$work/stage

rm -rf "$work"
cmake --install "$build" --prefix "$stage"

cmake -S "$examples" -B "$work/examples" -D CMAKE_PREFIX_PATH="$stage" -D CMAKE_CXX_COMPILER="$compiler"
cmake --build "$work/examples"
"$examples/check.sh" "$work/examples/ntp_settings"

libraries=$(dirname "$(find "$stage" -name 'libparamxml.so')")
flags=$(PKG_CONFIG_PATH=$libraries/pkgconfig pkg-config --cflags --libs paramxml)
# shellcheck disable=SC2086 # the flags are words
"$compiler" -std=c++11 -Wall -Wextra -Werror "$examples/ntp_settings.cpp" -o "$work/ntp_settings" $flags
LD_LIBRARY_PATH=$libraries "$examples/check.sh" "$work/ntp_settings"
