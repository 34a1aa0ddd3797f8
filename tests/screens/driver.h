// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QTemporaryDir>
#include <deque>
#include <functional>
#include <memory>

#include "tests/rules/small_worlds.h"
#include "ui/machine/sounds.h"
#include "ui/parts/help_key.h"
#include "ui/parts/input_filter.h"
#include "ui/program.h"

/// Prints a QString in the message of a failed comparison.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << text.toStdString();
}

namespace vorlund {

/// Random numbers that are always 0: research never succeeds, which needs a 2.
struct NoLuck final : Random {
    int Draw(int) override { return 0; }
    void Reseed() override {}
};

/// Anna's turn, with all commands enabled, and three players, of whom Anna can buy, attack and strike.
inline const QString AnnasTurn = "Vorlund - Anna's turn [bsrautev]";
inline const QString AnnasDisabledBoard = "Vorlund - Anna's turn [] | ";
inline const GameState ThreePlayers =
    NewGame(3, "7 Anna 10/1F; 8 Ben 2/0; 36 Cleo 5/0; Anna Money 1000 HasNuke 1");

inline const QString LeaveQuestion =
    "Question: Closing this game window will end the game.\nAre you sure you want to continue?";
inline const QString NoTransaction = "Warning: The data you entered will not make a transaction.";

/// An expected message box and the keys that answer it: "y", "n", or Enter for the default button.
struct Box {
    QString Text;  ///< icon, title if it is not "Vorlund", and text: "Warning: No transaction was made."
    QString Keys = "\n";
    std::function<void()> Meanwhile = {};  ///< called while the box is open
};

/// Records the sounds instead of playing them.
struct SoundRecorder final : Sounds {
    void PlayWave(Wave wave) override;

    QStringList Effects;  ///< all but the music: "Beep", "Gun", "Explode"
    int Music = 0;
    std::function<void()> WhenPlayed = [] {};
};

/// One run of the program, from the title screen on. An unexpected message box fails the test, and so does an
/// expected one that does not open.
class Sitting : public QObject {
public:
    /// `saves` is the folder of the saved games; if it is empty, a temporary one.
    explicit Sitting(std::unique_ptr<Random> chance = std::make_unique<NoLuck>(), const QString& saves = {});
    ~Sitting() override;
    Sitting(const Sitting&) = delete;
    Sitting& operator=(const Sitting&) = delete;

    const GameState& Game() const { return game_; }
    SoundRecorder& Recorded() { return sounds_; }

    /// The sounds that have been started, except the music, which a timer starts: "Beep Gun".
    QString Heard() const { return sounds_.Effects.join(u' '); }
    QString Saves() const { return saves_; }
    SavedGamesFolder& Folder() { return savesFolder_; }

    /// Saves `game` as `file`, not through the program.
    void Put(const QString& file, const GameState& game) const;

    /// Saves `game` and loads it from the title screen.
    void Resume(const GameState& game);

    /// Adds a message box to those expected, in order.
    void Expect(Box box) { expected_.push_back(std::move(box)); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Answer(QMessageBox& box);

    QTemporaryDir folder_;
    QString saves_;
    InputFilter inputFilter_;
    GameState game_;
    std::unique_ptr<Random> chance_;
    SavedGamesFolder savesFolder_;
    SoundRecorder sounds_;
    Program program_;
    HelpKey helpKey_;
    std::deque<Box> expected_;
};

// What is on the screen. Windows and controls are found by their objectName; a missing one aborts the test.

/// The titles of all visible windows, in the order in which they were opened, and after the board's the keys
/// of its enabled commands: "Vorlund - Anna's turn [bsrautev] | Vorlund - Buy".
QString Desktop();

QWidget& Window(const QString& name);
QWidget& Control(const QString& window, const QString& control);
QString Text(const QString& window, const QString& control);  ///< "(not seen)" if the control is hidden

/// The texts of the fields in the front window: "7|8||".
QString Entries();

/// The report's marker in brackets, its headline and its body, on separate lines.
QString ReportText();

/// The first difference between `game` and the markers, buildings and counts on the map; empty if none.
QString MapFault(const GameState& game);

/// How often QApplication::beep has been called since the last call.
int Beeps();

// Input. Keys go to the front window, once it has the focus. These return what Desktop() says afterwards.

QWindow& FrontWindow();  ///< once it has the focus
QString Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
QString Type(const QString& keys);  ///< "\n" is Enter, "\t" Tab, "\033" Escape
QString Click(const QString& window, QPoint place);
QString Click(const QString& window, const QString& control);
QString Fill(const QString& window, const QString& field, const QString& text);
QString Close(const QString& window);  ///< by a request of the window manager
void PointAt(const QString& window, QPoint place);
void ShowTooltip(const QString& window, QPoint place);

/// True if `action` ends the program and no window is left.
bool EndsProgram(const std::function<void()>& action);

}  // namespace vorlund
