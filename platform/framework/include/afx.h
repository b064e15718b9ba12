// The framework's base: objects, strings, lists, geometry, exceptions, files.
#pragma once

#include "framework/exception.h"
#include "framework/file.h"
#include "framework/geometry.h"
#include "framework/object.h"
#include "framework/object_list.h"
#include "framework/platform.h"
#include "framework/string.h"
