#include "component/win32/com/EventSink.h"

#include "tests/component/win32/com/BridgeFixture.h"
#include "tests/component/win32/com/EventDoubles.h"

#include <stdexcept>

namespace component {

namespace {

using contract::Status;

class EventSinkTest : public BridgeFixture {
protected:
    /// Raises the event as a source in COM does: arguments from the last to the first.
    HRESULT Raise(IDispatch* sink, DISPID number, std::vector<VARIANT> arguments,
                  UINT namedArguments = 0) {
        DISPID names[] = {0, 1, 2};
        DISPPARAMS parameters{arguments.data(), namedArguments ? names : nullptr,
                              static_cast<UINT>(arguments.size()), namedArguments};
        return sink->Invoke(number, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                            nullptr, nullptr, nullptr);
    }
    HRESULT RaiseConnectionEvent(DISPID number, std::vector<VARIANT> arguments) {
        return Raise(MakeEventSink(m_bridge, m_connectionSink).Get(), number, std::move(arguments));
    }
    HRESULT RaiseDeviceEvent(DISPID number, std::vector<VARIANT> arguments) {
        return Raise(MakeEventSink(m_bridge, m_deviceSink).Get(), number, std::move(arguments));
    }

    template <class Events>
    void ExpectReceived(const interception::CTarget<Events>& sink, const void* method,
                        const std::string& arguments) {
        ASSERT_EQ(sink.exchange.received.size(), 1u);
        EXPECT_EQ(sink.exchange.received[0].method, method);
        EXPECT_EQ(sink.exchange.received[0].arguments, arguments);
    }
    void ExpectConnectionState(const std::string& arguments) {
        ExpectReceived(*m_connectionSink,
                       &interception::kMethodTag<&ConnectionEvents::ConnectionStateChanged>,
                       arguments);
    }
    void ExpectNothingReceived() {
        EXPECT_TRUE(m_connectionSink->exchange.received.empty());
        EXPECT_TRUE(m_deviceSink->exchange.received.empty());
    }

