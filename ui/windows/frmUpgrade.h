// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>

#include "actions/upgrade.h"
#include "ui/windows/command_dialog.h"

namespace vorlund {

/// The upgrade dialog: three upgrade tracks and two kinds of construction. It stays open after each purchase.
class frmUpgrade final : public CommandDialog {
    Q_OBJECT

public:
    frmUpgrade(DialogHost& host, GameState& game);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct TrackRow {
        Track Which;
        TextLabel* Status;
        CommandLabel* Go;
    };

    void AddTrack(Track track, const QString& name, int number, int y);
    struct Building {
        QString Command;
        int Price;
        std::variant<Refusal, Purchase> (*Build)(GameState&, std::string_view);
        TerritorySet (*Sites)(const GameState&);
    };

    void AddConstruction(int number, int y, const QString& captionName, const QString& fieldName,
                         const Building& building);

    /// Shows the current state of the game; `message`, the last result, precedes the money line.
    void Update(const std::string& message);

    using CommandDialog::ShowOutcome;
    void ShowOutcome(const Nothing&) {}
    void ShowOutcome(const Purchase& purchase);

    GameState& game_;
    TextLabel* lblTop_;
    std::array<TrackRow, 3> tracks_{};
    std::array<Field*, 2> fields_{};
};

}  // namespace vorlund
