#include "AppLogger.h"

AppLogger* AppLogger::m_pInstance = nullptr;
