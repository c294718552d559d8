// Device contexts and drawing objects.
#pragma once

#include "windef.h"
