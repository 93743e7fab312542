#pragma once

#include "interception/Interceptor.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <typeindex>
#include <unordered_map>
#include <utility>

namespace interception {

class CWrapperRegistry;

/// What all wrappers have in common: the registry that they were made by, which they keep alive.
class CWrapper {
public:
    CWrapper(const CWrapper&) = delete;
    CWrapper& operator=(const CWrapper&) = delete;

    bool BelongsTo(const CWrapperRegistry& registry) const { return m_registry.get() == &registry; }

protected:
    explicit CWrapper(std::shared_ptr<CWrapperRegistry> registry)
        : m_registry(std::move(registry)) {}
    virtual ~CWrapper() = default;

    CWrapperRegistry& Registry() const { return *m_registry; }

private:
    std::shared_ptr<CWrapperRegistry> m_registry;
};

/// Makes wrappers and finds them again. Holds them weakly; each says goodbye as it ends. May be
/// used from several threads at once.
class CWrapperRegistry : public std::enable_shared_from_this<CWrapperRegistry> {
public:
    explicit CWrapperRegistry(std::shared_ptr<IInterceptor> interceptor)
        : m_interceptor(std::move(interceptor)) {}

    IInterceptor& Interceptor() const { return *m_interceptor; }

    /// The wrapper of `object`, made by MakeForwarder (Forwarders.h) unless it lives already. Null
    /// and wrappers of this registry come back as they are.
    template <class Interface>
    std::shared_ptr<Interface> Wrap(const std::shared_ptr<Interface>& object) {
        if (!object) {
            return nullptr;
        }
        const Key key = KeyOf(object);
        if (auto existing = Find(key)) {
            return std::static_pointer_cast<Interface>(existing);
        }
        if (const auto* wrapper = dynamic_cast<const CWrapper*>(object.get());
            wrapper && wrapper->BelongsTo(*this)) {
            return object;
        }
        return std::static_pointer_cast<Interface>(
            Keep(key, MakeForwarder(shared_from_this(), object)));
    }

    /// Removes the wrapper of `object`; called by its destructor, while it still holds `object`.
    template <class Interface>
    void Forget(const std::shared_ptr<Interface>& object) {
        Erase(KeyOf(object));
    }

    std::size_t LiveWrappers() const;

private:
    /// The interface is part of the key since one address may be that of two interfaces, an object
    /// and its first member.
    struct Key {
        const void* address;
        std::type_index interfaceType;

        bool operator==(const Key&) const = default;
    };
    struct KeyHash {
        std::size_t operator()(const Key& key) const {
            return std::hash<const void*>()(key.address) ^ key.interfaceType.hash_code();
        }
    };

    template <class Interface>
    static Key KeyOf(const std::shared_ptr<Interface>& object) {
        return {object.get(), typeid(Interface)};
    }

    std::shared_ptr<void> Find(const Key& key) const;
    /// Enters `made` unless another thread was faster; returns the one that is entered.
    std::shared_ptr<void> Keep(const Key& key, std::shared_ptr<void> made);
    void Erase(const Key& key);

    const std::shared_ptr<IInterceptor> m_interceptor;
    mutable std::mutex m_mutex;
    std::unordered_map<Key, std::weak_ptr<void>, KeyHash> m_wrappers;
};

}
