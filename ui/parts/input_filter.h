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

/// An event filter on the application that drops key repeats and second clicks which would act on a window
/// that the first press has just opened or uncovered. The application has one.
///
/// Key repeats are delivered only to the window of the first press: navigation keys always, editing keys
/// while the field that had the focus then still has it. Enter, Escape, accelerators, and letters and Space
/// outside fields never repeat. Many X servers report a repeat not as such but as a release and a press with
/// the same time stamp.
///
/// The second press of a double click is dropped, with its release, unless it hits the same control as the
/// first one and that has not been hidden, disabled or presented again in between.
class InputFilter final : public QObject {
    Q_OBJECT

public:
    InputFilter();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Key {
        QPointer<QWindow> Window;  ///< of the first press
        QPointer<QWidget> Focus;   ///< the focus widget then
        bool Released = false;
        ulong ReleaseTime = 0;
    };
    struct Press {
        QPointer<QWidget> Target;
        int Presented = 0;  ///< Screen::TimesPresented of its window
        Qt::MouseButton Button = Qt::NoButton;
        QPoint Place;
        ulong Time = 0;
        bool Dropped = false;
    };

    bool ShouldDrop(QWindow& window, const QKeyEvent& event);
    bool ShouldDrop(QWindow& window, const QMouseEvent& event);

    QHash<quint64, Key> keys_;
    Press press_;
};

}  // namespace vorlund