    std::shared_ptr<interception::CTarget<ConnectionEvents>> m_connectionSink =
        interception::MakeTarget<ConnectionEvents>();
    std::shared_ptr<interception::CTarget<DeviceEvents>> m_deviceSink =
        interception::MakeTarget<DeviceEvents>();
};

TEST_F(EventSinkTest, ConnectionStateArrivesWithStatusAndState) {
    EXPECT_EQ(RaiseConnectionEvent(1, {Long(7), Long(-3)}), S_OK);
    ExpectConnectionState("-3;7;");
}

TEST_F(EventSinkTest, StateAsShortArrives) {
    EXPECT_EQ(RaiseConnectionEvent(1, {Short(5), Long(0)}), S_OK);
    ExpectConnectionState("0;5;");
}

TEST_F(EventSinkTest, StateAsUnsignedArrives) {
    EXPECT_EQ(RaiseConnectionEvent(1, {Unsigned(7), Long(0)}), S_OK);
    ExpectConnectionState("0;7;");
}

TEST_F(EventSinkTest, StateByReferenceArrives) {
    LONG state = 7;
    LONG status = -2147467259;
    EXPECT_EQ(RaiseConnectionEvent(1, {ByReference(state), ByReference(status)}), S_OK);
    ExpectConnectionState("-2147467259;7;");
}

TEST_F(EventSinkTest, StateByReferenceToVariantArrives) {
    VARIANT state = Short(7);
    EXPECT_EQ(RaiseConnectionEvent(1, {ByReference(state), Long(1)}), S_OK);
    ExpectConnectionState("1;7;");
}

TEST_F(EventSinkTest, StateAsTextOfNumberArrives) {
    const CBstr seven("7");
    EXPECT_EQ(RaiseConnectionEvent(1, {Text(seven), Long(0)}), S_OK);
    ExpectConnectionState("0;7;");
}

TEST_F(EventSinkTest, StatusAsUnsignedArrivesBitByBit) {
    EXPECT_EQ(RaiseConnectionEvent(1, {Long(7), Unsigned(0x80004005)}), S_OK);
    ExpectConnectionState("-2147467259;7;");
}

TEST_F(EventSinkTest, StateOutOfRangeIsRefused) {
    EXPECT_EQ(RaiseConnectionEvent(1, {Real(2147483648.0), Long(0)}), DISP_E_OVERFLOW);
    ExpectNothingReceived();
}

TEST_F(EventSinkTest, StateThatIsNoNumberIsRefused) {
    const CBstr text("ready");
    EXPECT_EQ(RaiseConnectionEvent(1, {Text(text), Long(0)}), DISP_E_TYPEMISMATCH);
    ExpectNothingReceived();
}

TEST_F(EventSinkTest, SecondConnectionEventArrives) {
    EXPECT_EQ(RaiseConnectionEvent(2, {Long(-6), Long(2147483647)}), S_OK);
    ExpectReceived(*m_connectionSink, &interception::kMethodTag<&ConnectionEvents::Event2>,
                   "2147483647;-6;");
}

TEST_F(EventSinkTest, ModeArrives) {
    EXPECT_EQ(RaiseDeviceEvent(1, {Long(2)}), S_OK);
    ExpectReceived(*m_deviceSink, &interception::kMethodTag<&DeviceEvents::ModeChanged>, "2;");
}

TEST_F(EventSinkTest, DeviceMessageArrivesWithTextBeyondTheBasicPlane) {
    const CBstr text("größer 😀");
    EXPECT_EQ(RaiseDeviceEvent(2, {Unsigned(0xFFFFFFFF), Unsigned(0), Text(text)}), S_OK);
    ExpectReceived(*m_deviceSink, &interception::kMethodTag<&DeviceEvents::DeviceMessage>,
                   "größer 😀;0;4294967295;");
}

TEST_F(EventSinkTest, DeviceMessageWithSignedNumbersArrives) {
    const CBstr text("");
    EXPECT_EQ(RaiseDeviceEvent(2, {Long(9), Short(3), Text(text)}), S_OK);
    ExpectReceived(*m_deviceSink, &interception::kMethodTag<&DeviceEvents::DeviceMessage>, ";3;9;");
}

TEST_F(EventSinkTest, DeviceMessageWithNegativeCountIsRefused) {
    const CBstr text("");
    EXPECT_EQ(RaiseDeviceEvent(2, {Long(9), Real(-1), Text(text)}), DISP_E_OVERFLOW);
    ExpectNothingReceived();
}

TEST_F(EventSinkTest, ThirdDeviceEventArrives) {
    EXPECT_EQ(RaiseDeviceEvent(3, {Long(6), Long(5)}), S_OK);
    ExpectReceived(*m_deviceSink, &interception::kMethodTag<&DeviceEvents::Event3>, "5;6;");
}

TEST_F(EventSinkTest, WrongCountOfArgumentsIsRefused) {
    EXPECT_EQ(RaiseConnectionEvent(1, {Long(7)}), DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(RaiseDeviceEvent(1, {}), DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(RaiseDeviceEvent(3, {Long(1), Long(2), Long(3)}), DISP_E_BADPARAMCOUNT);
    ExpectNothingReceived();
}

TEST_F(EventSinkTest, NamedArgumentsAreRefused) {
    const auto sink = MakeEventSink(m_bridge, m_connectionSink);
    EXPECT_EQ(Raise(sink.Get(), 1, {Long(7), Long(0)}, 2), DISP_E_NONAMEDARGS);
    ExpectNothingReceived();
}

TEST_F(EventSinkTest, UnknownNumberIsRefused) {
    EXPECT_EQ(RaiseConnectionEvent(3, {Long(7), Long(0)}), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(RaiseDeviceEvent(4, {Long(7), Long(0)}), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(RaiseDeviceEvent(-1, {Long(1)}), DISP_E_MEMBERNOTFOUND);
    ExpectNothingReceived();
}

TEST_F(EventSinkTest, NoArgumentsAtAllIsRefused) {
    const auto sink = MakeEventSink(m_bridge, m_deviceSink);
    EXPECT_EQ(sink->Invoke(1, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr),
              E_POINTER);
}

TEST_F(EventSinkTest, StatusOfHandlerIsReturned) {
    m_deviceSink->exchange.status = Status(-6);
    EXPECT_EQ(RaiseDeviceEvent(1, {Long(2)}), -6);
    m_deviceSink->exchange.status = Status(1);
    EXPECT_EQ(RaiseDeviceEvent(1, {Long(2)}), S_FALSE);
}

TEST_F(EventSinkTest, ExceptionOfHandlerBecomesFailure) {
    m_deviceSink->exchange.whileCalled = [] { throw std::runtime_error("broken"); };
    EXPECT_EQ(RaiseDeviceEvent(1, {Long(2)}), E_FAIL);
    m_deviceSink->exchange.whileCalled = [] { throw std::bad_alloc(); };
    EXPECT_EQ(RaiseDeviceEvent(1, {Long(2)}), E_OUTOFMEMORY);
}

TEST_F(EventSinkTest, EventOnAnotherThreadIsRefused) {
    const auto sink = MakeEventSink(m_bridge, m_deviceSink);
    EXPECT_EQ(OnAnotherThread([&] { return Raise(sink.Get(), 1, {Long(2)}); }), RPC_E_WRONG_THREAD);
    ExpectNothingReceived();
}

TEST_F(EventSinkTest, ReleaseInsideEventKeepsSinkUntilItReturns) {
    IDispatch* const sink = MakeEventSink(m_bridge, m_deviceSink).Detach();
    m_deviceSink->exchange.whileCalled = [&] {
        sink->Release();
        EXPECT_GT(m_deviceSink.use_count(), 1);
    };
    EXPECT_EQ(Raise(sink, 1, {Long(2)}), S_OK);
    EXPECT_EQ(m_deviceSink.use_count(), 1);
}

TEST_F(EventSinkTest, SinkAnswersForItsEventsAndDispatchOnly) {
    const auto sink = MakeEventSink(m_bridge, m_deviceSink);
    EXPECT_EQ(Ask<::_IProgrammingDeviceControlEvents>(sink.Get()).Get(),
              static_cast<void*>(sink.Get()));
    EXPECT_TRUE(Ask<IDispatch>(sink.Get()));
    EXPECT_FALSE(Ask<::_IExtConnectionEvents>(sink.Get()));
    EXPECT_EQ(sink->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(EventSinkTest, SinkHasNoTypeInformationOfItsOwn) {
    const auto sink = MakeEventSink(m_bridge, m_deviceSink);
    UINT count = 9;
    EXPECT_EQ(sink->GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 0u);
    ComPtr<ITypeInfo> info;
    EXPECT_EQ(sink->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.GetAddressOf()), DISP_E_BADINDEX);
    EXPECT_EQ(sink->GetTypeInfoCount(nullptr), E_POINTER);
    EXPECT_EQ(sink->GetTypeInfo(0, LOCALE_USER_DEFAULT, nullptr), E_POINTER);
}

}

}
