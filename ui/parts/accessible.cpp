// SPDX-License-Identifier: MIT
#include "ui/parts/accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "ui/parts/command_label.h"
#include "ui/parts/picture.h"
#include "ui/parts/screen.h"

namespace vorlund {
namespace {

/// Reports a button as a push button, a radio button or a check box, and posts its press instead of running
/// it.
class AccessibleButton final : public QAccessibleWidget {
public:
    explicit AccessibleButton(Button& button) : QAccessibleWidget(&button), button_(button) {}

    QAccessible::Role role() const override {
        if (!button_.isCheckable()) {
            return QAccessible::Button;
        }
        return button_.autoExclusive() ? QAccessible::RadioButton : QAccessible::CheckBox;
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = button_.isCheckable();
        state.checked = button_.isChecked();
        return state;
    }

    QString text(QAccessible::Text what) const override {
        if (const auto* command = qobject_cast<const CommandLabel*>(&button_)) {
            if (what == QAccessible::Name) {
                return command->text().remove(u'&');
            }
            if (what == QAccessible::Accelerator) {
                return command->Key();
            }
        }
        return QAccessibleWidget::text(what);
    }

    QStringList actionNames() const override {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& action) override {
        if (action == pressAction()) {
            // Posted: a command may open a message box, and the caller on the bus would block until it is
            // answered.
            button_.PressByEvent();
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

private:
    Button& button_;
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
    if (auto* button = qobject_cast<Button*>(object)) {
        return new AccessibleButton(*button);
    }
    if (auto* screen = qobject_cast<Screen*>(object)) {
        return new QAccessibleWidget(screen, screen->Role());
    }
    if (auto* picture = dynamic_cast<PictureLabel*>(object)) {
        return new QAccessibleWidget(picture, QAccessible::Graphic);
    }
    return nullptr;
}

}  // namespace

void DescribeScreensToAssistiveTechnology() {
    QAccessible::installFactory(&MakeInterface);
}

}  // namespace vorlund
