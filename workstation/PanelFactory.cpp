#include "workstation/PanelFactory.h"

#include "component/loader/ComponentLibrary.h"

namespace workstation {

// The one place that knows where the panel comes from.
std::shared_ptr<contract::IPanel> CreatePanel() {
    return component::CreatePanel("QRZ.KRX8Maintenance");
}

}
