// The place of the logger; the host puts its own there.
#include "AppLogger.h"

AppLogger* AppLogger::m_pInstance = nullptr;
