#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

#include "state/game_state.h"
#include "tests/engine/entries.h"
#include "tests/engine/seeded_random.h"

namespace vorlund {

/// The name by which an event finds its window again: the screen's own, or the toolkit's class.
QString NameOf(const QWidget& window);

/// The windows that a hand can reach.
QList<QWidget*> WindowsOnScreen();

/// What a monkey comes to think of at the sight of the screen. A thought is one line of text, so that it can
/// be written down and carried out again: the kind of event, the window, and what else belongs to it.
class Thoughts {
public:
    explicit Thoughts(std::uint32_t seed) : mind_(seed) {}

    /// The next event, for what is on screen now.
    QString Next(const GameState& game);

    /// The start of another run of the program, with a seed of its own for all its chance.
    QString Start() { return QStringLiteral("start %1").arg(mind_.Draw(1 << 24)); }

private:
    QWidget* PickWindow();
    QString OfWindow(const QWidget& window, const GameState& game);
    QString AtPoint(const QWidget& window);
    QString AtWidget(const char* kind, const QWidget& window, const QWidget& target);
    QString Key(const QWidget& window);
    void PlanToFill(const QWidget& window, const GameState& game);
    QString Entry(const QString& field, const GameState& game);
    bool OneIn(int n) { return mind_.Draw(n) == 0; }

    template <class List>
    auto Any(const List& list) {
        return list[static_cast<typename List::size_type>(mind_.Draw(static_cast<int>(list.size())))];
    }

    SeededRandom mind_;
    RouteEntries route_;
    QStringList plan_;  // a dialog filled in takes several events
};

}  // namespace vorlund
