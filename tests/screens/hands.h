#pragma once

#include <QImage>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QWidget>
#include <deque>
#include <functional>
#include <memory>
#include <vector>

#include "state/random.h"
#include "ui/held_keys.h"
#include "ui/program.h"

namespace vorlund {

/// Chance from a written-out list. The test fails when a value is missing or left over.
class Script final : public Random {
public:
    explicit Script(std::vector<float> values) : values_(std::move(values)) {}
    ~Script() override;
    Script(const Script&) = delete;
    Script& operator=(const Script&) = delete;

    float Uniform() override { return next_ < values_.size() ? values_[next_++] : (++next_, 0.0F); }
    void Reseed() override {}

private:
    std::vector<float> values_;
    std::size_t next_ = 0;
};

/// Chance that says 0 always: no draw over more than one face ever gives the 2 that research needs.
std::unique_ptr<Random> NoLuck();

std::unique_ptr<Random> ByScript(std::vector<float> values);

/// A message box that is expected, and its answer: one of Yes and No, or Ok where that is the only button.
struct Box {
    QMessageBox::Icon Icon;
    QString Text;
    QMessageBox::StandardButton Answer = QMessageBox::Ok;
    std::function<void()> Meanwhile = {};  ///< done while the box is up
    QString Title = "Vorlund";
};

/// A widget alone as it is painted, in its own pixels, without what lies behind it.
QImage Painted(QWidget& widget);

/// One run of the program, and the hands and eyes of who sits before it. They know windows and controls by
/// their names, press real keys in the window that has the keyboard, and click where a control lies. What
/// cannot be found ends the test; a message box that nobody expects fails it.
class Sitting : public QObject {
public:
    /// `saves` is the folder of the saved games, a new one if it is empty.
    explicit Sitting(std::unique_ptr<Random> chance, const QString& saves = {});
    ~Sitting() override;
    Sitting(const Sitting&) = delete;
    Sitting& operator=(const Sitting&) = delete;

    GameState& Game() { return program_->game(); }
    const QString& Saves() const { return saves_; }

    /// Goes from the title screen to the board by way of the load screen.
    void Resume(const GameState& game);

    /// Saves `game` as `file` behind the program's back.
    void Put(const QString& file, const GameState& game) const;

    // What is on the desktop
    static bool IsOpen(const QString& window);
    static QWidget& Window(const QString& window);
    static QWidget& Control(const QString& window, const QString& control);
    static QString Text(const QString& window, const QString& control);
    static QString Title(const QString& window) { return Window(window).windowTitle(); }

    /// The keys of the board's commands that are enabled, in their order: "bsrautev" when all are.
    static QString Commands();

    /// What the report shows: title, headline and body, a line each.
    static QString ReportText();

    /// Which player's marker the report bears; -1 for none.
    static int ReportPicture();

    /// What is wrong with the markers, icons and counts on the map for this game; empty when they are right.
    static QString MapFault(const GameState& game);

    /// How often the computer has beeped since this was last asked.
    static int Beeps();

    // What hands can do. Keys go to the window that has the keyboard.
    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    static void Hold(Qt::Key key, const QString& text = {});  ///< what a key that stays down sends
    static void Type(const QString& text);                    ///< "\t" is the Tab key, "\n" is Enter
    static void Fill(const QString& window, const QString& field, const QString& text);
    static void Click(const QString& window, const QString& control);
    static QPoint PlaceOfSaved(const QString& file);  ///< in the load screen
    static void ClickSaved(const QString& file);
    static void PointAt(const QString& window, const QString& control);
    static void PointAt(const QString& window, QPoint place);
    static void CloseWindow(const QString& window);

    /// The next box will be this one.
    void Expect(Box box) { expected_.push_back(std::move(box)); }

    /// True when `deed` ends the program and leaves no window.
    static bool Ends(const std::function<void()>& deed);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Answer(QMessageBox& box);

    QTemporaryDir folder_;
    QString saves_;
    HeldKeys heldKeys_;
    std::unique_ptr<Program> program_;
    std::deque<Box> expected_;
};

}  // namespace vorlund
