// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "turn/screens.h"

namespace vorlund {

/// Screens that record their calls.
class Recorder final : public Screens {
public:
    std::optional<CommandSet> Commands;  ///< of the last SetCommands
    Report Shown;                        ///< of the last ShowReport
    bool ReportVisible = false;
    std::string Calls;  ///< all calls in order, with their arguments in short

    void RefreshMap() override { Calls += "RefreshMap; "; }
    void SetCommands(CommandSet available) override {
        Commands = available;
        Calls += available == CommandSet::All()                            ? "all commands; "
                 : available == CommandSet::All().Without(Command::Attack) ? "all but Attack; "
                 : available == CommandSet::Only(Command::EndTurn)         ? "EndTurn; "
                                                                           : "no commands; ";
    }
    void SetBoardTitle(const std::string& title) override { Calls += "'" + title + "'; "; }
    void ShowGameOver(const std::string& verdict) override { Calls += "ShowGameOver " + verdict + "; "; }
    void CloseDialogs() override { Calls += "CloseDialogs; "; }
    void ShowReport(const Report& report, std::optional<int> picturePlayer) override {
        ReportVisible = true;
        Shown = report;
        Calls += "ShowReport " + (picturePlayer ? std::to_string(*picturePlayer + 1) : "") + " " +
                 report.Headline + "; ";
    }
    void CloseReport() override {
        ReportVisible = false;
        Calls += "CloseReport; ";
    }
    void Announce(const std::string& text) override { Calls += "Announce " + text + "; "; }
};

}  // namespace vorlund
