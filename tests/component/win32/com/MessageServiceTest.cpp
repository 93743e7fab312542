#include "tests/component/win32/com/BridgeFixture.h"
#include "tests/interception/HostTargets.h"
#include "tests/support/HostDoubles.h"
#include "tests/support/win32/MessageServiceClass.h"

#include <optional>

namespace component {

namespace {

using contract::Status;

class MessageServiceTest : public BridgeFixture {
protected:
    void RegisterService() {
        m_host->exchange.object = std::shared_ptr<contract::IMessageService>(m_service);
        m_services.emplace(m_bridge);
        m_services->SetContext(m_host);
    }
    std::size_t ServicesMade() const { return m_host->exchange.received.size(); }
    std::shared_ptr<contract::IContext> MakeContext() {
        return RoundTrip<contract::IContext>(interception::MakeTarget<contract::IContext>());
    }
    contract::Message Question() {
        return {-2147483647 - 1, "Löschen? 😀", "Frage", Status::FromBits(0x80004005),
                "Kabel lose",    0xFFFFFFFF,   -1};
    }

    std::shared_ptr<support::CMessageServiceDouble> m_service =
        std::make_shared<support::CMessageServiceDouble>();
    /// Asked for each service that is made.
    const std::shared_ptr<interception::CTarget<contract::IContext>> m_host =
        interception::MakeTarget<contract::IContext>();

private:
    std::optional<support::CMessageServices> m_services;
};

TEST_F(MessageServiceTest, RegisteredServiceIsFoundByItsClass) {
    RegisterService();
    std::shared_ptr<contract::IMessageService> found;
    ASSERT_EQ(MakeContext()->QueryMessageService(found), contract::kSuccess);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(ServicesMade(), 1u);
    std::int32_t button = 0;
    EXPECT_EQ(found->ShowMessage({}, button), contract::kSuccess);
    EXPECT_EQ(m_service->shown.size(), 1u);
}

TEST_F(MessageServiceTest, ServiceIsMadeAnewForEachQuery) {
    RegisterService();
    const auto context = MakeContext();
    std::shared_ptr<contract::IMessageService> found;
    ASSERT_EQ(context->QueryMessageService(found), contract::kSuccess);
    ASSERT_EQ(context->QueryMessageService(found), contract::kSuccess);
    EXPECT_EQ(ServicesMade(), 2u);
}

TEST_F(MessageServiceTest, HostWithoutServiceSaysSo) {
    std::shared_ptr<contract::IMessageService> found;
    EXPECT_EQ(MakeContext()->QueryMessageService(found), Status(REGDB_E_CLASSNOTREG));
    EXPECT_EQ(found, nullptr);
}

TEST_F(MessageServiceTest, FailingFactoryPassesItsStatus) {
    RegisterService();
    m_host->exchange.status = Status(-77);
    std::shared_ptr<contract::IMessageService> found;
    EXPECT_EQ(MakeContext()->QueryMessageService(found), Status(-77));
    EXPECT_EQ(found, nullptr);
}

TEST_F(MessageServiceTest, ClassThatMakesNoMessageServiceIsNoInterface) {
    RegisterService();
    m_host->exchange.status = contract::kNoSuchInterface;
    std::shared_ptr<contract::IMessageService> found;
    EXPECT_EQ(MakeContext()->QueryMessageService(found), contract::kNoSuchInterface);
    EXPECT_EQ(found, nullptr);
}

TEST_F(MessageServiceTest, MessageArrivesWhole) {
    m_service->answers = {7};
    std::int32_t button = 0;
    EXPECT_EQ(RoundTrip<contract::IMessageService>(m_service)->ShowMessage(Question(), button),
              contract::kSuccess);
    EXPECT_EQ(button, 7);
    ASSERT_EQ(m_service->messages.size(), 1u);
    const contract::Message& message = m_service->messages[0];
    EXPECT_EQ(message.owner, -2147483647 - 1);
    EXPECT_EQ(message.text, "Löschen? 😀");
    EXPECT_EQ(message.caption, "Frage");
    EXPECT_EQ(message.status, Status::FromBits(0x80004005));
    EXPECT_EQ(message.description, "Kabel lose");
    EXPECT_EQ(message.style, 0xFFFFFFFFu);
    EXPECT_EQ(message.showFlag, -1);
}

TEST_F(MessageServiceTest, FailureLeavesButton) {
    m_service->status = Status(-77);
    std::int32_t button = 5;
    EXPECT_EQ(RoundTrip<contract::IMessageService>(m_service)->ShowMessage(Question(), button),
              Status(-77));
    EXPECT_EQ(button, 5);
}

TEST_F(MessageServiceTest, NullTextsAreEmptyAndNullButtonIsRefused) {
    const auto exported = Export<contract::IMessageService>(m_service);
    LONG button = 0;
    EXPECT_EQ(exported->ShowMessage(0, nullptr, nullptr, 0, nullptr, 0, 1, &button), S_OK);
    EXPECT_EQ(button, 1);
    EXPECT_EQ(m_service->messages.at(0).text, "");
    EXPECT_EQ(exported->ShowMessage(0, nullptr, nullptr, 0, nullptr, 0, 1, nullptr), E_POINTER);
    EXPECT_EQ(m_service->messages.size(), 1u);
}

}

}
