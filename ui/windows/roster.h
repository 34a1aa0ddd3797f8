// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QString>
#include <array>

#include "state/game_state.h"
#include "ui/parts/picture.h"
#include "ui/parts/placed.h"

namespace vorlund {

/// A label of the roster: a player with the number of territories, or an amount of the treasury. Words that
/// do not fit are condensed, then shrunk, then elided; the tooltip shows all of them.
class RosterCell : public Placed<QLabel> {
    Q_OBJECT

public:
    struct Content {
        const Picture* Marker = nullptr;
        QString Words;
        QString Figure;
        bool IsComputer = false;
        bool IsDead = false;
        bool IsMarked = false;  ///< has the turn, or has won
        QString Name;           ///< accessible name
        QString Details;        ///< accessible description; the tooltip shows it after the name

        bool operator==(const Content&) const = default;
    };

    RosterCell(QWidget* parent, const QString& objectName, const QRect& frame);

    /// Repaints only if the content has changed.
    void Show(const Content& content);

protected:
    void paintEvent(QPaintEvent* event) override;
    void ZoomChanged() override;

private:
    void PaintComputer(QPainter& painter) const;

    Content content_;
    // In pixels of the desktop
    QRectF wordsRoom_;
    QRectF computerRoom_;
};

/// The strip of the board under the commands: the players with their territories, turn and death, and in a
/// second line the treasury of the human whose turn it is.
class Roster {
public:
    /// Makes the cells as children of `board`. `markers` are the players' pictures and must outlive the
    /// roster.
    Roster(QWidget& board, const std::array<Picture, MaxPlayers>& markers);

    /// Shows the players of `game`, and the treasury of the current one if `withTreasury`.
    void Show(const GameState& game, bool withTreasury);

private:
    static constexpr int NumFigures = 5;

    const std::array<Picture, MaxPlayers>& markers_;
    std::array<RosterCell*, MaxPlayers> players_{};
    std::array<RosterCell*, NumFigures> treasury_{};
};

}  // namespace vorlund
