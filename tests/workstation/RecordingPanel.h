#pragma once

#include "contract/panel/Panel.h"

#include <functional>
#include <string>
#include <vector>

/// A panel that writes down what its host does, in order, and does nothing else. A state of the
/// connection is written with the serial number of the device that is there then.
class RecordingPanel : public contract::IPanel {
public:
    explicit RecordingPanel(std::vector<std::string>& calls) : m_calls(calls) {}
    ~RecordingPanel() override;

    contract::Status
    SetContextAndRegister(const std::shared_ptr<contract::IContext>& context) override;
    contract::Status SetContext(const std::shared_ptr<contract::IContext>& context) override;
    contract::Status CreateView(void* nativeParent) override;
    contract::PixelSize GetNaturalSize() const override { return {300, 200}; }
    void Resize(contract::PixelSize size) override;
    void DestroyView() override;
    contract::Status
    SetSubsystemAccess(const std::shared_ptr<contract::ISubsystemAccess>& access) override;
    contract::Status
    SetConnection(const std::shared_ptr<contract::IConnection>& connection) override;
    contract::Status Go() override;

private:
    class ConnectionSink;

    contract::Status Note(const std::string& call);
    std::string DeviceThere() const;

    std::vector<std::string>& m_calls;
    std::shared_ptr<contract::ISubsystemAccess> m_access;
    std::function<void()> m_unwatch;
};
