// SPDX-License-Identifier: MIT
#include "ui/windows/frmLoad.h"

#include <QEvent>
#include <QMouseEvent>

#include "savegame/game_name.h"
#include "ui/parts/keys.h"
#include "ui/parts/message_box.h"
#include "ui/windows/title_navigation.h"

namespace vorlund {

frmLoad::frmLoad(GameState& game, const SavedGamesFolder& saves, TitleNavigation& navigation)
    : Screen(nullptr, QStringLiteral("frmLoad"), QStringLiteral("Vorlund - Load Game"), QSize(340, 260)),
      game_(game),
      saves_(saves),
      navigation_(navigation) {
    TextLabel* lbl2 = AddText(QStringLiteral("lbl2"), Face::Heading, QRect(16, 12, 308, 20),
                              "Select a saved game from the list below:");
    flb1_ = new Placed<QListWidget>(this);
    flb1_->setObjectName(QStringLiteral("flb1"));
    flb1_->PlaceAt(QRect(16, 40, 180, 204));
    flb1_->setUniformItemSizes(true);
    flb1_->viewport()->installEventFilter(this);
    flb1_->setAccessibleName(lbl2->text());
    const std::array<const char*, 3> captions{"Load Game", "Delete Game", "Cancel"};
    const std::array<const char*, 3> keys{"Enter", "Delete", ""};
    for (int i = 0; i < 3; ++i) {
        CommandLabel* lblGo = AddCommand(QStringLiteral("lblGo(%1)").arg(i),
                                         QString::fromLatin1(captions[static_cast<std::size_t>(i)]),
                                         QRect(212, 56 + 40 * i, 112, 19));
        lblGo->setFocusPolicy(Qt::TabFocus);
        lblGo->SetKey(QString::fromLatin1(keys[static_cast<std::size_t>(i)]));
        connect(lblGo, &CommandLabel::clicked, this, [this, i] { CallLoad(i); });
    }
    LightOneAtATime();
    FillList();
    flb1_->setFocus();
}

void frmLoad::FillList() {
    flb1_->clear();
    const SavedGamesList list = saves_.List();
    for (const std::string& file : list.Files) {
        // The name as it is on the disk goes along: not every name of bytes is one of characters.
        auto* item = new QListWidgetItem(QString::fromStdString(file), flb1_);
        item->setData(Qt::UserRole, QByteArray::fromStdString(file));
    }
    // Said to the view itself: otherwise the keyboard's coming makes the first game the current one without
    // selecting it, and an arrow key would step over it.
    flb1_->setCurrentIndex({});
    if (list.Error) {
        // Not before the window is there
        QMetaObject::invokeMethod(
            this, [this, why = *list.Error] { Exclaim(this, why); }, Qt::QueuedConnection);
    }
}

std::optional<std::string> frmLoad::Selected() const {
    const auto items = flb1_->selectedItems();
    return items.isEmpty() ? std::nullopt
                           : std::optional(items.front()->data(Qt::UserRole).toByteArray().toStdString());
}

void frmLoad::CallLoad(int index) {
    switch (index) {
        case 0:
            Load();
            break;
        case 1:
            Delete();
            break;
        default:
            close();
    }
}

void frmLoad::Load() {
    const auto file = Selected();
    if (!file) {
        return;
    }
    const auto loaded = saves_.Load(*file, game_);
    if (std::holds_alternative<NoSuchGame>(loaded)) {
        return;
    }
    if (const auto* error = std::get_if<LoadError>(&loaded)) {
        Exclaim(this, error->Message);
        return;
    }
    game_ = std::get<GameState>(loaded);
    navigation_.OpenBoard();
}

void frmLoad::Delete() {
    const auto file = Selected();
    if (!file || !Ask(this, DeleteQuestion(*file), QStringLiteral("Confirm Delete"))) {
        return;
    }
    if (const auto error = saves_.Delete(*file)) {
        Exclaim(this, *error);
    }
    FillList();
}

bool frmLoad::CloseRequested() {
    navigation_.BackToTitle();
    return true;
}

void frmLoad::keyPressEvent(QKeyEvent* event) {
    // Keys that the list leaves to the window
    if (IsEnter(*event)) {
        CallLoad(0);
    } else if (event->key() == Qt::Key_Delete) {
        CallLoad(1);
    } else {
        Screen::keyPressEvent(event);
    }
}

bool frmLoad::eventFilter(QObject* watched, QEvent* event) {
    // A game is loaded when the button of a double click is let go, so that the release hits no window
    // behind.
    if (event->type() == QEvent::MouseButtonDblClick) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        DoubleClicked_ = mouse->button() == Qt::LeftButton && flb1_->itemAt(mouse->pos()) != nullptr;
    } else if (event->type() == QEvent::MouseButtonRelease && DoubleClicked_) {
        DoubleClicked_ = false;
        // Not from within the list's own handling of the release: the load may end with this window closed.
        QMetaObject::invokeMethod(
            this, [this] { CallLoad(0); }, Qt::QueuedConnection);
    }
    return Screen::eventFilter(watched, event);
}

}  // namespace vorlund
