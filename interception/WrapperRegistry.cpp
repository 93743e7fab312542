#include "interception/WrapperRegistry.h"

namespace interception {

std::size_t CWrapperRegistry::LiveWrappers() const {
    const std::lock_guard lock(m_mutex);
    return m_wrappers.size();
}

std::shared_ptr<void> CWrapperRegistry::Find(const Key& key) const {
    const std::lock_guard lock(m_mutex);
    const auto found = m_wrappers.find(key);
    return found == m_wrappers.end() ? nullptr : found->second.lock();
}

std::shared_ptr<void> CWrapperRegistry::Keep(const Key& key, std::shared_ptr<void> made) {
    // A loser of the race ends with `made`, after the lock: its destructor comes back here.
    const std::lock_guard lock(m_mutex);
    std::weak_ptr<void>& entry = m_wrappers[key];
    if (auto winner = entry.lock()) {
        return winner;
    }
    entry = made;
    return made;
}

void CWrapperRegistry::Erase(const Key& key) {
    const std::lock_guard lock(m_mutex);
    const auto found = m_wrappers.find(key);
    // An entry that lives belongs to a successor, made while the caller was already ending.
    if (found != m_wrappers.end() && found->second.expired()) {
        m_wrappers.erase(found);
    }
}

}
