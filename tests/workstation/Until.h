#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>

/// Handles events until the condition holds; false when it does not within ten seconds.
template <class Condition>
bool Until(Condition condition) {
    constexpr qint64 kPatienceMs = 10'000;
    QElapsedTimer elapsed;
    elapsed.start();
    while (!condition()) {
        if (elapsed.elapsed() > kPatienceMs) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    return true;
}
