#include "framework/window_exceptions.h"

void AfxThrowResourceException() { throw new CResourceException; }

void AfxThrowUserException() { throw new CUserException; }
