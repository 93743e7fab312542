#pragma once

#include <atomic>

namespace component {

/// What keeps the library loaded: the objects that it has handed out and the locks of its hosts.
class CModuleUse {
public:
    bool IsInUse() const { return m_objects != 0 || m_locks != 0; }

    void Lock() { ++m_locks; }
    /// False when there is no lock to take back.
    bool Unlock();

private:
    friend class CUse;

    std::atomic<int> m_objects = 0;
    std::atomic<int> m_locks = 0;
};

/// One object that is in use for as long as this lives.
class CUse {
public:
    explicit CUse(CModuleUse& module) : m_module(module) { ++m_module.m_objects; }
    ~CUse() { --m_module.m_objects; }
    CUse(const CUse&) = delete;
    CUse& operator=(const CUse&) = delete;

private:
    CModuleUse& m_module;
};

}
