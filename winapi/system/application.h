// The one Qt application behind all windows.
#pragma once

#include <QApplication>

namespace winapi {

// The host's own Qt application if it has one, else ours, made when it is first needed.
QApplication& application();

}
