// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QTimer>
#include <array>
#include <functional>
#include <optional>
#include <string_view>

#include "state/changes.h"
#include "state/game_state.h"
#include "turn/commands.h"
#include "ui/windows/board_window.h"
#include "ui/windows/map_cursor.h"
#include "ui/windows/map_tip.h"
#include "ui/windows/owner_map.h"
#include "ui/windows/roster.h"
#include "ui/windows/territory_map.h"
#include "ui/windows/territory_picker.h"
#include "ui/windows/territory_rims.h"

class QWindow;

namespace vorlund {

class GameNavigation;

/// The board: the world map with owners, buildings and forces, and the command bar.
class frm3 final : public BoardWindow {
    Q_OBJECT

public:
    static constexpr QSize Size{750, 525};  ///< in pixels of the layout

    frm3(const GameState& game, GameNavigation& navigation);

    /// Presents the board. A loaded game continues at once; a new one begins with the selection of
    /// territories.
    void Open();

    void RefreshMap() override;
    void SetCommands(CommandSet available);
    void SetBoardTitle(std::string_view title);

    /// Lays the game-over picture, with the verdict on it, over the map.
    void ShowGameOver(std::string_view verdict);

    /// Draws a rim round the territories that have changed, a stronger one where the owner has, and removes
    /// those of the previous call.
    void ShowChanges(const MapChanges& changes);

    void AddTerritoryField(Field& field, const std::function<TerritorySet()>& candidates) override;

    /// Gives these territories and no others the rim.
    void ShowRims(Rim rim, const TerritorySet& territories);

    /// The marker of player index `player`.
    const Picture& imgSet(int player) const { return imgSet_[static_cast<std::size_t>(player)]; }

protected:
    bool HandleCloseRequest() override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
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
    void RefreshRoster();
    void RefreshTerritory(int t, const Marker& marker);
    std::optional<int> TerritoryAt(QPointF place) const;
    void PointAt(std::optional<int> territory);
    void RefreshPointed();
    void RefreshCandidates();
    void TellTerritory(int territory);
    void Run(Command command);

    const GameState& game_;
    GameNavigation& navigation_;
    std::array<Picture, MaxPlayers> imgSet_;
    std::array<Picture, 3> imgExtraSet_;
    Picture gameOver_;
    std::array<Marker, NumTerritories> markers_{};
    std::array<CommandLabel*, NumCommands> commands_{};
    PictureLabel* imgGameOver_;
    TextLabel* verdict_;
    QTimer tmrFirst_;
    MapCursor cursor_;
    MapTip* tip_;
    std::optional<int> tipOf_;  ///< the territory that tip_ describes
    Roster roster_;
    std::optional<int> treasuryOf_;  ///< the player who has had commands enabled in this turn
    TerritoryMap map_;
    OwnerMap land_;
    TerritoryRims rims_{map_};
    TerritoryPicker picker_;
    std::optional<int> pointed_;    ///< the territory that the pointer is on, while a click enters it
    QPointer<QWindow> lastWindow_;  ///< of the others, the one that has, or last had, the focus
};

}  // namespace vorlund
