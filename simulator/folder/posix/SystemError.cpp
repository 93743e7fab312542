#include "simulator/folder/SystemError.h"

namespace simulator {

std::string MessageOf(const std::error_code& error) { return error.message(); }

}
