// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QString>
#include <array>

#include "state/game_state.h"
#include "ui/parts/picture.h"
#include "ui/parts/placed.h"

namespace vorlund {

/// One line of the roster's cells: a player, or a figure of a treasury. Words that do not fit are written
/// narrower and smaller, and at last cut off; the tooltip has them whole.
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
        QString Aloud;          ///< what is said of it: in the tooltip, and by a screen reader

        bool operator==(const Content&) const = default;
    };

    RosterCell(QWidget* parent, const QString& objectName, const QRect& frame);

    /// Nothing is painted anew when the cell shows this already.
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

/// The strip of the board under the commands: who plays, with how many territories, whose turn it is and who
/// is dead; and in a second line what a human who has the turn can spend.
class Roster {
public:
    /// `markers` are the players'; they must outlive it. Its cells belong to `board`.
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
