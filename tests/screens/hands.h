// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QTemporaryDir>
#include <deque>
#include <functional>
#include <memory>

#include "ui/machine/sounds.h"
#include "ui/parts/input_filter.h"
#include "ui/program.h"

/// How a text is printed when it is not the one that was due.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << text.toStdString();
}

namespace vorlund {

/// Chance that says 0 always: no die ever shows the 2 that research needs.
struct NoLuck final : Random {
    int Draw(int) override { return 0; }
    void Reseed() override {}
};

/// A message box that is expected, and the keys that answer it: "y" or "n", or Enter where Ok is all there
/// is.
struct Box {
    QString Text;  ///< icon, title if it is not the game's, and message: "Warning: No transaction was made."
    QString Keys = "\n";
    std::function<void()> Meanwhile = {};  ///< done while the box is up
};

/// Plays nothing, and keeps what it was asked to play.
struct SoundRecorder final : Sounds {
    void PlayWave(Wave wave) override;

    QStringList Effects;  ///< all but the music: "Beep", "Gun", "Explode"
    int Music = 0;
    std::function<void()> WhenPlayed = [] {};
};

/// One run of the program with somebody before it. A message box that nobody expects fails the test, and so
/// does one that never comes.
class Sitting : public QObject {
public:
    /// `saves` is the folder of the saved games, a new one if it is empty.
    explicit Sitting(std::unique_ptr<Random> chance = std::make_unique<NoLuck>(), const QString& saves = {});
    ~Sitting() override;
    Sitting(const Sitting&) = delete;
    Sitting& operator=(const Sitting&) = delete;

    const GameState& Game() const { return game_; }
    SoundRecorder& Recorded() { return sounds_; }

    /// The recordings that were started so far but for the music, which starts by itself: "Beep Gun".
    QString Heard() const { return sounds_.Effects.join(u' '); }
    QString Saves() const { return saves_; }
    SavedGamesFolder& Folder() { return savesFolder_; }

    /// Saves `game` as `file` behind the program's back.
    void Put(const QString& file, const GameState& game) const;

    /// Goes from the title screen to the board by way of the load screen.
    void Resume(const GameState& game);

    /// The next box will be this one.
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
    std::deque<Box> expected_;
};

// What is seen. Windows and controls are known by their names; one that does not come ends the test.

/// The titles of all windows, in the order in which they opened. Behind the board's are the keys of the
/// commands that are enabled: "Vorlund - Anna's turn [bsrautev] | Vorlund - Buy".
QString Desktop();

QWidget& Window(const QString& name);
QWidget& Control(const QString& window, const QString& control);
QString Text(const QString& window, const QString& control);  ///< "(not seen)" of one that is hidden

/// The report's marker in brackets, its headline and its body, a line each.
QString ReportText();

/// What is wrong with markers, buildings and counts on the map of this game; empty when all is right.
QString MapFault(const GameState& game);

/// How often the computer has beeped since this was last asked.
int Beeps();

// What hands can do. Keys go to the window in front, which must have the keyboard.

QWindow& Keyboard();  ///< the window in front, once it has the keyboard
void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
void Type(const QString& keys);  ///< "\n" is Enter, "\t" the Tab key, "\033" Escape
void Click(const QString& window, QPoint place);
void Click(const QString& window, const QString& control);
void Fill(const QString& window, const QString& field, const QString& text);
void PointAt(const QString& window, QPoint place);
void Close(const QString& window);

/// True when `deed` ends the program and leaves no window.
bool Ends(const std::function<void()>& deed);

}  // namespace vorlund
