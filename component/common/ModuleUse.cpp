#include "component/common/ModuleUse.h"

namespace component {

bool CModuleUse::Unlock() {
    int locks = m_locks;
    while (locks > 0) {
        if (m_locks.compare_exchange_weak(locks, locks - 1)) {
            return true;
        }
    }
    return false;
}

}
