#include "component/win32/com/EventDescription.h"

#include "component/win32/com/TypeLibrary.h"

#include <gtest/gtest.h>

namespace component {

namespace {

using Types = std::vector<VARTYPE>;

class EventDescriptionTest : public testing::Test {
protected:
    std::optional<Types> Describe(REFIID events, DISPID number) {
        ComPtr<ITypeInfo> info;
        EXPECT_EQ(FindTypeInfo(events, info.GetAddressOf()), S_OK);
        return DescribeEvent(*info.Get(), number);
    }
};

TEST_F(EventDescriptionTest, DeviceEventsHaveTheirDeclaredTypes) {
    EXPECT_EQ(Describe(DIID__IProgrammingDeviceControlEvents, 1), Types({VT_I4}));
    EXPECT_EQ(Describe(DIID__IProgrammingDeviceControlEvents, 2), Types({VT_BSTR, VT_UI4, VT_UI4}));
    EXPECT_EQ(Describe(DIID__IProgrammingDeviceControlEvents, 3), Types({VT_I4, VT_I4}));
}

TEST_F(EventDescriptionTest, EnumerationCountsAsTheNumberThatCarriesIt) {
    EXPECT_EQ(Describe(DIID__IExtConnectionEvents, 1), Types({VT_I4, VT_I4}));
}

TEST_F(EventDescriptionTest, NumberOfNoEventHasNoDescription) {
    EXPECT_EQ(Describe(DIID__IExtConnectionEvents, 0), std::nullopt);
    EXPECT_EQ(Describe(DIID__IExtConnectionEvents, 3), std::nullopt);
}

}

}
