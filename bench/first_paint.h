// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <functional>
#include <utility>

/// Runs until a window of the class `type` has been painted, but for no more than two seconds; `then` is done
/// right behind the paint, before anything else that waits.
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

/// Prints a line when the first window has been painted, and lets it stand.
inline int TellPaintAndStay() {
    FirstPaint("QWidget", [] {
        std::puts("painted");
        std::fflush(stdout);
    }).exec();
    return QApplication::exec();
}
