// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <functional>
#include <utility>

/// An event loop that runs until a window of the class `type` has been painted, two seconds at most. `then`
/// is called by a queued call right after the paint event.
class FirstPaint : public QEventLoop {
public:
    FirstPaint(const char* type, std::function<void()> then) : type_(type), then_(std::move(then)) {
        qApp->installEventFilter(this);
        QTimer::singleShot(2000, this, &QEventLoop::quit);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->inherits(type_)) {
            qApp->removeEventFilter(this);
            QMetaObject::invokeMethod(
                this,
                [this] {
                    then_();
                    quit();
                },
                Qt::QueuedConnection);
        }
        return false;
    }

private:
    const char* type_;
    std::function<void()> then_;
};

/// Prints a line when the first window has been painted, and runs on.
inline int TellPaintAndStay() {
    FirstPaint("QWidget", [] {
        std::puts("painted");
        std::fflush(stdout);
    }).exec();
    return QApplication::exec();
}
