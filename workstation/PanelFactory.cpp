#include "workstation/PanelFactory.h"

#include "frontend/qt/QtPanel.h"

namespace workstation {

// The one place that knows where the panel comes from.
std::shared_ptr<contract::IPanel> CreatePanel() { return qt::CreateQtPanel(); }

}
