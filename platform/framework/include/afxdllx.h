// For the DllMain of an extension module.
#pragma once

#include "afx.h"

#include "framework/extension_module.h"
