// All headers of the base of the toolkit: objects, text, exceptions, files and archives.
#pragma once

#include "CObject.h"
#include "CString.h"
#include "CException.h"
#include "CFile.h"
#include "CArchive.h"
#include "CStringList.h"
