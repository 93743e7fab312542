#include "component/win32/com/Identifiers.h"

#include "component/win32/com/Bstr.h"
#include "component/win32/com/Contract.h"
#include "panel/registration/ComponentIdentity.h"

#include <gtest/gtest.h>

#include <string_view>

namespace component {

namespace {

TEST(IdentifiersTest, EventInterfacesOfContractAreThoseOfCom) {
    EXPECT_EQ(ToGuid(contract::kProgrammingDeviceControlEvents),
              __uuidof(::_IProgrammingDeviceControlEvents));
    EXPECT_EQ(ToGuid(contract::kExtConnectionEvents), __uuidof(::_IExtConnectionEvents));
}

TEST(IdentifiersTest, PollingSwitchOfContractIsThatOfCom) {
    EXPECT_EQ(ToGuid(contract::kProductDetectionControl), __uuidof(::IProductDetectionControl));
}

TEST(IdentifiersTest, SubsystemsOfContractAreThoseOfCom) {
    EXPECT_EQ(ToGuid(contract::kProgrammingDeviceSubsystem), SUBSYSTEM_ProgrammingDevice);
    EXPECT_EQ(ToGuid(contract::kProductInformationSubsystem), SUBSYSTEM_ProductInformation);
}

TEST(IdentifiersTest, ClassAndTypeLibraryAreThoseOfTheRegistration) {
    EXPECT_EQ(ToGuid(panel::kMaintenanceClass), __uuidof(::KRX8Maintenance));
    EXPECT_EQ(ToGuid(panel::kTypeLibrary), LIBID_KRX8MaintenanceLib);
}

TEST(IdentifiersTest, IdentifierCrossesFieldByField) {
    const GUID identifier =
        ToGuid({0x492DA5B7, 0xAE9B, 0x4AB6, {0x96, 0x2A, 0x56, 0x37, 0xD9, 0x56, 0x35, 0x37}});
    OLECHAR text[40] = {};
    ASSERT_GT(StringFromGUID2(identifier, text, 40), 0);
    EXPECT_STREQ(text, L"{492DA5B7-AE9B-4AB6-962A-5637D9563537}");
    EXPECT_EQ(FromGuid(identifier), contract::kProgrammingDeviceSubsystem);
}

TEST(IdentifiersTest, HeaderGivesIdentifiersOfInterfacesToBothSides) {
    // C++ clients compare with __uuidof, others with the constants of the header.
    EXPECT_EQ(__uuidof(::IKrx20SwInfo), IID_IKrx20SwInfo);
    EXPECT_EQ(__uuidof(::IProgrammingDeviceControl), IID_IProgrammingDeviceControl);
    EXPECT_EQ(__uuidof(::_IExtConnectionEvents), DIID__IExtConnectionEvents);
    EXPECT_EQ(__uuidof(::KRX8Maintenance), CLSID_KRX8Maintenance);
}

}

}
