// A component that says yes and delivers nothing: for the class of the panel no factory, for any
// other one a factory that makes no panels. It cannot be registered.

#include "contract/ErrorInfo.h"
#include "contract/panel/PanelFactory.h"

namespace {

using contract::Status;

constexpr std::uint32_t kPanelClass = 0x235783FE;

class CEmptyFactory final : public contract::IPanelFactory {
public:
    Status CreatePanel(std::shared_ptr<contract::IPanel>&) override { return contract::kSuccess; }
    Status LockServer(bool) override { return contract::kSuccess; }
};

}

#define KRX8_EXPORT extern "C" __attribute__((visibility("default")))

KRX8_EXPORT std::int32_t
DllGetClassObject(const contract::Guid& classIdentifier,
                  std::shared_ptr<contract::IPanelFactory>& factory) noexcept {
    if (classIdentifier.data1 != kPanelClass) {
        factory = std::make_shared<CEmptyFactory>();
    }
    return contract::kSuccess.Code();
}

KRX8_EXPORT std::int32_t DllRegisterServer() noexcept {
    contract::SetErrorInfo("there is no room");
    return contract::kUnspecifiedFailure.Code();
}
