#pragma once

#include "contract/host/MessageService.h"

#include <cstdint>

class QWidget;

namespace workstation {

/// The workstation's message boxes: text, icon and buttons, and for a status other than 0 the
/// status and what the failing call said, folded away until the user wants to see or copy them.
///
/// Escape and the close box answer a question with No. Styles with buttons that no message of the
/// panel has (other than OK, OK and Cancel, Yes and No with or without Cancel) fail with
/// contract::kUnspecifiedFailure. The numeric owner and the show flag mean nothing here.
/// User-interface thread only.
class CMessageService final : public contract::IMessageService {
public:
    /// Boxes stand in front of `window`, or of the dialog that is open over it. It must outlive the
    /// service.
    explicit CMessageService(QWidget& window) : m_window(window) {}

    contract::Status ShowMessage(const contract::Message& message, std::int32_t& button) override;

private:
    QWidget& m_window;
};

}
