// SPDX-License-Identifier: MIT
#include "ui/windows/frmLoad.h"

#include <QEvent>
#include <QMouseEvent>

#include "savegame/game_name.h"
#include "ui/parts/keys.h"
#include "ui/parts/message_box.h"
#include "ui/parts/scroll_bars.h"
#include "ui/windows/title_navigation.h"

namespace vorlund {

using namespace Qt::StringLiterals;

frmLoad::frmLoad(GameState& game, const SavedGamesFolder& saves, TitleNavigation& navigation)
    : Screen(nullptr, u"frmLoad"_s, u"Vorlund - Load Game"_s, QSize(340, 260)),
      game_(game),
      saves_(saves),
      navigation_(navigation) {
    TextLabel* lbl2 =
        AddText(u"lbl2"_s, Face::Heading, QRect(16, 12, 308, 20), "Select a saved game from the list below:");
    flb1_ = new Placed<QListWidget>(this);
    flb1_->setObjectName(u"flb1"_s);
    flb1_->PlaceAt(QRect(16, 40, 180, 204));
    flb1_->setUniformItemSizes(true);
    QPalette colours = flb1_->palette();
    colours.setColor(QPalette::Base, Qt::white);
    colours.setColor(QPalette::Text, Qt::black);
    flb1_->setPalette(colours);
    DressScrollBar(*flb1_);
    flb1_->viewport()->installEventFilter(this);
    flb1_->setAccessibleName(lbl2->text());
    const std::array captions{u"Load Game"_s, u"Delete Game"_s, u"Cancel"_s};
    const std::array keys{u"Enter"_s, u"Delete"_s, QString()};
    for (int i = 0; i < 3; ++i) {
        CommandLabel* lblGo = AddCommand(u"lblGo(%1)"_s.arg(i), captions[static_cast<std::size_t>(i)],
                                         QRect(212, 56 + 40 * i, 112, 19));
        lblGo->SetKey(keys[static_cast<std::size_t>(i)]);
        connect(lblGo, &CommandLabel::clicked, this, [this, i] { CallLoad(i); });
        lblGo_[static_cast<std::size_t>(i)] = lblGo;
    }
    empty_ = AddText(u"empty"_s, Face::Caption, QRect(24, 46, 164, 20), "There are no saved games.");
    QPalette dark = empty_->palette();
    dark.setColor(QPalette::WindowText, Qt::black);
    empty_->setPalette(dark);
    connect(flb1_, &QListWidget::itemSelectionChanged, this, &frmLoad::OfferCommands);
    HoverOneAtATime();
    FillList();
    flb1_->setFocus();
}

void frmLoad::FillList() {
    flb1_->clear();
    const SavedGamesList list = saves_.List();
    for (const std::string& file : list.Files) {
        // Keep the bytes of the file name: they need not be UTF-8, so the text may not convert back.
        auto* item = new QListWidgetItem(QString::fromStdString(file), flb1_);
        item->setData(Qt::UserRole, QByteArray::fromStdString(file));
    }
    // An explicit invalid index: otherwise the list makes its first row current, but not selected, when it
    // gets the focus, and the first arrow key would skip that row.
    flb1_->setCurrentIndex({});
    empty_->setVisible(list.Files.empty() && !list.Error);
    OfferCommands();
    if (list.Error) {
        // Queued: the window is not shown yet
        QMetaObject::invokeMethod(
            this, [this, why = *list.Error] { Exclaim(this, why); }, Qt::QueuedConnection);
    }
}

void frmLoad::OfferCommands() {
    for (CommandLabel* command : {lblGo_[0], lblGo_[1]}) {
        command->SetAvailable(Selected().has_value(), u"Select a saved game first."_s);
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
        lblGo_[0]->TellWhyNot();
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
    lblGo_[1]->TellWhyNot();
    if (!file || !Ask(this, DeleteQuestion(*file), u"Confirm Delete"_s)) {
        return;
    }
    if (const auto error = saves_.Delete(*file)) {
        Exclaim(this, *error);
    }
    FillList();
}

bool frmLoad::HandleCloseRequest() {
    navigation_.BackToTitle();
    return true;
}

void frmLoad::keyPressEvent(QKeyEvent* event) {
    // Keys that the list ignores
    if (IsEnter(*event)) {
        CallLoad(0);
    } else if (event->key() == Qt::Key_Delete) {
        CallLoad(1);
    } else {
        Screen::keyPressEvent(event);
    }
}

bool frmLoad::eventFilter(QObject* watched, QEvent* event) {
    // Load on the release that ends a double click, not on its press: the load closes this window, and the
    // release would go to the window below.
    if (event->type() == QEvent::MouseButtonDblClick) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        DoubleClicked_ = mouse->button() == Qt::LeftButton && flb1_->itemAt(mouse->pos()) != nullptr;
    } else if (event->type() == QEvent::MouseButtonRelease && DoubleClicked_) {
        DoubleClicked_ = false;
        // Queued: the list must finish handling the release before this window closes.
        QMetaObject::invokeMethod(
            this, [this] { CallLoad(0); }, Qt::QueuedConnection);
    }
    return Screen::eventFilter(watched, event);
}

}  // namespace vorlund
