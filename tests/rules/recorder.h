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
    std::string Calls;  ///< the names of all calls in their order, a blank before each

    void RefreshMap() override { Calls += " RefreshMap"; }
    void SetCommands(CommandSet available) override {
        Calls += " SetCommands";
        Commands = available;
    }
    void SetBoardTitle(const std::string& title) override {
        Calls += " SetBoardTitle";
        BoardTitle = title;
    }
    void ShowGameOver() override {
        Calls += " ShowGameOver";
        GameOverShown = true;
    }
    void CloseDialogs() override { Calls += " CloseDialogs"; }
    void ShowReport(const Report& report, std::optional<int> picturePlayer) override {
        Calls += " ShowReport";
        Shown = report;
        Picture = picturePlayer;
        ReportVisible = true;
    }
    void HideReport() override {
        Calls += " HideReport";
        ReportVisible = false;
    }
    void CloseReport() override {
        Calls += " CloseReport";
        Shown = {};
        Picture.reset();
        ReportVisible = false;
    }
    void Announce(const std::string& text) override {
        Calls += " Announce";
        Announcements.push_back(text);
    }
};

}  // namespace vorlund
