// SPDX-License-Identifier: MIT
#include "ui/windows/map_cursor.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <algorithm>

#include "state/world.h"
#include "ui/parts/keys.h"
#include "ui/parts/placed.h"
#include "ui/windows/map_walk.h"
#include "ui/windows/territory_text.h"

namespace vorlund {

using namespace Qt::StringLiterals;

/// The widget that has the focus while the cursor is on its territory. The board paints the territory's rim.
class TerritorySpot final : public Placed<QWidget> {
public:
    TerritorySpot(QWidget* board, const GameState& game, int territory)
        : Placed(board), game_(game), territory_(territory) {
        constexpr QRect aroundMarker(-14, -2, 28, 28);  // in pixels of the layout
        const WorldEntry& entry = World[static_cast<std::size_t>(territory)];
        setObjectName(u"spot(%1)"_s.arg(territory));
        PlaceAt(aroundMarker.translated(entry.MapX, entry.MapY));
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    QString Description() const { return DescriptionInOneLine(game_, territory_); }

private:
    const GameState& game_;
    int territory_;
};

namespace {

constexpr qint64 DigitTimeout = 1000;  ///< milliseconds for the second digit of a number

class AccessibleSpot final : public QAccessibleWidget {
public:
    explicit AccessibleSpot(TerritorySpot& spot)
        : QAccessibleWidget(&spot, QAccessible::ListItem), spot_(spot) {}

    QString text(QAccessible::Text what) const override {
        return what == QAccessible::Name ? spot_.Description() : QString();
    }

private:
    TerritorySpot& spot_;
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
    auto* spot = dynamic_cast<TerritorySpot*>(object);
    return spot != nullptr ? new AccessibleSpot(*spot) : nullptr;
}

}  // namespace

MapCursor::MapCursor(QWidget& board, const GameState& game) : board_(board), game_(game) {
    QAccessible::installFactory(&MakeInterface);
    for (int t = 0; t < NumTerritories; ++t) {
        spots_[static_cast<std::size_t>(t)] = new TerritorySpot(&board, game, t);
    }
    spots_.front()->setFocusPolicy(Qt::TabFocus);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* before, const QWidget* now) {
        if (dynamic_cast<const TerritorySpot*>(before) != nullptr ||
            dynamic_cast<const TerritorySpot*>(now) != nullptr) {
            last_ = Focused() ? Focused() : last_;
            emit Moved();
        }
    });
}

std::optional<int> MapCursor::Focused() const {
    const auto spot = std::find_if(spots_.begin(), spots_.end(), [](auto* s) { return s->hasFocus(); });
    return spot == spots_.end() ? std::nullopt : std::optional(static_cast<int>(spot - spots_.begin()));
}

void MapCursor::MoveTo(std::optional<int> territory) {
    if (!territory) {
        QApplication::beep();
        return;
    }
    for (TerritorySpot* spot : spots_) {
        spot->setFocusPolicy(Qt::NoFocus);
    }
    TerritorySpot* spot = spots_[static_cast<std::size_t>(*territory)];
    spot->setFocusPolicy(Qt::TabFocus);
    spot->setFocus();
}

void MapCursor::EnterDigit(int digit) {
    const bool second = sinceDigit_.isValid() && sinceDigit_.elapsed() < DigitTimeout;
    const int both = 10 * typed_ + digit;
    const int number = second && both <= NumTerritories ? both : digit;
    typed_ = number < 10 ? number : 0;
    sinceDigit_.start();
    MoveTo(number > 0 ? std::optional(number - 1) : std::nullopt);
}

std::optional<int> MapCursor::NextOwn(int by) const {
    int t = last_.value_or(by > 0 ? NumTerritories - 1 : 0);
    for (int steps = 0; steps < NumTerritories; ++steps) {
        t = (t + by + NumTerritories) % NumTerritories;
        const Territory& territory = game_.TerritoryAt(t);
        if (territory.Occupied && territory.Owner == game_.CurrentPlayer) {
            return t;
        }
    }
    return std::nullopt;
}

bool MapCursor::HandleKey(const QKeyEvent& event) {
    if (!IsPlain(event)) {
        return false;
    }
    const int key = event.key();
    const QString text = event.text();
    if (text.size() == 1 && text[0] >= u'0' && text[0] <= u'9') {
        EnterDigit(text[0].unicode() - u'0');
    } else if (key == Qt::Key_PageDown || key == Qt::Key_PageUp) {
        MoveTo(NextOwn(key == Qt::Key_PageDown ? 1 : -1));
    } else if (IsArrow(key) && Focused()) {
        MoveTo(NeighbourTowards(*Focused(), key));
    } else if (IsArrow(key)) {
        MoveTo(last_ ? last_ : NextOwn(1).value_or(0));
    } else if (key == Qt::Key_Escape && Focused()) {
        board_.setFocus();
    } else {
        return false;
    }
    return true;
}

}  // namespace vorlund
