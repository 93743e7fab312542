#pragma once

#include <cstdint>
#include <string_view>

namespace simulator {

/// What a name in a description stands for.
struct NamedValue {
    std::string_view name;
    std::int64_t value;
};

}
