// Locales and code pages.
#pragma once

#include "windef.h"
