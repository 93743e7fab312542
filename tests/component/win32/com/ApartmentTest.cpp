// Objects used from another apartment than their own, to which the system brings calls over as the
// registered type library tells it.

#include "tests/support/win32/Apartment.h"
#include "component/win32/com/Bstr.h"
#include "component/win32/com/TypeLibrary.h"
#include "contract/GuidText.h"
#include "frontend/win32/Module.h"
#include "tests/component/win32/com/BridgeFixture.h"
#include "tests/component/win32/com/EventDoubles.h"
#include "tests/component/win32/com/PanelTargets.h"
#include "tests/interception/ControlTargets.h"
#include "tests/interception/HostTargets.h"

#include <functional>

namespace component {

namespace {

/// The type library is registered while a test runs.
class ApartmentTest : public BridgeFixture {
protected:
    ApartmentTest() {
        std::wstring file = win32::OwnModuleFile();
        EXPECT_EQ(LoadTypeLibrary(m_library.GetAddressOf()), S_OK);
        EXPECT_EQ(RegisterTypeLib(m_library.Get(), file.data(), nullptr), S_OK);
    }
    ~ApartmentTest() override {
        TLIBATTR* attributes = nullptr;
        EXPECT_EQ(m_library->GetLibAttr(&attributes), S_OK);
        EXPECT_EQ(UnRegisterTypeLib(attributes->guid, attributes->wMajorVerNum,
                                    attributes->wMinorVerNum, attributes->lcid,
                                    attributes->syskind),
                  S_OK);
        m_library->ReleaseTLibAttr(attributes);
    }

    /// An object on its way to another apartment.
    template <class Interface>
    static IStream* Send(const ComPtr<Interface>& object) {
        IStream* stream = nullptr;
        EXPECT_EQ(CoMarshalInterThreadInterfaceInStream(__uuidof(Interface), object.Get(), &stream),
                  S_OK);
        return stream;
    }
    template <class Interface>
    static ComPtr<Interface> Receive(IStream* stream) {
        ComPtr<Interface> object;
        EXPECT_EQ(CoGetInterfaceAndReleaseStream(stream, IID_PPV_ARGS(object.GetAddressOf())),
                  S_OK);
        return object;
    }
    static void RunElsewhere(const std::function<void()>& action) {
        support::RunInApartment(COINIT_APARTMENTTHREADED, action);
    }

    ComPtr<ITypeLib> m_library;
};

TEST_F(ApartmentTest, SubsystemIsAskedForByItsIdentifier) {
    const auto target = interception::MakeTarget<contract::ISubsystemAccess>();
    target->exchange.status = contract::Status(-77);
    IStream* const stream = Send(Export<contract::ISubsystemAccess>(target));
    HRESULT result = S_OK;
    RunElsewhere([&] {
        const auto access = Receive<ISubsystemAccess>(stream);
        ComPtr<IUnknown> subsystem;
        const CBstr identifier(FormatGuid(contract::kProgrammingDeviceSubsystem));
        result = access->GetSubsystem(identifier.Get(), subsystem.GetAddressOf());
        EXPECT_FALSE(subsystem);
    });
    EXPECT_EQ(result, -77);
    EXPECT_EQ(target->exchange.received.size(), 1u);
}

TEST_F(ApartmentTest, SubsystemAccessIsHandedToThePanel) {
    const auto panel = interception::MakeTarget<contract::ISetSubsystemAccess>();
    const auto access = interception::MakeTarget<contract::ISubsystemAccess>();
    IStream* const panelStream = Send(Export<contract::ISetSubsystemAccess>(panel));
    IStream* const accessStream = Send(Export<contract::ISubsystemAccess>(access));
    HRESULT result = E_FAIL;
    RunElsewhere([&] {
        const auto foreign = Receive<ISetSubsystemAccess>(panelStream);
        const auto handed = Receive<ISubsystemAccess>(accessStream);
        result = foreign->SetSubsystemAccess(handed.Get());
    });
    EXPECT_EQ(result, S_OK);
    EXPECT_EQ(panel->exchange.received.size(), 1u);
}

TEST_F(ApartmentTest, ViewIsClosedByThePanel) {
    const auto target = interception::MakeTarget<contract::IHostViewControl>();
    IStream* const stream = Send(Export<contract::IHostViewControl>(target));
    HRESULT result = E_FAIL;
    RunElsewhere([&] { result = Receive<IHostViewControl>(stream)->ClosePanel(); });
    EXPECT_EQ(result, S_OK);
    EXPECT_EQ(target->exchange.received.size(), 1u);
}

TEST_F(ApartmentTest, DeliveredDeviceIsUsedThere) {
    const auto control = interception::MakeTarget<contract::IProgrammingDeviceControl>();
    const auto subsystem = interception::MakeTarget<contract::IProgrammingDeviceSubsystem>();
    subsystem->exchange.object = control;
    IStream* const stream = Send(Export<contract::IProgrammingDeviceSubsystem>(subsystem));
    RunElsewhere([&] {
        const auto foreign = Receive<IProgrammingDeviceSubsystem>(stream);
        ComPtr<IProgrammingDeviceControl> delivered;
        ASSERT_EQ(foreign->get_ProgrammingDeviceControl(delivered.GetAddressOf()), S_OK);
        EXPECT_EQ(delivered->DeleteFile(22, 3), S_OK);
    });
    ASSERT_EQ(control->exchange.received.size(), 1u);
    EXPECT_EQ(control->exchange.received[0].arguments, "22;3;");
}

TEST_F(ApartmentTest, EventInsideACallOfTheDeviceIsHeardThere) {
    const auto source = std::make_shared<simulator::CEventSource<DeviceEvents>>();
    const auto control = MakeObjectWith<contract::IProgrammingDeviceControl>(source);
    IStream* const stream = Send(Export<contract::IProgrammingDeviceControl>(control));
    std::vector<std::string> heard;
    RunElsewhere([&] {
        const auto foreign = Receive<IProgrammingDeviceControl>(stream);
        ComPtr<IConnectionPoint> point;
        ASSERT_EQ(Ask<IConnectionPointContainer>(foreign.Get())
                      ->FindConnectionPoint(__uuidof(::_IProgrammingDeviceControlEvents),
                                            point.GetAddressOf()),
                  S_OK);
        const auto sink = MakeCom<CDispatchDouble>();
        sink->eventInterface = __uuidof(::_IProgrammingDeviceControlEvents);
        DWORD cookie = 0;
        ASSERT_EQ(point->Advise(sink.Get(), &cookie), S_OK);
        control->exchange.whileCalled = [&] {
            source->RaiseToAll([](DeviceEvents& events) {
                return events.DeviceMessage("Löschen", 1, 0xFFFFFFFF);
            });
        };
        EXPECT_EQ(foreign->DeleteFile(22, 3), S_OK);
        EXPECT_EQ(point->Unadvise(cookie), S_OK);
        heard = sink->events;
    });
    EXPECT_EQ(heard, std::vector<std::string>{"2 BSTR:Löschen UI4:1 UI4:4294967295"});
    EXPECT_EQ(source->SubscriberCount(), 0u);
}

}

}
