#pragma once

// The system's headers, which frontend/ and component/ include here and nowhere else, so that their
// macros can be kept away from methods of the same name: a method that one source calls DeleteFile
// and another DeleteFileW would be two.
#include <windows.h>

#include <cderr.h>
#include <commctrl.h>
#include <commdlg.h>
#include <richedit.h>

#undef DeleteFile
#undef MoveFile
