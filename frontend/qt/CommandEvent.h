#pragma once

#include <QCoreApplication>
#include <QEvent>

namespace qt {

/// Sent to a button of a view, or to the dialog that is to be closed, before the press becomes a
/// command, whatever it came from: mouse, keyboard or an accessibility tool. An event filter that
/// ignores it drops the command.
///
/// For hosts that handle events while the panel waits for a device: input can be thrown away before
/// it reaches a button, but an accessibility tool presses a button without any. A plain number,
/// since host and panel may be built apart.
inline constexpr auto kCommandEvent = static_cast<QEvent::Type>(QEvent::User + 226);

/// Sends it; returns whether nobody objects to the command. User-interface thread only.
inline bool MayCommand(QObject& source) {
    QEvent request(kCommandEvent);
    QCoreApplication::sendEvent(&source, &request);
    return request.isAccepted();
}

}
