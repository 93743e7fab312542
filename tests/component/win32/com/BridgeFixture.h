#pragma once

#include "component/win32/com/Bridge.h"
#include "component/win32/com/Bstr.h"
#include "component/win32/com/ComCall.h"
#include "component/win32/com/ComObject.h"
#include "contract/ErrorInfo.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <thread>
#include <utility>

namespace component {

/// A bridge that must be left as it was made: nothing crosses it any more when the test ends.
class BridgeFixture : public testing::Test {
protected:
    BridgeFixture() {
        ClearComErrorInfo();
        contract::ClearErrorInfo();
    }
    ~BridgeFixture() override {
        EXPECT_EQ(m_bridge->LiveImports(), 0u);
        EXPECT_EQ(m_bridge->LiveExports(), 0u);
        EXPECT_EQ(m_bridge->LiveKept(), 0u);
        EXPECT_EQ(m_bridge.use_count(), 1);
        EXPECT_FALSE(Module().IsInUse());
    }

    template <class Interface>
    std::shared_ptr<Interface> Import(IUnknown* object) const {
        return m_bridge->Import<Interface>(static_cast<ComOf<Interface>*>(object));
    }
    template <class Interface>
    ComPtr<ComOf<Interface>> Export(const std::shared_ptr<Interface>& object) const {
        return m_bridge->Export(object);
    }
    /// `object` as it looks from the contract's side of COM.
    template <class Interface>
    std::shared_ptr<Interface> RoundTrip(const std::shared_ptr<Interface>& object) const {
        return m_bridge->Import<Interface>(m_bridge->Export(object).Get());
    }

    const std::shared_ptr<CBridge> m_bridge = std::make_shared<CBridge>();
};

/// The object of COM that answers for `Interface`; null when there is none.
template <class Interface>
ComPtr<Interface> Ask(IUnknown* object) {
    ComPtr<Interface> answer;
    object->QueryInterface(__uuidof(Interface), reinterpret_cast<void**>(answer.GetAddressOf()));
    return answer;
}

/// Whether COM takes the two for one object.
inline bool AreOne(IUnknown* left, IUnknown* right) {
    return Ask<IUnknown>(left).Get() == Ask<IUnknown>(right).Get();
}

inline ULONG ReferencesTo(IUnknown* object) {
    object->AddRef();
    return object->Release();
}

/// The description that a call of COM has left for this thread, which is then gone.
inline std::wstring TakeDescription() {
    ComPtr<IErrorInfo> info;
    CBstr text;
    if (GetErrorInfo(0, info.GetAddressOf()) != S_OK) {
        return L"";
    }
    info->GetDescription(text.Receive());
    return {text.Get(), SysStringLen(text.Get())};
}

/// Leaves a description as an object of COM does.
inline void LeaveDescription(const wchar_t* text) {
    ComPtr<ICreateErrorInfo> made;
    ComPtr<IErrorInfo> info;
    ASSERT_EQ(CreateErrorInfo(made.GetAddressOf()), S_OK);
    ASSERT_EQ(made->SetDescription(const_cast<wchar_t*>(text)), S_OK);
    ASSERT_EQ(made.As(&info), S_OK);
    ASSERT_EQ(SetErrorInfo(0, info.Get()), S_OK);
}

/// What `call` returns on a thread that is not the bridge's.
template <class Call>
HRESULT OnAnotherThread(Call call) {
    HRESULT result = S_OK;
    std::thread([&] { result = call(); }).join();
    return result;
}

}
