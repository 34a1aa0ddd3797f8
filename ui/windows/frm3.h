// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QTimer>
#include <array>

#include "state/game_state.h"
#include "turn/commands.h"
#include "ui/windows/board_window.h"
#include "ui/windows/owner_map.h"
#include "ui/windows/territory_map.h"

class QHelpEvent;

namespace vorlund {

class GameNavigation;

/// The board: the world map with every owner, building and force, and the command bar.
class frm3 final : public BoardWindow {
    Q_OBJECT

public:
    // Where windows over the board end, in pixels from its top: reports leave the command bar free, dialogs,
    // which have taken the commands away, hide it rather than the map.
    static constexpr int ReportBottom = 428;
    static constexpr int DialogBottom = 517;

    static constexpr QSize Size{750, 525};  ///< in pixels of the layout

    frm3(const GameState& game, GameNavigation& navigation);

    /// Shows the board: a loaded game goes on at once, a new one starts with the selection of territories.
    void Open();

    void RefreshMap() override;
    void SetCommands(CommandSet available);
    void ShowGameOver();

    void TypeInto(Field& field) override;

    /// The marker of player index `player`.
    const Picture& imgSet(int player) const { return imgSet_[static_cast<std::size_t>(player)]; }

protected:
    bool CloseRequested() override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    struct Marker {
        PictureLabel* imgCntry;
        PictureLabel* imgExtra;
        CountLabel* lblCntry;
    };

    void AddMarkers();
    void AddCommandBar();
    void RefreshLand();
    void RefreshTerritory(int t, const Marker& marker);
    void ShowTerritoryTip(const QHelpEvent& event);
    void Run(Command command);

    const GameState& game_;
    GameNavigation& navigation_;
    std::array<Picture, MaxPlayers> imgSet_;
    std::array<Picture, 3> imgExtraSet_;
    Picture gameOver_;
    std::array<Marker, NumTerritories> markers_{};
    std::array<CommandLabel*, NumCommands> commands_{};
    PictureLabel* imgGameOver_;
    QTimer tmrFirst_;
    TerritoryMap map_;
    OwnerMap land_;
    QPointer<Field> territoryField_;  // the one that has, or last had, the keyboard
};

}  // namespace vorlund
