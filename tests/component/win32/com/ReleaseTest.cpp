#include "component/win32/com/Export.h"
#include "component/win32/com/Import.h"

#include "tests/component/win32/com/BridgeFixture.h"
#include "tests/component/win32/com/PanelTargets.h"
#include "tests/interception/ControlTargets.h"
#include "tests/interception/HostTargets.h"
#include "tests/interception/InformationTargets.h"

namespace component {

namespace {

using interception::MakeTarget;

/// Objects that are let go of from inside their own calls.
class ReleaseTest : public BridgeFixture {};

TEST_F(ReleaseTest, ClientReleasingObjectInsideItsCallIsSafe) {
    const auto go = MakeTarget<contract::IGoClient>();
    ::IGoClient* const client = Export<contract::IGoClient>(go).Detach();
    go->exchange.whileCalled = [&] {
        client->Release();
        EXPECT_EQ(m_bridge->LiveExports(), 1u);
    };
    EXPECT_EQ(client->Go(), S_OK);
    EXPECT_EQ(m_bridge->LiveExports(), 0u);
}

TEST_F(ReleaseTest, ClientReleasingObjectInsideItsQueryIsSafe) {
    const auto connection = MakeTarget<contract::IConnection>();
    connection->exchange.object =
        std::shared_ptr<contract::IConnectionState>(MakeTarget<contract::IConnectionState>());
    IUnknown* const client = Export<contract::IConnection>(connection).Detach();
    connection->exchange.whileCalled = [&] { client->Release(); };
    ComPtr<::IConnectionState> state;
    EXPECT_EQ(client->QueryInterface(IID_PPV_ARGS(state.GetAddressOf())), S_OK);
    EXPECT_EQ(m_bridge->LiveExports(), 1u);
}

TEST_F(ReleaseTest, ExportAfterTheEndOfTheFirstIsANewOne) {
    const auto member = MakeTarget<contract::IContextMember>();
    Export<contract::IContextMember>(member);
    EXPECT_EQ(m_bridge->LiveExports(), 0u);
    const auto again = Export<contract::IContextMember>(member);
    EXPECT_EQ(again->SetContext(nullptr), S_OK);
    ASSERT_EQ(member->exchange.received.size(), 1u);
}

TEST_F(ReleaseTest, ArgumentObjectLivesAsLongAsTheCalleeHoldsIt) {
    const auto context = MakeTarget<contract::IContext>();
    {
        const auto imported = RoundTrip<contract::IContext>(context);
        std::uint32_t cookie = 0;
        EXPECT_EQ(imported->Register(MakeTarget<contract::IContextMember>(), cookie),
                  contract::kSuccess);
        EXPECT_EQ(cookie, 101u);
        EXPECT_EQ(m_bridge->LiveExports(), 1u);
    }
    EXPECT_EQ(m_bridge->LiveImports(), 0u);
}

TEST_F(ReleaseTest, NullForConnectionReachesThePanelAsNull) {
    const auto client = MakeTarget<contract::IConnectionClient>();
    EXPECT_EQ(Export<contract::IConnectionClient>(client)->SetConnection(nullptr), S_OK);
    ASSERT_EQ(client->exchange.received.size(), 1u);
    EXPECT_EQ(client->exchange.received[0].arguments, "0;");
}

}

}
