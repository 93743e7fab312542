#pragma once

#include <QFileDialog>
#include <QStringList>
#include <QWidget>

namespace qttests {

/// A mouse and a keyboard of the X server that the tests run on, moved by xdotool: everything takes
/// the way of real input, from the server to the widget.
///
/// Each returns when the server has taken the input; what it leads to comes a little later, so
/// tests wait for it.
class CRealHands {
public:
    /// Clicks that place of a widget: button 1 left, 3 right, 4 and 5 the wheel.
    void Click(const QWidget& widget, QPoint place, int button = 1) const;
    void Click(const QWidget& widget) const { Click(widget, widget.rect().center()); }
    /// The same with a key held, by its name ("shift", "ctrl").
    void ClickHolding(const QString& key, const QWidget& widget, QPoint place) const;
    /// A key or combination by its name ("F1", "Tab", "alt+h").
    void PressKey(const QString& key) const;
    /// Types letters, digits and signs.
    void Type(const QString& text) const;
    /// Types it in the place of the name that an active file dialog shows.
    void TypeFileName(const QFileDialog& dialog, const QString& path) const;
    /// Asks a window to close, as window managers do for Alt+F4 and for the button in its title.
    void RequestClose(const QWidget& window) const;
    /// Makes a window the active one, as a click on its title would if there were a window manager.
    void Activate(QWidget& window) const;

private:
    void Run(const QStringList& arguments) const;
};

}
