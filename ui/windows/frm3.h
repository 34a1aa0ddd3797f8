#pragma once

#include <QPointer>
#include <QTimer>
#include <array>
#include <memory>

#include "state/game_state.h"
#include "turn/commands.h"
#include "ui/parts/screen.h"
#include "ui/windows/territory_map.h"

class QHelpEvent;

namespace vorlund {

class Program;
class frmSelect;

/// The board: the world map with every owner, building and force, and the command bar.
class frm3 final : public Screen {
    Q_OBJECT

public:
    // Where windows over the board end, in pixels from its top: reports leave the command bar free, dialogs,
    // which have taken the commands away, hide it rather than the map.
    static constexpr int ReportBottom = 428;
    static constexpr int DialogBottom = 517;

    explicit frm3(Program& program);
    ~frm3() override;

    /// Shows the board: a loaded game goes on at once, a new one starts with the selection of territories.
    void Open();

    /// Redraws every territory from the game.
    void RefreshMap();

    void SetCommands(CommandSet available);
    void ShowGameOver();

    /// A click on a territory types its number into `field` when it is the field for territories that has, or
    /// last had, the keyboard.
    void TypeInto(Field& field);

    /// Closes the selection screen outright, if it is open.
    void CloseSelection();

    /// The marker of player index `player`.
    const Picture& imgSet(int player) const { return imgSet_[static_cast<std::size_t>(player)]; }

protected:
    bool CloseRequested() override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;

private:
    struct Marker {
        PictureLabel* imgCntry;
        PictureLabel* imgExtra;
        CountLabel* lblCntry;
    };

    void AddMarkers();
    void AddCommandBar();
    void RefreshTerritory(int t, const Marker& marker);
    void ShowTerritoryTip(const QHelpEvent& event);
    void Run(Command command);

    Program& program_;
    std::array<Picture, MaxPlayers> imgSet_;
    std::array<Picture, 3> imgExtraSet_;
    Picture gameOver_;
    std::array<Marker, NumTerritories> markers_{};
    std::array<CommandLabel*, NumCommands> commands_{};
    PictureLabel* imgGameOver_;
    QTimer tmrFirst_;
    std::unique_ptr<frmSelect> selection_;
    TerritoryMap map_;
    QPointer<Field> territoryField_;  // the one that has, or last had, the keyboard
};

}  // namespace vorlund
