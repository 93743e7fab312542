#include "simulator/DescriptionError.h"

#include "simulator/folder/MessageText.h"
#include "simulator/folder/SystemPath.h"

namespace simulator {

std::string DescriptionError::Message() const {
    const auto place = line == 0 ? "" : ":" + std::to_string(line);
    return EscapeForMessage(TextOfPath(file)) + place + ": " + reason;
}

}
