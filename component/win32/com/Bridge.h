#pragma once

#include "component/win32/com/InterfacePairs.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <typeindex>
#include <unordered_map>

namespace component {

/// Where the contract meets COM: makes what stands for an object on the other side, and finds it
/// again, so that comparing references compares objects. One for each panel, or for each host; its
/// objects are used in the apartment that it was made in.
class CBridge : public std::enable_shared_from_this<CBridge> {
public:
    bool IsOnItsThread() const { return GetCurrentThreadId() == m_thread; }

    /// The object of the contract that calls `object`. Null for null. What stands for one object of
    /// COM (by its IUnknown) is one object for each interface, for as long as it lives.
    template <class Interface>
    std::shared_ptr<Interface> Import(ComOf<Interface>* object) {
        if (!object) {
            return nullptr;
        }
        const Key key{IdentityOf(object), typeid(Interface)};
        if (auto living = m_imports[key].lock()) {
            return std::static_pointer_cast<Interface>(living);
        }
        const auto made = MakeImport(shared_from_this(), ComPtr<ComOf<Interface>>(object),
                                     static_cast<const Interface*>(nullptr));
        m_imports[key] = made;
        return made;
    }

    /// The object of COM that calls `object`. Null for null. One for each object and interface, for
    /// as long as it lives; for an object that has a face, the face's interface.
    template <class Interface>
    ComPtr<ComOf<Interface>> Export(const std::shared_ptr<Interface>& object) {
        ComPtr<ComOf<Interface>> exported;
        if (!object) {
            return exported;
        }
        const Key key = ExportKey(*object);
        if (const auto face = m_faces.find(key.object); face != m_faces.end()) {
            face->second->QueryInterface(IID_PPV_ARGS(exported.GetAddressOf()));
        } else if (const auto living = m_exports.find(key); living != m_exports.end()) {
            exported = static_cast<ComOf<Interface>*>(living->second);
        } else {
            exported = MakeExport(shared_from_this(), object, nullptr);
            m_exports[key] = exported.Get();
        }
        return exported;
    }

    /// From now on `face`, which outlives the bridge's other objects, stands for `object` in COM.
    template <class Object>
    void SetFace(const Object& object, IUnknown& face) {
        m_faces[dynamic_cast<const void*>(&object)] = &face;
    }
    void RemoveFaces() { m_faces.clear(); }

    /// What an import or an export says as it ends.
    template <class Interface>
    void ForgetImport(IUnknown* object) {
        const auto found = m_imports.find({IdentityOf(object), typeid(Interface)});
        // Another one may have taken its place while this one ended.
        if (found != m_imports.end() && found->second.expired()) {
            m_imports.erase(found);
        }
    }
    template <class Interface>
    void ForgetExport(const Interface& object) {
        m_exports.erase(ExportKey(object));
    }

    /// The one `Kept` beside `object`: found again for as long as somebody holds it, forgotten
    /// then.
    template <class Kept>
    std::shared_ptr<Kept> KeepBeside(const void* object) {
        const Key key{object, typeid(Kept)};
        if (const auto found = m_kept.find(key); found != m_kept.end()) {
            return std::static_pointer_cast<Kept>(found->second.lock());
        }
        const std::shared_ptr<Kept> kept(new Kept(), [key, weak = weak_from_this()](Kept* ended) {
            if (const auto self = weak.lock()) {
                self->m_kept.erase(key);
            }
            delete ended;
        });
        m_kept[key] = kept;
        return kept;
    }

    std::size_t LiveImports() const { return m_imports.size(); }
    std::size_t LiveExports() const { return m_exports.size(); }
    std::size_t LiveKept() const { return m_kept.size(); }

private:
    struct Key {
        const void* object;
        std::type_index interfaceType;

        bool operator==(const Key&) const = default;
    };
    struct KeyHash {
        std::size_t operator()(const Key& key) const {
            return std::hash<const void*>()(key.object) ^ key.interfaceType.hash_code();
        }
    };

    /// What COM compares objects by; the interface itself of an object that breaks the rules.
    static const void* IdentityOf(IUnknown* object);

    template <class Interface>
    static Key ExportKey(const Interface& object) {
        return {dynamic_cast<const void*>(&object), typeid(Interface)};
    }

    const DWORD m_thread = GetCurrentThreadId();
    std::unordered_map<Key, std::weak_ptr<void>, KeyHash> m_imports;
    // Not held; each says goodbye as it ends.
    std::unordered_map<Key, void*, KeyHash> m_exports;
    std::unordered_map<const void*, IUnknown*> m_faces;
    std::unordered_map<Key, std::weak_ptr<void>, KeyHash> m_kept;
};

}
