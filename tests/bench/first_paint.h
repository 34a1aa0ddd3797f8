#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

/// Ends the process at the first paint; or, when told to, prints its memory in KiB a second later and ends
/// then.
class FirstPaint : public QObject {
public:
    explicit FirstPaint(bool memory) : memory_(memory) {}

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            if (!memory_) {
                QTimer::singleShot(0, [] { std::_Exit(0); });
            } else if (!asked_) {
                asked_ = true;
                QTimer::singleShot(1000, &FirstPaint::TellMemory);
            }
        }
        return false;
    }

private:
    static void TellMemory() {
        QFile file(QStringLiteral("/proc/self/smaps_rollup"));
        if (file.open(QIODevice::ReadOnly)) {
            for (QByteArray line = file.readLine(); !line.isEmpty(); line = file.readLine()) {
                if (line.startsWith("Pss:")) {
                    std::printf("%s\n", line.mid(4).simplified().split(' ').first().constData());
                }
            }
        }
        std::fflush(stdout);
        std::_Exit(0);
    }

    bool memory_;
    bool asked_ = false;
};
