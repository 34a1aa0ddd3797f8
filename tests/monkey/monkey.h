#pragma once

#include <QElapsedTimer>
#include <QFile>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QTemporaryDir>
#include <optional>

#include "tests/monkey/thoughts.h"
#include "ui/program.h"

namespace vorlund {

/// Random hands at the real windows of the real program, which is started again whenever it ends. It looks
/// after each event whether everything is still well, and gives up with a complaint when it is not.
class Monkey : public QObject {
public:
    /// `log` takes the events, a line each. A `script` of such lines is carried out instead of thoughts.
    Monkey(std::uint32_t seed, int events, const QString& log, const QStringList& script = {});

    /// Does all events; 1 when something was wrong, which has been printed.
    int Run();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    /// One run of the program, up to its end. `start` is the line that gives its seed.
    void RunProgram(const QString& start);
    void FillFolder(SeededRandom& random);
    std::optional<QString> NextLine();
    void Perform(const QString& line);
    static void Perform(QWindow& window, const QString& kind, const QStringList& details);
    void Finish();

    std::optional<std::string> Complaint();
    std::optional<std::string> ComplaintAboutGame();
    bool NothingCanBeDone() const;
    bool IsUnderWay() const;
    CommandSet Available() const;

    Thoughts thoughts_;
    bool scripted_;
    QStringList script_;
    int eventsLeft_;
    QFile log_;
    QTemporaryDir folder_;
    Program* program_ = nullptr;
    int actingAt_ = 0;  // the depth of event loops at which an event is being carried out
    QElapsedTimer sinceEvent_;
    QElapsedTimer sinceSomethingToDo_;
    std::optional<std::string> complaint_;
    QMap<QString, int> tally_;
};

}  // namespace vorlund
