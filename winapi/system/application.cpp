// Finds or makes the Qt application that all windows need.
#include "application.h"

namespace winapi {

namespace {

bool hasDisplay()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

// Never destroyed: windows of the program may be left when its static objects are destroyed.
QApplication& makeApplication()
{
    static int argc = 1;
    static char name[] = "zeb17";
    static char* argv[] = {name, nullptr};
    if (!hasDisplay())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return *new QApplication(argc, argv);
}

}

QApplication& application()
{
    if (auto* const host = qobject_cast<QApplication*>(QCoreApplication::instance()))
        return *host;
    static QApplication& own = makeApplication();
    return own;
}

}
