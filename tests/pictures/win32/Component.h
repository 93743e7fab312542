#pragma once

#include "component/win32/com/ComApi.h"

#include <filesystem>
#include <memory>
#include <type_traits>

namespace pictures {

/// The component, loaded from its file without being registered. It stays loaded, whatever still
/// lives in it, until this ends.
class CComponent {
public:
    /// Throws std::runtime_error when it cannot be loaded or offers no class factory.
    explicit CComponent(const std::filesystem::path& file);

    /// A new control, made by the class factory. Throws std::runtime_error when there is none.
    component::ComPtr<IOleObject> MakeControl() const;

private:
    struct LibraryEnd {
        void operator()(HMODULE library) const { FreeLibrary(library); }
    };

    const std::unique_ptr<std::remove_pointer_t<HMODULE>, LibraryEnd> m_library;
    component::ComPtr<IClassFactory> m_factory;
};

}
