#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>

/// Runs until a window of the class `type` has been painted, the paint being over, but for no more than two
/// seconds.
class FirstPaint : public QEventLoop {
public:
    explicit FirstPaint(const char* type) : type_(type) {
        qApp->installEventFilter(this);
        QTimer::singleShot(2000, this, &QEventLoop::quit);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->inherits(type_)) {
            QMetaObject::invokeMethod(this, &QEventLoop::quit, Qt::QueuedConnection);
        }
        return false;
    }

private:
    const char* type_;
};

/// Prints a line when the first window has been painted, and lets it stand.
inline int TellPaintAndStay() {
    FirstPaint("QWidget").exec();
    std::puts("painted");
    std::fflush(stdout);
    return QApplication::exec();
}
