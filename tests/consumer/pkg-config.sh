#!/bin/sh
# Builds the customer's programs with pkg-config, against what is installed under the given prefix, and runs them.
set -eu
source=$(cd "$(dirname "$0")" && pwd)
stage=$1
cd "$2"
PKG_CONFIG_PATH=$(dirname "$(find "$stage"/lib -name zeb17.pc)")
export PKG_CONFIG_PATH

build_and_run() { # standard package source...
    standard=$1
    package=$2
    shift 2
    ${CXX:-c++} -std=$standard -fPIC -Wall -Wextra -Wpedantic -Werror "$@" -o consumer_pkg_config \
        $(pkg-config --cflags --libs "$package >= 1.0")
    QT_QPA_PLATFORM=offscreen XDG_DATA_HOME=$PWD LD_LIBRARY_PATH=$(pkg-config --variable=libdir zeb17) ./consumer_pkg_config
}

build_and_run c++20 zeb17 "$source/consumer.cpp"
build_and_run c++17 zeb17-qt "$source/../../demo/minimal/qt.cpp" "$source/qt/hands.cpp"
