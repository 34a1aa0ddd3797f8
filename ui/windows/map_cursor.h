// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <array>
#include <functional>
#include <optional>

#include "state/game_state.h"

class QKeyEvent;
class QWidget;

namespace vorlund {

class TerritorySpot;

/// Walks the board's map by keyboard: the focus is on one of 42 invisible widgets over the territories'
/// markers, whose accessible name describes the territory. One of them at a time is a stop of the Tab key.
///
/// The arrow keys lead to a neighbour, the digits of a number to its territory, Page Up and Page Down to the
/// previous and the next territory of the current player.
class MapCursor final : public QObject {
    Q_OBJECT

public:
    /// Makes the widgets as children of `board`. `game` must outlive this.
    MapCursor(QWidget& board, const GameState& game);

    /// Handles a key press on the board. False if the key is none of the cursor's.
    bool HandleKey(const QKeyEvent& event);

    /// The index of the territory that has the focus.
    std::optional<int> Focused() const;

signals:
    /// Focused has changed.
    void Moved();

private:
    /// Beeps if there is no `territory`.
    void MoveTo(std::optional<int> territory);
    void EnterDigit(int digit);
    std::optional<int> NextOwn(int by) const;

    QWidget& board_;
    const GameState& game_;
    std::array<TerritorySpot*, NumTerritories> spots_{};
    std::optional<int> last_;  ///< the territory that has, or last had, the focus
    int typed_ = 0;            ///< the number's first digit
    QElapsedTimer sinceDigit_;
};

}  // namespace vorlund
