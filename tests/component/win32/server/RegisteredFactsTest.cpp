// What the control says of itself is what the system reads of it in the registry.

#include "tests/component/win32/server/RegisteredFixture.h"

#include <string>

namespace component {

namespace {

class RegisteredFactsTest : public RegisteredFixture {
protected:
    RegisteredFactsTest() { CreatePanel().As(&m_object); }

    ComPtr<IOleObject> m_object;
};

TEST_F(RegisteredFactsTest, MiscStatusOfEveryAspectIsTheRegisteredOne) {
    for (const DWORD aspect :
         {DVASPECT_CONTENT, DVASPECT_THUMBNAIL, DVASPECT_ICON, DVASPECT_DOCPRINT}) {
        DWORD registered = 7;
        DWORD told = 8;
        EXPECT_EQ(OleRegGetMiscStatus(kRegisteredClass, aspect, &registered), S_OK) << aspect;
        EXPECT_EQ(m_object->GetMiscStatus(aspect, &told), S_OK) << aspect;
        EXPECT_EQ(told, registered) << aspect;
    }
}

TEST_F(RegisteredFactsTest, UserTypeIsTheRegisteredOne) {
    LPOLESTR registered = nullptr;
    LPOLESTR told = nullptr;
    ASSERT_EQ(OleRegGetUserType(kRegisteredClass, USERCLASSTYPE_FULL, &registered), S_OK);
    ASSERT_EQ(m_object->GetUserType(USERCLASSTYPE_FULL, &told), S_OK);
    EXPECT_EQ(std::wstring(told), registered);
    CoTaskMemFree(registered);
    CoTaskMemFree(told);
}

}

}
