#pragma once

namespace panel {

class CDeviceConnection;
class COutputArea;
class CPanelView;
class IToolkit;
struct PanelState;

/// What the rooms of the panel share. The panel owns all of it and outlives every room.
struct PanelServices {
    CPanelView& view;
    IToolkit& toolkit;
    COutputArea& output;
    CDeviceConnection& device;
    PanelState& state;
};

}
