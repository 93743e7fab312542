#pragma once

#include "component/win32/com/Bridge.h"
#include "component/win32/com/Bstr.h"
#include "contract/GuidText.h"
#include "contract/Status.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>

namespace component {

/// How a parameter of the contract crosses to COM and back. For each type of a parameter:
///
/// - `Com`, its type in the COM interface;
/// - `Outgoing`, for a call from the contract to COM: made of the contract's argument, it gives
///   COM's with Get and, after success, brings back what was delivered with Deliver;
/// - `Incoming`, the same for a call from COM to the contract, with IsValid for what callers in COM
///   may pass wrongly: null pointers, or what fails with `kRefusal` where there is one.
template <class Parameter>
struct Crossing;

/// Values that are the same on both sides but for their type.
template <class Value, class ComValue>
struct ValueCrossing {
    using Com = ComValue;

    class Outgoing {
    public:
        Outgoing(CBridge&, Value value) : m_value(value) {}
        Com Get() const { return static_cast<Com>(m_value); }
        void Deliver() {}

    private:
        Value m_value;
    };

    class Incoming {
    public:
        Incoming(CBridge&, Com value) : m_value(value) {}
        bool IsValid() const { return true; }
        Value Get() const { return static_cast<Value>(m_value); }
        void Deliver() {}

    private:
        Com m_value;
    };
};

template <>
struct Crossing<std::int32_t> : ValueCrossing<std::int32_t, LONG> {};
template <>
struct Crossing<std::uint32_t> : ValueCrossing<std::uint32_t, ULONG> {};
template <class Enumeration>
requires std::is_enum_v<Enumeration>
struct Crossing<Enumeration> : ValueCrossing<Enumeration, LONG> {
};
template <>
struct Crossing<contract::Status> {
    using Com = LONG;

    class Outgoing {
    public:
        Outgoing(CBridge&, contract::Status status) : m_status(status) {}
        Com Get() const { return m_status.Code(); }
        void Deliver() {}

    private:
        contract::Status m_status;
    };
};

/// Numbers that are delivered.
template <class Value, class ComValue>
struct ResultCrossing {
    using Com = ComValue*;

    class Outgoing {
    public:
        Outgoing(CBridge&, Value& result) : m_result(result) {}
        Com Get() { return &m_value; }
        void Deliver() { m_result = static_cast<Value>(m_value); }

    private:
        Value& m_result;
        ComValue m_value = 0;
    };

    class Incoming {
    public:
        Incoming(CBridge&, Com result) : m_result(result) {}
        bool IsValid() const { return m_result != nullptr; }
        Value& Get() { return m_value; }
        void Deliver() { *m_result = static_cast<ComValue>(m_value); }

    private:
        Com m_result;
        Value m_value = 0;
    };
};

template <>
struct Crossing<std::int32_t&> : ResultCrossing<std::int32_t, LONG> {};
template <>
struct Crossing<std::uint32_t&> : ResultCrossing<std::uint32_t, ULONG> {};

/// True is all bits set in COM, and anything but 0 is taken for it.
template <>
struct Crossing<bool> {
    using Com = VARIANT_BOOL;

    class Outgoing {
    public:
        Outgoing(CBridge&, bool value) : m_value(value) {}
        Com Get() const { return m_value ? VARIANT_TRUE : VARIANT_FALSE; }
        void Deliver() {}

    private:
        bool m_value;
    };

    class Incoming {
    public:
        Incoming(CBridge&, Com value) : m_value(value != VARIANT_FALSE) {}
        bool IsValid() const { return true; }
        bool Get() const { return m_value; }
        void Deliver() {}

    private:
        bool m_value;
    };
};

/// A truth that is delivered: as ComFlag, which is `yes` or 0.
template <class ComFlag, ComFlag yes>
struct FlagCrossing {
    using Com = ComFlag*;

    class Outgoing {
    public:
        Outgoing(CBridge&, bool& result) : m_result(result) {}
        Com Get() { return &m_flag; }
        void Deliver() { m_result = m_flag != 0; }

    private:
        bool& m_result;
        ComFlag m_flag = 0;
    };

    class Incoming {
    public:
        Incoming(CBridge&, Com result) : m_result(result) {}
        bool IsValid() const { return m_result != nullptr; }
        bool& Get() { return m_value; }
        void Deliver() { *m_result = m_value ? yes : ComFlag{0}; }

