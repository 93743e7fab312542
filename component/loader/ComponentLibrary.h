#pragma once

#include "contract/panel/Panel.h"
#include "contract/panel/PanelFactory.h"

#include <memory>
#include <stdexcept>
#include <string>

namespace component {

/// A component that cannot be had; what() is a sentence for the user that says what to do.
class ComponentUnavailable : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A component's library, loaded for the rest of the process: what came from it may live on in
/// places that nobody counts, a toolkit's registrations among them.
class CComponentLibrary {
public:
    /// Throws ComponentUnavailable when the file cannot be loaded.
    explicit CComponentLibrary(const std::string& file);

    // The entry points; each throws ComponentUnavailable when the library lacks it.

    contract::Status Register() const;
    contract::Status Unregister() const;
    contract::Status GetFactory(const contract::Guid& classIdentifier,
                                std::shared_ptr<contract::IPanelFactory>& factory) const;
    /// kSuccess when nothing of it is in use.
    contract::Status CanUnloadNow() const;

private:
    template <class Function>
    Function* Find(const char* name) const;

    const std::string m_file;
    void* const m_library;
};

/// Makes a panel of the component with that program identifier, as the machine's catalogue names
/// it. Throws ComponentUnavailable.
std::shared_ptr<contract::IPanel> CreatePanel(const std::string& programIdentifier);

}
