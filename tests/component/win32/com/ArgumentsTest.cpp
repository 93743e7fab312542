#include "component/win32/com/Arguments.h"

#include "component/win32/com/Identifiers.h"
#include "tests/component/win32/com/BridgeFixture.h"
#include "tests/interception/HostTargets.h"

#include <cstdint>
#include <limits>
#include <string_view>

namespace component {

namespace {

/// Values on their way from the contract to COM and on to the contract again.
class ArgumentsTest : public BridgeFixture {
protected:
    template <class Parameter, class Value>
    auto InCom(const Value& value) {
        return typename Crossing<Parameter>::Outgoing(*m_bridge, value).Get();
    }
    template <class Parameter, class Value>
    void ExpectToArrive(const Value& value) {
        typename Crossing<Parameter>::Outgoing outgoing(*m_bridge, value);
        typename Crossing<Parameter>::Incoming incoming(*m_bridge, outgoing.Get());
        EXPECT_TRUE(incoming.IsValid());
        EXPECT_EQ(incoming.Get(), value);
    }
    template <class Value, class Parameter = Value&>
    Value Delivered(const Value& value, const Value& before) {
        Value result = before;
        typename Crossing<Parameter>::Outgoing outgoing(*m_bridge, result);
        typename Crossing<Parameter>::Incoming incoming(*m_bridge, outgoing.Get());
        EXPECT_TRUE(incoming.IsValid());
        incoming.Get() = value;
        incoming.Deliver();
        outgoing.Deliver();
        return result;
    }
    template <class Parameter>
    bool IsNullRefused() {
        return !typename Crossing<Parameter>::Incoming(*m_bridge, nullptr).IsValid();
    }
};

TEST_F(ArgumentsTest, SignedNumbersArrive) {
    for (const std::int32_t value : {0, -1, 19, std::numeric_limits<std::int32_t>::min(),
                                     std::numeric_limits<std::int32_t>::max()}) {
        ExpectToArrive<std::int32_t>(value);
        EXPECT_EQ(Delivered(value, 5), value);
    }
    EXPECT_EQ(InCom<std::int32_t>(-7), -7);
}

TEST_F(ArgumentsTest, UnsignedNumbersArrive) {
    for (const std::uint32_t value : {0u, 0x0100A8C0u, 0x80000000u, 0xFFFFFFFFu}) {
        ExpectToArrive<std::uint32_t>(value);
        EXPECT_EQ(Delivered(value, 5u), value);
    }
    EXPECT_EQ(InCom<std::uint32_t>(0xFFFFFFFFu), 0xFFFFFFFFul);
}

TEST_F(ArgumentsTest, TruthIsAllBitsInCom) {
    EXPECT_EQ(InCom<bool>(true), VARIANT_TRUE);
    EXPECT_EQ(InCom<bool>(false), VARIANT_FALSE);
    ExpectToArrive<bool>(true);
    ExpectToArrive<bool>(false);
    EXPECT_TRUE(Delivered(true, false));
    EXPECT_FALSE(Delivered(false, true));
}

TEST_F(ArgumentsTest, AnythingButZeroIsTrue) {
    EXPECT_TRUE(Crossing<bool>::Incoming(*m_bridge, 1).Get());
    EXPECT_FALSE(Crossing<bool>::Incoming(*m_bridge, 0).Get());
    bool result = false;
    Crossing<bool&>::Outgoing outgoing(*m_bridge, result);
    *outgoing.Get() = 2;
    outgoing.Deliver();
    EXPECT_TRUE(result);
}

TEST_F(ArgumentsTest, DeliveredTruthIsAllBitsOrOne) {
    VARIANT_BOOL truth = 5;
    Crossing<bool&>::Incoming incoming(*m_bridge, &truth);
    incoming.Get() = true;
    incoming.Deliver();
    EXPECT_EQ(truth, VARIANT_TRUE);
    LONG flag = 5;
    Crossing<LongFlag>::Incoming longIncoming(*m_bridge, &flag);
    longIncoming.Get() = true;
    longIncoming.Deliver();
    EXPECT_EQ(flag, 1);
}

TEST_F(ArgumentsTest, LongFlagOfAnyNumberButZeroIsTrue) {
    bool result = false;
    Crossing<LongFlag>::Outgoing outgoing(*m_bridge, result);
    *outgoing.Get() = -2147483647 - 1;
    outgoing.Deliver();
    EXPECT_TRUE(result);
    EXPECT_FALSE((Delivered<bool, LongFlag>(false, true)));
}

TEST_F(ArgumentsTest, TextsArrive) {
    for (const std::string& text :
         {std::string(), std::string("version.fia"), std::string("größer ≠ 大"),
          std::string("🔌 beyond U+FFFF 😀"), std::string("a\0b", 3), std::string(70000, 'x')}) {
        ExpectToArrive<const std::string&>(text);
        EXPECT_EQ(Delivered(text, std::string("before")), text);
    }
}

TEST_F(ArgumentsTest, TextInComIsUtf16WithItsLength) {
    Crossing<const std::string&>::Outgoing outgoing(*m_bridge, "ü😀");
    EXPECT_EQ(SysStringLen(outgoing.Get()), 3u);
    EXPECT_EQ(std::wstring(outgoing.Get()), L"\x00FC\xD83D\xDE00");
}

TEST_F(ArgumentsTest, EmptyTextInComIsNoNull) {
    Crossing<const std::string&>::Outgoing outgoing(*m_bridge, "");
    ASSERT_NE(outgoing.Get(), nullptr);
    EXPECT_EQ(SysStringLen(outgoing.Get()), 0u);
}

TEST_F(ArgumentsTest, NullForTextIsAnEmptyOne) {
    Crossing<const std::string&>::Incoming incoming(*m_bridge, nullptr);
    EXPECT_TRUE(incoming.IsValid());
    EXPECT_EQ(incoming.Get(), "");
    std::string result = "before";
    Crossing<std::string&>::Outgoing outgoing(*m_bridge, result);
    outgoing.Deliver();
    EXPECT_EQ(result, "");
}

TEST_F(ArgumentsTest, HalfOfASurrogatePairBecomesTheReplacementCharacter) {
    const CBstr text("x");
    text.Get()[0] = 0xD83D;
    EXPECT_EQ(Crossing<const std::string&>::Incoming(*m_bridge, text.Get()).Get(), "\uFFFD");
}

TEST_F(ArgumentsTest, BytesThatAreNoUtf8BecomeReplacementCharacters) {
    EXPECT_EQ(CBstr("a\xFF").ToText(), "a\uFFFD");
}

TEST_F(ArgumentsTest, EnumerationsArriveAsNumbers) {
    EXPECT_EQ(InCom<contract::ModeRequest>(contract::ModeRequest::Reset), 4);
    EXPECT_EQ(InCom<contract::Medium>(contract::Medium::PcCard), 2);
    ExpectToArrive<contract::Medium>(contract::Medium::InternalFlash);
    EXPECT_EQ(Crossing<contract::ModeRequest>::Incoming(*m_bridge, -9).Get(),
              static_cast<contract::ModeRequest>(-9));
}

TEST_F(ArgumentsTest, IdentifiersArrive) {
    ExpectToArrive<const contract::Guid&>(contract::kProductInformationSubsystem);
    const contract::Guid identifier{0xFFFFFFFF, 0x8000, 0x0001, {0x80, 0xFF, 0, 1, 2, 3, 4, 0xFE}};
    EXPECT_EQ(FromGuid(ToGuid(identifier)), identifier);
}

TEST_F(ArgumentsTest, IdentifiersAreTheTextsOfTheRegistry) {
    Crossing<const contract::Guid&>::Outgoing outgoing(*m_bridge,
                                                       contract::kProgrammingDeviceSubsystem);
    EXPECT_STREQ(outgoing.Get(), L"{492DA5B7-AE9B-4AB6-962A-5637D9563537}");
    const CBstr text("{492da5b7-ae9b-4ab6-962a-5637d9563537}");
    EXPECT_EQ(Crossing<const contract::Guid&>::Incoming(*m_bridge, text.Get()).Get(),
              contract::kProgrammingDeviceSubsystem);
}

TEST_F(ArgumentsTest, TextThatIsNoIdentifierIsAnInvalidArgument) {
    const auto target = interception::MakeTarget<contract::ISubsystemAccess>();
    const auto access = Export<contract::ISubsystemAccess>(target);
    ComPtr<IUnknown> subsystem;
    using namespace std::string_view_literals;
    for (const auto text :
         {""sv, "QRZ.KRX8Maintenance"sv, "{492DA5B7-AE9B-4AB6-962A-5637D9563537}\0x"sv}) {
        EXPECT_EQ(access->GetSubsystem(CBstr(text).Get(), subsystem.GetAddressOf()), E_INVALIDARG);
    }
    EXPECT_EQ(access->GetSubsystem(nullptr, subsystem.GetAddressOf()), E_INVALIDARG);
    EXPECT_TRUE(target->exchange.received.empty());
}

TEST_F(ArgumentsTest, NullForResultsIsRefused) {
    EXPECT_TRUE(IsNullRefused<std::int32_t&>());
    EXPECT_TRUE(IsNullRefused<std::uint32_t&>());
    EXPECT_TRUE(IsNullRefused<bool&>());
    EXPECT_TRUE(IsNullRefused<LongFlag>());
    EXPECT_TRUE(IsNullRefused<std::string&>());
    EXPECT_TRUE(IsNullRefused<std::shared_ptr<contract::IFileInfo>&>());
}

TEST_F(ArgumentsTest, NullObjectsArriveAsNull) {
    ExpectToArrive<const std::shared_ptr<contract::IContext>&>(
        std::shared_ptr<contract::IContext>());
    std::shared_ptr<contract::IFileInfo> file;
    EXPECT_EQ(Delivered(file, file), nullptr);
}

TEST_F(ArgumentsTest, TextThatIsNotTakenIsFreed) {
    // What a callee leaves with a failure is nobody's but this object's.
    std::string result = "before";
    {
        Crossing<std::string&>::Outgoing outgoing(*m_bridge, result);
        *outgoing.Get() = CBstr("left").Release();
    }
    EXPECT_EQ(result, "before");
}

}

}
