// Files, modules, resources, strings, time and synchronisation.
#pragma once

#include "windef.h"
