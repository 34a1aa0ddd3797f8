// SPDX-License-Identifier: MIT
#include "ui/parts/accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "ui/parts/command_label.h"
#include "ui/parts/picture.h"
#include "ui/parts/screen.h"

namespace vorlund {
namespace {

/// A command, one of several choices, or a toggle.
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
            // Not at once: a command may wait for the answer to a message box, and the caller with it.
            button_.PressByEvent();
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

private:
    Button& button_;
};

QAccessibleInterface* Describe(const QString&, QObject* object) {
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
    QAccessible::installFactory(&Describe);
}

}  // namespace vorlund
