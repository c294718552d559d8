#!/bin/sh
# Builds the customer's program with pkg-config, against what is installed under the given prefix, and runs it.
set -eu
source=$(cd "$(dirname "$0")" && pwd)
stage=$1
cd "$2"
PKG_CONFIG_PATH=$(dirname "$(find "$stage"/lib -name zeb17.pc)")
export PKG_CONFIG_PATH
${CXX:-c++} -std=c++20 -Wall -Wextra -Wpedantic -Werror "$source/consumer.cpp" -o consumer_pkg_config \
    $(pkg-config --cflags --libs "zeb17 >= 1.0")
QT_QPA_PLATFORM=offscreen LD_LIBRARY_PATH=$(pkg-config --variable=libdir zeb17) ./consumer_pkg_config
