// Extensions of the framework's windows: the bitmap button and extension modules.
#pragma once

#include "afxwin.h"
