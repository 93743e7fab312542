#include "tests/component/win32/control/ControlFixture.h"

namespace controltests {

namespace {

class ClassFactoryTest : public testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(library.CanUnloadNow(), S_OK); }

    const support::CLoadedComponent library{KRX8_COMPONENT};
};

TEST_F(ClassFactoryTest, ControlReleasedAtOnceLeavesNothing) { library.CreateControl(); }

TEST_F(ClassFactoryTest, LockThatNobodyTookCannotBeTakenBack) {
    EXPECT_EQ(library.Factory()->LockServer(TRUE), S_OK);
    EXPECT_EQ(library.Factory()->LockServer(FALSE), S_OK);
    EXPECT_EQ(library.Factory()->LockServer(FALSE), E_FAIL);
}

TEST_F(ClassFactoryTest, UnknownInterfaceOfTheControlIsRefused) {
    void* result = this;
    EXPECT_EQ(library.Factory()->CreateInstance(nullptr, IID_IOleLink, &result), E_NOINTERFACE);
    EXPECT_EQ(result, nullptr);
}

TEST_F(ClassFactoryTest, AggregationIsRefused) {
    const auto outer = library.CreateControl();
    void* result = this;
    EXPECT_EQ(library.Factory()->CreateInstance(outer.Get(), IID_IUnknown, &result),
              CLASS_E_NOAGGREGATION);
    EXPECT_EQ(result, nullptr);
}

TEST_F(ClassFactoryTest, NullResultsAreRefused) {
    EXPECT_EQ(library.Factory()->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
    EXPECT_EQ(library.Factory()->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

class InterfaceTest : public ClassFactoryTest, public testing::WithParamInterface<const IID*> {};

TEST_P(InterfaceTest, IsThereWithTheIdentityOfTheControl) {
    const auto control = library.CreateControl();
    ComPtr<IUnknown> part;
    ASSERT_EQ(control->QueryInterface(*GetParam(), reinterpret_cast<void**>(part.GetAddressOf())),
              S_OK);
    ComPtr<IUnknown> identity;
    ASSERT_EQ(part.As(&identity), S_OK);
    EXPECT_EQ(identity.Get(), control.Get());
    ComPtr<IOleObject> other;
    EXPECT_EQ(part.As(&other), S_OK);
}

INSTANTIATE_TEST_SUITE_P(All, InterfaceTest,
                         testing::Values(&IID_IUnknown, &IID_IDispatch, &__uuidof(IKRX8Maintenance),
                                         &IID_IOleObject, &IID_IOleControl, &IID_IOleWindow,
                                         &IID_IOleInPlaceObject, &IID_IOleInPlaceActiveObject,
                                         &IID_IViewObject, &IID_IViewObject2, &IID_IPersist,
                                         &IID_IPersistStreamInit, &IID_IPersistStorage,
                                         &IID_IProvideClassInfo, &IID_IProvideClassInfo2,
                                         &IID_ISupportErrorInfo, &__uuidof(IContextMember),
                                         &__uuidof(IConnectionClient),
                                         &__uuidof(ISetSubsystemAccess), &__uuidof(IGoClient)));

}

}
