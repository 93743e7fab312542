#include "tests/component/win32/server/BuiltComponent.h"
#include "tests/support/win32/LoadedComponent.h"

#include <gtest/gtest.h>

namespace component {

namespace {

/// The four functions of the library, called without the system in between.
class EntryPointsTest : public testing::Test {
protected:
    ComPtr<IClassFactory> MakeFactory() {
        ComPtr<IClassFactory> factory;
        EXPECT_EQ(m_component.GetClassObject(kClass, IID_IClassFactory,
                                             reinterpret_cast<void**>(factory.GetAddressOf())),
                  S_OK);
        return factory;
    }

    const support::CLoadedComponent m_component{ComponentFile()};
};

TEST_F(EntryPointsTest, UntouchedLibraryCanBeUnloaded) {
    EXPECT_EQ(m_component.CanUnloadNow(), S_OK);
}

TEST_F(EntryPointsTest, FactoryKeepsTheLibrary) {
    ComPtr<IClassFactory> factory = MakeFactory();
    EXPECT_EQ(m_component.CanUnloadNow(), S_FALSE);
    factory.Reset();
    EXPECT_EQ(m_component.CanUnloadNow(), S_OK);
}

TEST_F(EntryPointsTest, ControlKeepsTheLibraryWithoutItsFactory) {
    ComPtr<IKRX8Maintenance> control;
    ASSERT_EQ(MakeFactory()->CreateInstance(nullptr, IID_IKRX8Maintenance,
                                            reinterpret_cast<void**>(control.GetAddressOf())),
              S_OK);
    EXPECT_EQ(m_component.CanUnloadNow(), S_FALSE);
    control.Reset();
    EXPECT_EQ(m_component.CanUnloadNow(), S_OK);
}

TEST_F(EntryPointsTest, LockKeepsTheLibraryUntilItIsTakenBack) {
    ASSERT_EQ(MakeFactory()->LockServer(TRUE), S_OK);
    EXPECT_EQ(m_component.CanUnloadNow(), S_FALSE);
    ASSERT_EQ(MakeFactory()->LockServer(FALSE), S_OK);
    EXPECT_EQ(m_component.CanUnloadNow(), S_OK);
}

TEST_F(EntryPointsTest, OtherClassesAreNotAvailable) {
    for (const CLSID& other : {IID_IUnknown, IID_IKRX8Maintenance, CLSID_NULL}) {
        void* factory = this;
        EXPECT_EQ(m_component.GetClassObject(other, IID_IClassFactory, &factory),
                  CLASS_E_CLASSNOTAVAILABLE);
        EXPECT_EQ(factory, nullptr);
    }
    EXPECT_EQ(m_component.CanUnloadNow(), S_OK);
}

TEST_F(EntryPointsTest, FactoryRefusesOtherInterfaces) {
    void* factory = this;
    EXPECT_EQ(m_component.GetClassObject(kClass, IID_IKRX8Maintenance, &factory), E_NOINTERFACE);
    EXPECT_EQ(factory, nullptr);
    EXPECT_EQ(m_component.CanUnloadNow(), S_OK);
}

TEST_F(EntryPointsTest, NoPlaceForTheFactoryIsRefused) {
    EXPECT_EQ(m_component.GetClassObject(kClass, IID_IClassFactory, nullptr), E_POINTER);
    EXPECT_EQ(m_component.GetClassObject(IID_IUnknown, IID_IClassFactory, nullptr), E_POINTER);
}

}

}
