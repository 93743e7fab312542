// Gives the identifiers that the interfaces declare a place, once.
#include "frontend/win32/WinApi.h"

#include <initguid.h>

#include <krx8maintenance.h>
