// What stands in COM for objects of the contract: for the panel towards its host, and for hosts and
// devices that are written to the contract.

#include "component/win32/com/ConnectionPointContainer.h"
#include "component/win32/com/Export.h"
#include "component/win32/com/TypeLibrary.h"

namespace component {

/// An object that the contract delivers and nobody in COM sees.
struct TypeInformation;
template <>
struct Crossing<TypeInformation> {
    class Incoming {
    public:
        Incoming(CBridge&, std::shared_ptr<contract::ITypeInformation>* information)
            : m_information(*information) {}
        bool IsValid() const { return true; }
        std::shared_ptr<contract::ITypeInformation>& Get() { return m_information; }
        void Deliver() {}

    private:
        std::shared_ptr<contract::ITypeInformation>& m_information;
    };
};

/// A message in COM.
struct ComMessage {
    LONG owner;
    BSTR text;
    BSTR caption;
    LONG status;
    BSTR description;
    ULONG style;
    LONG showFlag;
};

template <>
struct Crossing<const contract::Message&> {
    class Incoming {
    public:
        Incoming(CBridge&, const ComMessage& message)
            : m_message{message.owner,
                        FromBstr(message.text),
                        FromBstr(message.caption),
                        contract::Status(message.status),
                        FromBstr(message.description),
                        message.style,
                        message.showFlag} {}
        bool IsValid() const { return true; }
        const contract::Message& Get() const { return m_message; }
        void Deliver() {}

    private:
        contract::Message m_message;
    };
};

namespace {

class CExportOfISelfTestResults final : public CExport<contract::ISelfTestResults> {
public:
    using CExport::CExport;

#define SELF_TEST(method, name)                                                                    \
    HRESULT STDMETHODCALLTYPE method(LONG* code) override {                                        \
        return Serve<contract::SelfTest, std::int32_t&>(                                           \
            &Contract::GetResult, static_cast<LONG>(contract::SelfTest::name), code);              \
    }
#include "component/win32/com/SelfTests.inc"
};

class CExportOfIMessageService final : public CExport<contract::IMessageService> {
public:
    using CExport::CExport;

    HRESULT STDMETHODCALLTYPE ShowMessage(LONG owner, BSTR text, BSTR caption, LONG status,
                                          BSTR description, ULONG style, LONG showFlag,
                                          LONG* button) override {
        const ComMessage message{owner, text, caption, status, description, style, showFlag};
        return Serve<const contract::Message&, std::int32_t&>(&Contract::ShowMessage, message,
                                                              button);
    }
};

#define INTERFACE(name, com)                                                                       \
    class CExportOf##name final : public CExport<contract::name> {                                 \
    public:                                                                                        \
        using CExport::CExport;
#define METHOD0(name)                                                                              \
    HRESULT STDMETHODCALLTYPE name() override { return Serve<>(&Contract::name); }
#define METHOD1(name, A)                                                                           \
    HRESULT STDMETHODCALLTYPE name(Crossing<A>::Com a) override {                                  \
        return Serve<A>(&Contract::name, a);                                                       \
    }
#define METHOD2(name, A, B)                                                                        \
    HRESULT STDMETHODCALLTYPE name(Crossing<A>::Com a, Crossing<B>::Com b) override {              \
        return Serve<A, B>(&Contract::name, a, b);                                                 \
    }
#define METHOD4(name, A, B, C, D)                                                                  \
    HRESULT STDMETHODCALLTYPE name(Crossing<A>::Com a, Crossing<B>::Com b, Crossing<C>::Com c,     \
                                   Crossing<D>::Com d) override {                                  \
        return Serve<A, B, C, D>(&Contract::name, a, b, c, d);                                     \
    }
#define LONG_FLAG(name)                                                                            \
    HRESULT STDMETHODCALLTYPE name(LONG* flag) override {                                          \
        return Serve<LongFlag>(&Contract::name, flag);                                             \
    }
// The object of the contract says whether there is type information; what it looks like is the type
// library's affair.
#define TYPE_INFORMATION                                                                           \
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {                             \
        return count ? (*count = 1, S_OK) : E_POINTER;                                             \
    }                                                                                              \
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {    \
        if (!info) {                                                                               \
            return E_POINTER;                                                                      \
        }                                                                                          \
        *info = nullptr;                                                                           \
        std::shared_ptr<contract::ITypeInformation> information;                                   \
        const HRESULT result = Serve<std::uint32_t, std::uint32_t, TypeInformation>(               \
            &Contract::GetTypeInfo, index, locale, &information);                                  \
        if (FAILED(result) || !information) {                                                      \
            return result;                                                                         \
        }                                                                                          \
        const HRESULT found =                                                                      \
            ServeByTypeLibrary([&] { return FindTypeInfo(__uuidof(Com), info); });                 \
        return FAILED(found) ? found : result;                                                     \
    }                                                                                              \
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID,    \
                                            DISPID* numbers) override {                            \
        return ServeByTypeLibrary(                                                                 \
            [&] { return FindNames(__uuidof(Com), reserved, names, count, numbers); });            \
    }                                                                                              \
    HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID reserved, LCID, WORD flags,             \
                                     DISPPARAMS* parameters, VARIANT* result,                      \
                                     EXCEPINFO* exception, UINT* argument) override {              \
        return ServeByTypeLibrary([&] {                                                            \
            return InvokeByNumber(static_cast<Com*>(this), __uuidof(Com), number, reserved, flags, \
                                  parameters, result, exception, argument);                        \
        });                                                                                        \
    }
#define END                                                                                        \
    }                                                                                              \
    ;
#include "component/win32/com/InterfaceTable.inc"

}

#define INTERFACE(name, com)                                                                       \
    template <>                                                                                    \
    HRESULT QueryFurther<contract::name>([[maybe_unused]] CExport<contract::name> & object,        \
                                         [[maybe_unused]] REFIID identifier,                       \
                                         [[maybe_unused]] void** result) {
#define QUERY(contract_, name, other)                                                              \
    if (IsAnsweredBy<ComOf<contract::other>>(identifier)) {                                        \
        return object.QueryPart(&contract::contract_::name, result);                               \
    }
#define EVENTS(contract_, events)                                                                  \
    if (identifier == IID_IConnectionPointContainer) {                                             \
        return ExportEvents<contract::events>(object, result);                                     \
    }
#define END                                                                                        \
    return E_NOINTERFACE;                                                                          \
    }
#define HANDMADE(name, com) INTERFACE(name, com) END
#include "component/win32/com/InterfaceTable.inc"

#define INTERFACE(name, com)                                                                       \
    ComPtr<::com> MakeExport(std::shared_ptr<CBridge> bridge,                                      \
                             std::shared_ptr<contract::name> object, IUnknown* outer) {            \
        return MakeCom<CExportOf##name>(std::move(bridge), std::move(object), outer);              \
    }
#define HANDMADE(name, com) INTERFACE(name, com)
#include "component/win32/com/InterfaceTable.inc"

}
