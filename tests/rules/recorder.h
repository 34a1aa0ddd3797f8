#pragma once

#include <optional>
#include <string>
#include <vector>

#include "turn/screens.h"

namespace vorlund {

/// Screens that keep what they were asked to show, for the tests to look at.
class Recorder final : public Screens {
public:
    std::optional<CommandSet> Commands;  ///< as last set
    std::string BoardTitle;
    Report Shown;                ///< the report screen's texts; empty after it was closed outright
    std::optional<int> Picture;  ///< the player whose marker the report bears
    bool ReportVisible = false;
    bool GameOverShown = false;
    std::vector<std::string> Announcements;
    std::string Calls;  ///< all calls in their order, each with what it shows in few words

    void RefreshMap() override { Calls += "RefreshMap; "; }
    void SetCommands(CommandSet available) override {
        Commands = available;
        Calls += available == CommandSet::All()                            ? "all commands; "
                 : available == CommandSet::All().Without(Command::Attack) ? "all but Attack; "
                 : available == CommandSet::Only(Command::EndTurn)         ? "EndTurn; "
                                                                           : "no commands; ";
    }
    void SetBoardTitle(const std::string& title) override {
        BoardTitle = title;
        Calls += "'" + title + "'; ";
    }
    void ShowGameOver() override {
        GameOverShown = true;
        Calls += "ShowGameOver; ";
    }
    void CloseDialogs() override { Calls += "CloseDialogs; "; }
    void ShowReport(const Report& report, std::optional<int> picturePlayer) override {
        ReportVisible = true;
        Shown = report;
        Picture = picturePlayer;
        Calls += "ShowReport " + (Picture ? std::to_string(*Picture + 1) : "") + " " + report.Headline + "; ";
    }
    void HideReport() override {
        ReportVisible = false;
        Calls += "HideReport; ";
    }
    void CloseReport() override {
        ReportVisible = false;
        Shown = {};
        Picture.reset();
        Calls += "CloseReport; ";
    }
    void Announce(const std::string& text) override {
        Announcements.push_back(text);
        Calls += "Announce " + text + "; ";
    }
};

}  // namespace vorlund
