#include "component/win32/com/Enumeration.h"

#include "tests/component/win32/com/BridgeFixture.h"

#include <new>
#include <vector>

namespace component {

namespace {

struct HeldNumber {
    DWORD number;

    CONNECTDATA Copy() const { return {nullptr, number}; }
};

/// A number for which there may be no memory.
struct FrugalNumber {
    static inline bool isMemoryOut = false;

    FrugalNumber() = default;
    FrugalNumber(const FrugalNumber&) {
        if (isMemoryOut) {
            throw std::bad_alloc();
        }
    }

    CONNECTDATA Copy() const { return {}; }
};

class EnumerationTest : public BridgeFixture {
protected:
    using Enumeration = CEnumeration<IEnumConnections, CONNECTDATA, HeldNumber>;

    /// The next numbers; with `result` what the call returned.
    std::vector<DWORD> Next(ULONG wanted, HRESULT& result) {
        std::vector<CONNECTDATA> data(wanted);
        ULONG fetched = 99;
        result = m_numbers->Next(wanted, data.data(), &fetched);
        std::vector<DWORD> numbers;
        for (ULONG index = 0; index < fetched; ++index) {
            numbers.push_back(data.at(index).dwCookie);
        }
        return numbers;
    }
    void ExpectNext(const std::vector<DWORD>& expected) {
        HRESULT result = E_FAIL;
        EXPECT_EQ(Next(static_cast<ULONG>(expected.size()), result), expected);
        EXPECT_EQ(result, S_OK);
    }

    ComPtr<IEnumConnections> m_numbers =
        MakeCom<Enumeration>(std::vector<HeldNumber>{{1}, {2}, {3}});
};

TEST_F(EnumerationTest, NextDeliversItemsInOrder) {
    ExpectNext({1});
    ExpectNext({2, 3});
}

TEST_F(EnumerationTest, NextBeyondTheEndDeliversWhatIsLeft) {
    ExpectNext({1, 2});
    HRESULT result = S_OK;
    EXPECT_EQ(Next(2, result), std::vector<DWORD>{3});
    EXPECT_EQ(result, S_FALSE);
    EXPECT_TRUE(Next(1, result).empty());
    EXPECT_EQ(result, S_FALSE);
}

TEST_F(EnumerationTest, SkipPassesItemsOver) {
    EXPECT_EQ(m_numbers->Skip(2), S_OK);
    ExpectNext({3});
    EXPECT_EQ(m_numbers->Skip(0), S_OK);
}

TEST_F(EnumerationTest, SkipBeyondTheEndStopsThere) {
    EXPECT_EQ(m_numbers->Skip(4), S_FALSE);
    HRESULT result = S_OK;
    EXPECT_TRUE(Next(1, result).empty());
    EXPECT_EQ(m_numbers->Skip(1), S_FALSE);
}

TEST_F(EnumerationTest, ResetStartsAgain) {
    ExpectNext({1, 2, 3});
    EXPECT_EQ(m_numbers->Reset(), S_OK);
    ExpectNext({1});
}

TEST_F(EnumerationTest, CloneStartsWhereTheOriginalStands) {
    ExpectNext({1});
    ComPtr<IEnumConnections> clone;
    ASSERT_EQ(m_numbers->Clone(clone.GetAddressOf()), S_OK);
    ExpectNext({2, 3});
    m_numbers = clone;
    ExpectNext({2});
}

TEST_F(EnumerationTest, CountMayBeNullForOneItemOnly) {
    CONNECTDATA data[2] = {};
    EXPECT_EQ(m_numbers->Next(1, data, nullptr), S_OK);
    EXPECT_EQ(data[0].dwCookie, 1u);
    EXPECT_EQ(m_numbers->Next(2, data, nullptr), E_POINTER);
}

TEST_F(EnumerationTest, NullPointersAreRefused) {
    ULONG fetched = 0;
    EXPECT_EQ(m_numbers->Next(1, nullptr, &fetched), E_POINTER);
    EXPECT_EQ(m_numbers->Clone(nullptr), E_POINTER);
    EXPECT_EQ(m_numbers->QueryInterface(IID_IEnumConnections, nullptr), E_POINTER);
}

TEST_F(EnumerationTest, CloneWithoutMemoryDeliversNull) {
    using Frugal = CEnumeration<IEnumConnections, CONNECTDATA, FrugalNumber>;
    const auto numbers = MakeCom<Frugal>(std::vector<FrugalNumber>(1));
    auto clone = reinterpret_cast<IEnumConnections*>(8);
    FrugalNumber::isMemoryOut = true;
    EXPECT_EQ(numbers->Clone(&clone), E_OUTOFMEMORY);
    FrugalNumber::isMemoryOut = false;
    EXPECT_EQ(clone, nullptr);
}

TEST_F(EnumerationTest, EnumeratorAnswersForItsInterfaceOnly) {
    EXPECT_TRUE(Ask<IEnumConnections>(m_numbers.Get()));
    EXPECT_TRUE(Ask<IUnknown>(m_numbers.Get()));
    EXPECT_FALSE(Ask<IEnumConnectionPoints>(m_numbers.Get()));
}

}

}
