#include "component/win32/com/ComObject.h"

namespace component {

CModuleUse& Module() {
    static CModuleUse module;
    return module;
}

}
