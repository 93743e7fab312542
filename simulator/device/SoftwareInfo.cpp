#include "simulator/device/SoftwareInfo.h"

#include "simulator/device/Krx20SwInfo.h"

namespace simulator {

namespace {

std::shared_ptr<contract::IKrx20SwInfo> MakeKrx20SwInfo(const DeviceDescription& description) {
    if (description.type != kKrx20 && description.type != kKrx21) {
        return nullptr;
    }
    return std::make_shared<CKrx20SwInfo>(description.software);
}

}

CSoftwareInfo::CSoftwareInfo(const CDevice& device)
    : m_versions(device.Description().software),
      m_krx20Info(MakeKrx20SwInfo(device.Description())) {}

contract::Status CSoftwareInfo::QueryKrx20SwInfo(std::shared_ptr<contract::IKrx20SwInfo>& info) {
    if (!m_krx20Info) {
        return Fail(contract::kNoSuchInterface, "This device has no KRX-20 software versions");
    }
    return Give(m_krx20Info, info);
}

}
