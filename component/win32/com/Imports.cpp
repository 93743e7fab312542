// What stands for the objects of a host and of its devices that come from COM.

#include "component/win32/com/Import.h"
#include "component/win32/com/ImportedEvents.h"

namespace component {

namespace {

using contract::Status;

class CImportOfISelfTestResults final : public CImport<contract::ISelfTestResults> {
public:
    using CImport::CImport;

    Status GetResult(contract::SelfTest test, std::int32_t& code) override {
        switch (test) {
#define SELF_TEST(method, name)                                                                    \
    case contract::SelfTest::name:                                                                 \
        return Call<std::int32_t&>(&Com::method, code);
#include "component/win32/com/SelfTests.inc"
        }
        return contract::kUnspecifiedFailure;
    }
};

class CImportOfIMessageService final : public CImport<contract::IMessageService> {
public:
    using CImport::CImport;

    Status ShowMessage(const contract::Message& message, std::int32_t& button) override {
        return Call<std::int32_t, const std::string&, const std::string&, Status,
                    const std::string&, std::uint32_t, std::int32_t, std::int32_t&>(
            &Com::ShowMessage, message.owner, message.text, message.caption, message.status,
            message.description, message.style, message.showFlag, button);
    }
};

#define INTERFACE(name, com)                                                                       \
    class CImportOf##name final : public CImport<contract::name> {                                 \
    public:                                                                                        \
        using CImport::CImport;
#define METHOD0(name)                                                                              \
    Status name() override { return Call<>(&Com::name); }
#define METHOD1(name, A)                                                                           \
    Status name(A a) override { return Call<A>(&Com::name, a); }
#define METHOD2(name, A, B)                                                                        \
    Status name(A a, B b) override { return Call<A, B>(&Com::name, a, b); }
#define METHOD4(name, A, B, C, D)                                                                  \
    Status name(A a, B b, C c, D d) override { return Call<A, B, C, D>(&Com::name, a, b, c, d); }
#define LONG_FLAG(name)                                                                            \
    Status name(bool& flag) override { return Call<LongFlag>(&Com::name, flag); }
#define QUERY(contract_, name, other)                                                              \
    Status name(std::shared_ptr<contract::other>& result) override { return Query(result); }
#define CLASS_OBJECT(name, other, identifier)                                                      \
    Status name(std::shared_ptr<contract::other>& result) override {                               \
        return ImportByClass(*SharedBridge(), identifier, result);                                 \
    }
#define EVENTS(contract_, events)                                                                  \
    Status QueryBaseObject(std::shared_ptr<contract::IBaseObject<contract::events>>& object)       \
        override {                                                                                 \
        return ImportEvents(SharedBridge(), Target(), object);                                     \
    }
#define TYPE_INFORMATION                                                                           \
    Status GetTypeInfo(std::uint32_t index, std::uint32_t locale,                                  \
                       std::shared_ptr<contract::ITypeInformation>& information) override {        \
        return Call<std::uint32_t, std::uint32_t, std::shared_ptr<contract::ITypeInformation>&>(   \
            &Com::GetTypeInfo, index, locale, information);                                        \
    }
#define END                                                                                        \
    }                                                                                              \
    ;
#define HANDED_ON(name, com) INTERFACE(name, com) END
#include "component/win32/com/InterfaceTable.inc"

}

#define INTERFACE(name, com)                                                                       \
    std::shared_ptr<contract::name> MakeImport(std::shared_ptr<CBridge> bridge,                    \
                                               ComPtr<::com> object, const contract::name*) {      \
        return std::make_shared<CImportOf##name>(std::move(bridge), std::move(object));            \
    }
#define HANDMADE(name, com) INTERFACE(name, com)
#define HANDED_ON(name, com) INTERFACE(name, com)
#include "component/win32/com/InterfaceTable.inc"

}