    private:
        Com m_result;
        bool m_value = false;
    };
};

template <>
struct Crossing<bool&> : FlagCrossing<VARIANT_BOOL, VARIANT_TRUE> {};
/// A truth that is delivered as a 32-bit number.
struct LongFlag;
template <>
struct Crossing<LongFlag> : FlagCrossing<LONG, 1> {};

template <>
struct Crossing<const std::string&> {
    using Com = BSTR;

    class Outgoing {
    public:
        Outgoing(CBridge&, const std::string& text) : m_text(text) {}
        Com Get() const { return m_text.Get(); }
        void Deliver() {}

    private:
        CBstr m_text;
    };

    class Incoming {
    public:
        Incoming(CBridge&, Com text) : m_text(FromBstr(text)) {}
        bool IsValid() const { return true; }
        const std::string& Get() const { return m_text; }
        void Deliver() {}

    private:
        std::string m_text;
    };
};

template <>
struct Crossing<std::string&> {
    using Com = BSTR*;

    class Outgoing {
    public:
        Outgoing(CBridge&, std::string& result) : m_result(result) {}
        Com Get() { return m_text.Receive(); }
        void Deliver() { m_result = m_text.ToText(); }

    private:
        std::string& m_result;
        CBstr m_text;
    };

    class Incoming {
    public:
        Incoming(CBridge&, Com result) : m_result(result) {
            if (m_result) {
                *m_result = nullptr;
            }
        }
        bool IsValid() const { return m_result != nullptr; }
        std::string& Get() { return m_text; }
        void Deliver() { *m_result = CBstr(m_text).Release(); }

    private:
        Com m_result;
        std::string m_text;
    };
};

/// An identifier is a text in COM, which automation can bring to other apartments.
template <>
struct Crossing<const contract::Guid&> {
    using Com = BSTR;

    class Outgoing {
    public:
        Outgoing(CBridge&, const contract::Guid& identifier) : m_text(FormatGuid(identifier)) {}
        Com Get() const { return m_text.Get(); }
        void Deliver() {}

    private:
        CBstr m_text;
    };

    class Incoming {
    public:
        static constexpr contract::Status kRefusal{E_INVALIDARG};

        Incoming(CBridge&, Com text) : m_identifier(contract::ParseGuid(FromBstr(text))) {}
        bool IsValid() const { return m_identifier.has_value(); }
        const contract::Guid& Get() const { return *m_identifier; }
        void Deliver() {}

    private:
        std::optional<contract::Guid> m_identifier;
    };
};

/// Objects cross as what the bridge makes of them.
template <class Interface>
struct Crossing<const std::shared_ptr<Interface>&> {
    using Com = ComOf<Interface>*;

    class Outgoing {
    public:
        Outgoing(CBridge& bridge, const std::shared_ptr<Interface>& object)
            : m_object(bridge.Export(object)) {}
        Com Get() const { return m_object.Get(); }
        void Deliver() {}

    private:
        ComPtr<ComOf<Interface>> m_object;
    };

    class Incoming {
    public:
        Incoming(CBridge& bridge, Com object) : m_object(bridge.Import<Interface>(object)) {}
        // Whether null is one is for the object that is called to say.
        bool IsValid() const { return true; }
        const std::shared_ptr<Interface>& Get() const { return m_object; }
        void Deliver() {}

    private:
        std::shared_ptr<Interface> m_object;
    };
};

template <class Interface>
struct Crossing<std::shared_ptr<Interface>&> {
    using Com = ComOf<Interface>**;

    class Outgoing {
    public:
        Outgoing(CBridge& bridge, std::shared_ptr<Interface>& result)
            : m_bridge(bridge), m_result(result) {}
        Com Get() { return m_object.GetAddressOf(); }
        void Deliver() { m_result = m_bridge.Import<Interface>(m_object.Get()); }

    private:
        CBridge& m_bridge;
        std::shared_ptr<Interface>& m_result;
        ComPtr<ComOf<Interface>> m_object;
    };

    class Incoming {
    public:
        Incoming(CBridge& bridge, Com result) : m_bridge(bridge), m_result(result) {
            if (m_result) {
                *m_result = nullptr;
            }
        }
        bool IsValid() const { return m_result != nullptr; }
        std::shared_ptr<Interface>& Get() { return m_object; }
        void Deliver() { *m_result = m_bridge.Export(m_object).Detach(); }

    private:
        CBridge& m_bridge;
        Com m_result;
        std::shared_ptr<Interface> m_object;
    };
};

}
