#include "ui/parts/accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "ui/parts/command_label.h"
#include "ui/parts/picture.h"
#include "ui/parts/screen.h"

namespace vorlund {
namespace {

/// A command, or one of several choices.
class AccessibleCommand final : public QAccessibleWidget {
public:
    explicit AccessibleCommand(CommandLabel& command) : QAccessibleWidget(&command), command_(command) {}

    QAccessible::Role role() const override {
        return command_.isCheckable() ? QAccessible::RadioButton : QAccessible::Button;
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = command_.isCheckable();
        state.checked = command_.isChecked();
        return state;
    }

    QString text(QAccessible::Text what) const override {
        if (what == QAccessible::Name) {
            return command_.text().remove(u'&');
        }
        return what == QAccessible::Accelerator ? command_.Key() : QAccessibleWidget::text(what);
    }

    QStringList actionNames() const override {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& action) override {
        if (action == pressAction()) {
            // Later, because a command may wait for the answer to a message box, and who pressed it with it.
            QMetaObject::invokeMethod(&command_, &CommandLabel::click, Qt::QueuedConnection);
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

private:
    CommandLabel& command_;
};

QAccessibleInterface* Describe(const QString&, QObject* object) {
    if (auto* command = qobject_cast<CommandLabel*>(object)) {
        return new AccessibleCommand(*command);
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
