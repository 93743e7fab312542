#include "component/win32/com/Import.h"

#include "tests/component/win32/com/BridgeFixture.h"
#include "tests/interception/HostTargets.h"
#include "tests/support/HostDoubles.h"

namespace component {

namespace {

using contract::Status;

/// Makes the message services of a host: hands the same one out each time.
class CServiceFactory final : public IClassFactory {
public:
    explicit CServiceFactory(ComPtr<IUnknown> service) : m_service(std::move(service)) {}

    int created = 0;
    HRESULT result = S_OK;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** answer) override {
        return AnswerQuery<IClassFactory>(this, identifier, answer);
    }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID identifier, void** answer) override {
        ++created;
        return FAILED(result) ? result : m_service->QueryInterface(identifier, answer);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

private:
    const ComPtr<IUnknown> m_service;

    KRX8_COUNTED_REFERENCES(CServiceFactory)
};

class MessageServiceTest : public BridgeFixture {
protected:
    ~MessageServiceTest() override {
        if (m_registration != 0) {
            EXPECT_EQ(CoRevokeClassObject(m_registration), S_OK);
        }
    }

    ComPtr<CServiceFactory> RegisterService(const ComPtr<IUnknown>& service) {
        auto factory = MakeCom<CServiceFactory>(service);
        EXPECT_EQ(CoRegisterClassObject(CLSID_MessageService, factory.Get(), CLSCTX_INPROC_SERVER,
                                        REGCLS_MULTIPLEUSE, &m_registration),
                  S_OK);
        return factory;
    }
    std::shared_ptr<contract::IContext> MakeContext() {
        return RoundTrip<contract::IContext>(interception::MakeTarget<contract::IContext>());
    }
    contract::Message Question() {
        return {-2147483647 - 1, "Löschen? 😀", "Frage", Status::FromBits(0x80004005),
                "Kabel lose",    0xFFFFFFFF,   -1};
    }

    std::shared_ptr<support::CMessageServiceDouble> m_service =
        std::make_shared<support::CMessageServiceDouble>();
    DWORD m_registration = 0;
};

TEST_F(MessageServiceTest, RegisteredServiceIsFoundByItsClass) {
    const auto factory = RegisterService(Export<contract::IMessageService>(m_service));
    std::shared_ptr<contract::IMessageService> found;
    ASSERT_EQ(MakeContext()->QueryMessageService(found), contract::kSuccess);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(factory->created, 1);
    std::int32_t button = 0;
    EXPECT_EQ(found->ShowMessage({}, button), contract::kSuccess);
    EXPECT_EQ(m_service->shown.size(), 1u);
}

TEST_F(MessageServiceTest, ServiceIsMadeAnewForEachQuery) {
    const auto factory = RegisterService(Export<contract::IMessageService>(m_service));
    const auto context = MakeContext();
    std::shared_ptr<contract::IMessageService> found;
    ASSERT_EQ(context->QueryMessageService(found), contract::kSuccess);
    ASSERT_EQ(context->QueryMessageService(found), contract::kSuccess);
    EXPECT_EQ(factory->created, 2);
}

TEST_F(MessageServiceTest, HostWithoutServiceSaysSo) {
    std::shared_ptr<contract::IMessageService> found;
    EXPECT_EQ(MakeContext()->QueryMessageService(found), Status(REGDB_E_CLASSNOTREG));
    EXPECT_EQ(found, nullptr);
}

TEST_F(MessageServiceTest, FailingFactoryPassesItsStatus) {
    const auto factory = RegisterService(Export<contract::IMessageService>(m_service));
    factory->result = -77;
    std::shared_ptr<contract::IMessageService> found;
    EXPECT_EQ(MakeContext()->QueryMessageService(found), Status(-77));
    EXPECT_EQ(found, nullptr);
}

TEST_F(MessageServiceTest, ClassOfAnotherKindIsNoInterface) {
    const auto file =
        Export<contract::IHostViewControl>(interception::MakeTarget<contract::IHostViewControl>());
    RegisterService(file);
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
