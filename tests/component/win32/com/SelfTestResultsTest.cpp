#include "component/win32/com/Import.h"

#include "tests/component/win32/com/BridgeFixture.h"

#include <vector>

namespace component {

namespace {

using contract::SelfTest;
using contract::Status;

/// Each test's code is its position and a hundred times it.
class CResults final : public contract::ISelfTestResults {
public:
    Status GetResult(SelfTest test, std::int32_t& code) override {
        const auto position = static_cast<std::int32_t>(test);
        asked.push_back(position);
        if (status.IsSuccess()) {
            code = position * 101;
        } else {
            contract::SetErrorInfo("not now");
        }
        return status;
    }

    std::vector<std::int32_t> asked;
    Status status;
};

class SelfTestResultsTest : public BridgeFixture {
protected:
    std::shared_ptr<CResults> m_results = std::make_shared<CResults>();
    ComPtr<::ISelfTestResults> m_exported = Export<contract::ISelfTestResults>(m_results);
};

TEST_F(SelfTestResultsTest, EveryTestPassesBothWays) {
    const auto imported = m_bridge->Import<contract::ISelfTestResults>(m_exported.Get());
    for (std::int32_t position = 1; position <= 21; ++position) {
        std::int32_t code = -1;
        EXPECT_EQ(imported->GetResult(static_cast<SelfTest>(position), code), contract::kSuccess);
        EXPECT_EQ(code, position * 101);
        EXPECT_EQ(m_results->asked.back(), position);
    }
}

TEST_F(SelfTestResultsTest, EachMethodAsksForItsTest) {
    using Method = HRESULT (STDMETHODCALLTYPE ::ISelfTestResults::*)(LONG*);
    const std::vector<Method> methods = {
        &::ISelfTestResults::GetFpgaCode,
        &::ISelfTestResults::GetFpgaLoad,
        &::ISelfTestResults::GetApplicationSw,
        &::ISelfTestResults::GetBootCode,
        &::ISelfTestResults::GetRam,
        &::ISelfTestResults::GetExternalRam,
        &::ISelfTestResults::GetExternalFlash,
        &::ISelfTestResults::GetPagedFlash,
        &::ISelfTestResults::GetEeprom,
        &::ISelfTestResults::GetSecondaryAndAlgorithmFiles,
        &::ISelfTestResults::GetMcusw,
        &::ISelfTestResults::GetFlash,
        &::ISelfTestResults::GetPagedRam,
        &::ISelfTestResults::GetMmcrDriver,
        &::ISelfTestResults::GetUsbDeviceFunction,
        &::ISelfTestResults::GetUsbHostController,
        &::ISelfTestResults::GetZtwcdcDriver,
        &::ISelfTestResults::GetEthernet,
        &::ISelfTestResults::GetUsb,
        &::ISelfTestResults::GetRs232,
        &::ISelfTestResults::GetFpga,
    };
    ASSERT_EQ(methods.size(), 21u);
    LONG position = 0;
    for (const Method method : methods) {
        ++position;
        LONG code = 0;
        EXPECT_EQ((m_exported.Get()->*method)(&code), S_OK);
        EXPECT_EQ(code, position * 101);
    }
}

TEST_F(SelfTestResultsTest, FailureLeavesCodeAndBringsDescription) {
    m_results->status = Status(-77);
    LONG inCom = 5;
    EXPECT_EQ(m_exported->GetEthernet(&inCom), -77);
    EXPECT_EQ(inCom, 5);
    EXPECT_EQ(TakeDescription(), L"not now");
    std::int32_t code = 6;
    EXPECT_EQ(m_bridge->Import<contract::ISelfTestResults>(m_exported.Get())
                  ->GetResult(SelfTest::Usb, code),
              Status(-77));
    EXPECT_EQ(code, 6);
    EXPECT_EQ(contract::TakeErrorInfo(), "not now");
}

TEST_F(SelfTestResultsTest, TestThatDoesNotExistFailsWithoutCall) {
    const auto imported = m_bridge->Import<contract::ISelfTestResults>(m_exported.Get());
    for (const std::int32_t position : {0, 22, -1}) {
        std::int32_t code = 5;
        EXPECT_EQ(imported->GetResult(static_cast<SelfTest>(position), code),
                  contract::kUnspecifiedFailure);
        EXPECT_EQ(code, 5);
    }
    EXPECT_TRUE(m_results->asked.empty());
}

TEST_F(SelfTestResultsTest, NullForCodeIsRefused) {
    EXPECT_EQ(m_exported->GetFpga(nullptr), E_POINTER);
    EXPECT_TRUE(m_results->asked.empty());
}

}

}
