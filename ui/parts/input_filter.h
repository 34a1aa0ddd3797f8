// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <QWindow>

class QKeyEvent;
class QMouseEvent;

namespace vorlund {

/// One for the application, on which it installs itself: what the players' hands do twice without meaning it
/// is dropped before a window sees it.
///
/// A key that is held acts once. Its repeats move within the window in which it went down, and type into the
/// field that had the focus then; Enter, Escape, accelerators, and letters and Space outside fields do not
/// repeat. Many X servers report a repeat as an ordinary release and press with one time stamp.
///
/// The second press of a double click, and its release, do nothing when the first one went to another window
/// or control, or to one that has been hidden, disabled or presented anew since.
class InputFilter final : public QObject {
    Q_OBJECT

public:
    InputFilter();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Key {
        QPointer<QWindow> Window;  // where it went down
        QPointer<QWidget> Focus;   // what had the focus then
        bool Released = false;
        ulong ReleaseTime = 0;
    };
    struct Press {
        QPointer<QWidget> Target;
        int Presented = 0;  // how often the window had been presented
        Qt::MouseButton Button = Qt::NoButton;
        QPoint Place;
        ulong Time = 0;
        bool Dropped = false;
    };

    bool Drops(QWindow& window, const QKeyEvent& event);
    bool Drops(QWindow& window, const QMouseEvent& event);

    QHash<quint64, Key> keys_;
    Press press_;
};

}  // namespace vorlund
