// SPDX-License-Identifier: MIT
#include "ui/parts/announcement.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QApplication>
#include <QWidget>

namespace vorlund {

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)

void Announce(QWidget& where, const QString& text) {
    QAccessibleAnnouncementEvent event(&where, text);
    QAccessible::updateAccessibility(&event);
}

#else

namespace {

/// How many of a window's announcements are kept for screen readers, which read them later.
constexpr int MostKept = 8;

/// An invisible object that exists for its accessibility interface alone. The name of that is the objectName.
class Announcement final : public QObject {
    using QObject::QObject;
};

class AccessibleAnnouncement final : public QAccessibleObject {
public:
    explicit AccessibleAnnouncement(Announcement& announcement)
        : QAccessibleObject(&announcement), announcement_(announcement) {}

    // Not its window, which a screen reader would read out before the announcement as its context
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(qApp); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }
    QString text(QAccessible::Text what) const override {
        return what == QAccessible::Name ? announcement_.objectName() : QString();
    }

private:
    const Announcement& announcement_;
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
    auto* announcement = dynamic_cast<Announcement*>(object);
    return announcement != nullptr ? new AccessibleAnnouncement(*announcement) : nullptr;
}

}  // namespace

// Without announcement events in the toolkit: screen readers say the name of a notification that appears.
void Announce(QWidget& where, const QString& text) {
    QAccessible::installFactory(&MakeInterface);  // once, however often it is called
    QObjectList earlier;
    for (QObject* child : where.window()->children()) {
        if (dynamic_cast<Announcement*>(child) != nullptr) {
            earlier << child;
        }
    }
    if (earlier.size() >= MostKept) {
        delete earlier.front();
    }
    auto* announcement = new Announcement(where.window());
    announcement->setObjectName(text);
    QAccessibleEvent shown(announcement, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}

#endif

}  // namespace vorlund
