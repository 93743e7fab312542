#pragma once

#include "component/win32/com/Bridge.h"
#include "component/win32/com/ComCall.h"
#include "component/win32/com/ComObject.h"
#include "contract/host/Context.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace support {

/// The class of a host's message services, of which one is made by asking the host's context.
class CMessageServiceClass final : public IClassFactory {
public:
    explicit CMessageServiceClass(std::shared_ptr<component::CBridge> bridge)
        : m_bridge(std::move(bridge)) {}
    virtual ~CMessageServiceClass() = default;

    /// Not kept from its end.
    std::weak_ptr<contract::IContext> context;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** result) override {
        return component::AnswerQuery<IClassFactory>(this, identifier, result);
    }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID identifier, void** result) override {
        *result = nullptr;
        const auto asked = context.lock();
        if (!asked) {
            return REGDB_E_CLASSNOTREG;
        }
        std::shared_ptr<contract::IMessageService> service;
        const HRESULT status = component::CallContract(
            identifier, [&] { return asked->QueryMessageService(service); });
        if (FAILED(status) || !service) {
            return status;
        }
        return m_bridge->Export(service)->QueryInterface(identifier, result);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

private:
    const std::shared_ptr<component::CBridge> m_bridge;

    KRX8_COUNTED_REFERENCES(CMessageServiceClass)
};

/// Has that class registered in this process while it lives.
class CMessageServices {
public:
    explicit CMessageServices(const std::shared_ptr<component::CBridge>& bridge)
        : m_class(component::MakeCom<CMessageServiceClass>(bridge)) {
        EXPECT_EQ(CoRegisterClassObject(CLSID_MessageService, m_class.Get(), CLSCTX_INPROC_SERVER,
                                        REGCLS_MULTIPLEUSE, &m_registration),
                  S_OK);
    }
    ~CMessageServices() { EXPECT_EQ(CoRevokeClassObject(m_registration), S_OK); }
    CMessageServices(const CMessageServices&) = delete;
    CMessageServices& operator=(const CMessageServices&) = delete;

    /// The context is asked from now on.
    void SetContext(const std::shared_ptr<contract::IContext>& context) {
        m_class->context = context;
    }

private:
    const component::ComPtr<CMessageServiceClass> m_class;
    DWORD m_registration = 0;
};

}
