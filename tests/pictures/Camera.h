#pragma once

#include <QString>

class QWidget;

namespace pictures {

/// Takes pictures of windows, at their natural size, into one folder.
class CCamera {
public:
    explicit CCamera(QString folder) : m_folder(std::move(folder)) {}

    /// Writes NAME.png: the window with a plain frame and its title, as a window manager would add
    /// them; a menu, which has neither, as it is. Throws std::runtime_error when it cannot.
    void Take(QWidget& window, const QString& name) const;

private:
    QString m_folder;
};

}
