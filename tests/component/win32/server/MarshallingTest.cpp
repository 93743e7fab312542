#include "tests/component/win32/server/RegisteredFixture.h"
#include "tests/support/win32/Apartment.h"

#include <functional>

namespace component {

namespace {

/// The panel used from another apartment than its own, where the type library tells the system how
/// to bring calls over.
class MarshallingTest : public RegisteredFixture {
protected:
    /// Hands an interface of the panel to such a thread, which uses it.
    template <class Interface>
    void UseFromApartment(DWORD kind, const std::function<void(Interface&)>& use) {
        ComPtr<Interface> own;
        ASSERT_EQ(m_panel->QueryInterface(IID_PPV_ARGS(own.GetAddressOf())), S_OK);
        IStream* stream = nullptr;
        ASSERT_EQ(CoMarshalInterThreadInterfaceInStream(__uuidof(Interface), own.Get(), &stream),
                  S_OK);
        bool isUsed = false;
        support::RunInApartment(kind, [&] {
            ComPtr<Interface> foreign;
            ASSERT_EQ(CoGetInterfaceAndReleaseStream(stream, IID_PPV_ARGS(foreign.GetAddressOf())),
                      S_OK);
            EXPECT_NE(foreign.Get(), own.Get());
            use(*foreign.Get());
            isUsed = true;
        });
        EXPECT_TRUE(isUsed);
    }

    ComPtr<IKRX8Maintenance> m_panel = CreatePanel();
};

void ExpectFreshPanel(IKRX8Maintenance& panel) {
    LONG type = 0;
    LONG mode = -1;
    EXPECT_EQ(panel.get_DeviceType(&type), S_OK);
    EXPECT_EQ(panel.get_DeviceMode(&mode), S_OK);
    EXPECT_EQ(type, 3);
    EXPECT_EQ(mode, 0);
}

TEST_F(MarshallingTest, OtherSingleThreadedApartmentReadsTypeAndMode) {
    UseFromApartment<IKRX8Maintenance>(COINIT_APARTMENTTHREADED, ExpectFreshPanel);
}

TEST_F(MarshallingTest, MultiThreadedApartmentReadsTypeAndMode) {
    UseFromApartment<IKRX8Maintenance>(COINIT_MULTITHREADED, ExpectFreshPanel);
}

TEST_F(MarshallingTest, OtherApartmentReadsByName) {
    UseFromApartment<IDispatch>(COINIT_APARTMENTTHREADED, [](IDispatch& panel) {
        OLECHAR text[] = L"DeviceType";
        LPOLESTR name = text;
        DISPID number = 0;
        ASSERT_EQ(panel.GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &number), S_OK);
        DISPPARAMS parameters{};
        VARIANT type;
        VariantInit(&type);
        ASSERT_EQ(panel.Invoke(number, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET,
                               &parameters, &type, nullptr, nullptr),
                  S_OK);
        EXPECT_EQ(type.vt, VT_I4);
        EXPECT_EQ(type.lVal, 3);
    });
}

TEST_F(MarshallingTest, OtherApartmentStartsThePanel) {
    UseFromApartment<IGoClient>(COINIT_APARTMENTTHREADED,
                                [](IGoClient& panel) { EXPECT_EQ(panel.Go(), S_OK); });
}

TEST_F(MarshallingTest, OtherApartmentHearsFailures) {
    UseFromApartment<IContextMember>(COINIT_MULTITHREADED, [](IContextMember& panel) {
        EXPECT_EQ(panel.SetContext(nullptr), E_POINTER);
    });
}

}

}
