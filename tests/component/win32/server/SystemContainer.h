#pragma once

#include "component/win32/com/ComApi.h"

#include <vector>

/// The system's own container of controls (atl.dll), which hands a control no context.
namespace component {

/// Prepares the container's class of windows.
void PrepareContainers();

/// A container window in `parent` that shows the control of the program identifier.
HWND OpenContainer(HWND parent);
/// Has a control of the program identifier made in a window that is there, which becomes its
/// container. Delivers the control and the object that holds it.
HRESULT FillWindow(HWND window, ComPtr<IUnknown>& holder, ComPtr<IUnknown>& control);
/// The control in a container; null when there is none.
ComPtr<IUnknown> ControlIn(HWND container);

/// The control's own window in a container.
HWND ControlWindowIn(HWND container);
/// Its part of that identifier.
HWND PartIn(HWND container, int identifier);

/// Every window of this process, also those that are never shown.
std::vector<HWND> WindowsOfProcess();

}
