// What an extension module's DllMain needs.
#pragma once

#include <afx.h>

#include "framework/extension_module.h"
