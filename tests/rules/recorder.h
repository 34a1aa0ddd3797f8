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
    int Refreshes = 0;
    std::vector<std::string> Announcements;
    std::vector<std::string> Calls;  ///< the names of all calls, in their order

    void RefreshMap() override {
        Calls.emplace_back("RefreshMap");
        ++Refreshes;
    }
    void SetCommands(CommandSet available) override {
        Calls.emplace_back("SetCommands");
        Commands = available;
    }
    void SetBoardTitle(const std::string& title) override {
        Calls.emplace_back("SetBoardTitle");
        BoardTitle = title;
    }
    void ShowGameOver() override {
        Calls.emplace_back("ShowGameOver");
        GameOverShown = true;
    }
    void CloseDialogs() override { Calls.emplace_back("CloseDialogs"); }
    void ShowReport(const Report& report, std::optional<int> picturePlayer) override {
        Calls.emplace_back("ShowReport");
        Shown = report;
        Picture = picturePlayer;
        ReportVisible = true;
    }
    void HideReport() override {
        Calls.emplace_back("HideReport");
        ReportVisible = false;
    }
    void CloseReport() override {
        Calls.emplace_back("CloseReport");
        Shown = {};
        Picture.reset();
        ReportVisible = false;
    }
    void Announce(const std::string& text) override {
        Calls.emplace_back("Announce");
        Announcements.push_back(text);
    }
};

}  // namespace vorlund
