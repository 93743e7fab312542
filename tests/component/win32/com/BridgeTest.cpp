#include "component/win32/com/Bridge.h"

#include "tests/component/win32/com/BridgeFixture.h"
#include "tests/component/win32/com/EventDoubles.h"
#include "tests/interception/InformationTargets.h"
#include "tests/support/DeviceDouble.h"

namespace component {

namespace {

using contract::IFileInfo;
using contract::IFileListing;
using contract::IProgrammingDeviceControl;
using interception::MakeTarget;

class BridgeTest : public BridgeFixture {};

TEST_F(BridgeTest, ImportTwiceGivesTheSameObject) {
    const auto exported = Export<IFileInfo>(MakeTarget<IFileInfo>());
    const auto first = m_bridge->Import<IFileInfo>(exported.Get());
    EXPECT_EQ(m_bridge->Import<IFileInfo>(exported.Get()), first);
    EXPECT_EQ(m_bridge->LiveImports(), 1u);
}

TEST_F(BridgeTest, ImportByAnotherPointerToTheSameObjectGivesTheSame) {
    const auto source = MakeCom<CComSource>(__uuidof(::_IExtConnectionEvents));
    IUnknown* const faces[] = {static_cast<IConnectionPoint*>(source.Get()),
                               static_cast<IConnectionPointContainer*>(source.Get())};
    ASSERT_NE(faces[0], faces[1]);
    const auto first = Import<contract::IConnection>(faces[0]);
    EXPECT_EQ(Import<contract::IConnection>(faces[1]), first);
}

TEST_F(BridgeTest, ImportOfOneObjectAsTwoInterfacesGivesTwo) {
    const auto plain = MakeCom<CDispatchDouble>();
    const auto connection = Import<contract::IConnection>(plain.Get());
    const auto subsystem = Import<contract::ISubsystem>(plain.Get());
    EXPECT_NE(static_cast<void*>(connection.get()), static_cast<void*>(subsystem.get()));
    EXPECT_EQ(m_bridge->LiveImports(), 2u);
}

TEST_F(BridgeTest, ImportHoldsItsObjectUntilItEnds) {
    const auto plain = MakeCom<CDispatchDouble>();
    auto imported = Import<contract::ISubsystem>(plain.Get());
    EXPECT_EQ(ReferencesTo(plain.Get()), 2u);
    imported = nullptr;
    EXPECT_EQ(ReferencesTo(plain.Get()), 1u);
    EXPECT_EQ(m_bridge->LiveImports(), 0u);
}

TEST_F(BridgeTest, ImportAfterTheEndOfTheFirstIsANewOne) {
    const auto plain = MakeCom<CDispatchDouble>();
    std::weak_ptr<contract::ISubsystem> first = Import<contract::ISubsystem>(plain.Get());
    EXPECT_TRUE(first.expired());
    const auto second = Import<contract::ISubsystem>(plain.Get());
    EXPECT_EQ(Import<contract::ISubsystem>(plain.Get()), second);
}

TEST_F(BridgeTest, ExportTwiceGivesTheSameObject) {
    const auto file = MakeTarget<IFileInfo>();
    const auto first = Export<IFileInfo>(file);
    EXPECT_EQ(Export<IFileInfo>(file).Get(), first.Get());
    EXPECT_EQ(m_bridge->LiveExports(), 1u);
    EXPECT_EQ(file.use_count(), 2);
}

TEST_F(BridgeTest, ExportEndsWithItsLastReference) {
    const auto file = MakeTarget<IFileInfo>();
    const ComPtr<::IFileInfo> exported = Export<IFileInfo>(file);
    EXPECT_EQ(ReferencesTo(exported.Get()), 1u);
    EXPECT_EQ(exported->AddRef(), 2u);
    EXPECT_EQ(exported->Release(), 1u);
    EXPECT_TRUE(Module().IsInUse());
}

TEST_F(BridgeTest, ExportOfOneObjectAsTwoInterfacesGivesTwo) {
    const auto device = std::make_shared<support::CDeviceDouble>();
    const auto control = Export<IProgrammingDeviceControl>(device);
    const auto listing = Export<IFileListing>(device);
    EXPECT_FALSE(AreOne(control.Get(), listing.Get()));
    EXPECT_FALSE(Ask<::IFileListing>(control.Get()));
    EXPECT_EQ(m_bridge->LiveExports(), 2u);
}

TEST_F(BridgeTest, TwoBridgesMakeTwoObjects) {
    const auto other = std::make_shared<CBridge>();
    const auto file = MakeTarget<IFileInfo>();
    const auto exported = Export<IFileInfo>(file);
    EXPECT_NE(other->Export<IFileInfo>(file).Get(), exported.Get());
    EXPECT_NE(other->Import<IFileInfo>(exported.Get()),
              m_bridge->Import<IFileInfo>(exported.Get()));
}

TEST_F(BridgeTest, NullCrossesAsNull) {
    EXPECT_EQ(m_bridge->Import<IFileInfo>(nullptr), nullptr);
    EXPECT_EQ(m_bridge->Export(std::shared_ptr<IFileInfo>()).Get(), nullptr);
    EXPECT_EQ(m_bridge->LiveImports(), 0u);
}

TEST_F(BridgeTest, ObjectsOutliveTheBridgesOwner) {
    auto bridge = std::make_shared<CBridge>();
    const std::weak_ptr<CBridge> end = bridge;
    auto imported =
        bridge->Import<IFileInfo>(bridge->Export<IFileInfo>(MakeTarget<IFileInfo>()).Get());
    bridge = nullptr;
    std::string name;
    EXPECT_EQ(imported->GetName(name), contract::kSuccess);
    EXPECT_EQ(name, "text 100");
    imported = nullptr;
    EXPECT_TRUE(end.expired());
}

TEST_F(BridgeTest, ObjectWithFaceCrossesAsTheFace) {
    const auto file = MakeTarget<IFileInfo>();
    const auto face = m_bridge->Export<IFileInfo>(MakeTarget<IFileInfo>());
    m_bridge->SetFace(*file, *face.Get());
    EXPECT_EQ(Export<IFileInfo>(file).Get(), face.Get());
    m_bridge->RemoveFaces();
    EXPECT_NE(Export<IFileInfo>(file).Get(), face.Get());
}

TEST_F(BridgeTest, ObjectKeptBesideAnotherIsFoundWhileHeld) {
    const int place = 0;
    auto kept = m_bridge->KeepBeside<std::string>(&place);
    *kept = "kept";
    EXPECT_EQ(m_bridge->KeepBeside<std::string>(&place), kept);
    EXPECT_EQ(m_bridge->LiveKept(), 1u);
    kept = nullptr;
    EXPECT_EQ(m_bridge->LiveKept(), 0u);
    EXPECT_EQ(*m_bridge->KeepBeside<std::string>(&place), "");
}

TEST_F(BridgeTest, BridgeKnowsTheThreadItWasMadeOn) {
    EXPECT_TRUE(m_bridge->IsOnItsThread());
    EXPECT_EQ(OnAnotherThread([&] { return m_bridge->IsOnItsThread() ? S_OK : S_FALSE; }), S_FALSE);
}

TEST_F(BridgeTest, ListingDeliversTheSameFileAgain) {
    const auto listing = MakeTarget<IFileListing>();
    listing->exchange.object = std::shared_ptr<IFileInfo>(MakeTarget<IFileInfo>());
    const auto imported = RoundTrip<IFileListing>(listing);
    std::shared_ptr<IFileInfo> first;
    std::shared_ptr<IFileInfo> second;
    ASSERT_EQ(imported->GetFileInfo(1, first), contract::kSuccess);
    ASSERT_EQ(imported->GetFileInfo(1, second), contract::kSuccess);
    EXPECT_EQ(first, second);
}

}

}
