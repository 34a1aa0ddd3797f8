#include "savegame/folder.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "savegame/game_name.h"
#include "tests/rules/savegame_samples.h"

namespace vorlund {
namespace {

namespace fs = std::filesystem;

const std::string File = "mygame.vrs";

std::string Content(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void Put(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

std::string CouldNot(const char* what, int error) {
    return std::string("The game 'mygame.vrs' could not be ") + what + ".\r" +
           std::generic_category().message(error) + ".";
}

/// Stands between the saved games and the system: keeps the names of the calls, makes one of them fail and
/// tells before and after each.
class Meddler {
public:
    std::vector<std::string> Names;
    std::size_t FailAt = std::string::npos;  ///< which call, by its place in Names
    int Error = 0;                           ///< and how
    std::size_t BytesAtOnce = std::size_t{1} << 20;
    std::function<void(std::size_t)> Before = [](std::size_t) {};
    std::function<void(std::size_t)> After = [](std::size_t) {};

    SystemCalls Calls() {
        SystemCalls calls = RealSystemCalls();
        calls.Write = [this, real = calls.Write](int file, const char* from, std::size_t size) {
            return real(file, from, std::min(size, BytesAtOnce));
        };
        calls.Read = [this, real = calls.Read](int file, char* into, std::size_t size) {
            return real(file, into, std::min(size, BytesAtOnce));
        };
        Wrap(calls.OpenForReading, "OpenForReading");
        Wrap(calls.CreateNew, "CreateNew");
        Wrap(calls.OpenFolder, "OpenFolder");
        Wrap(calls.Read, "Read");
        Wrap(calls.Write, "Write");
        Wrap(calls.Sync, "Sync");
        Wrap(calls.Close, "Close");
        Wrap(calls.Rename, "Rename");
        Wrap(calls.Unlink, "Unlink");
        Wrap(calls.MakeFolder, "MakeFolder");
        return calls;
    }

private:
    template <typename Result, typename... Arguments>
    void Wrap(std::function<Result(Arguments...)>& call, const std::string& name) {
        call = [this, name, real = call](Arguments... arguments) -> Result {
            const std::size_t place = Names.size();
            Names.push_back(name);
            Before(place);
            if (place == FailAt) {
                if (name == "Close") {
                    real(arguments...);  // a close that fails still gives the file up
                }
                errno = Error;
                return -1;
            }
            const Result result = real(arguments...);
            const int error = errno;
            After(place);
            errno = error;
            return result;
        };
    }
};

/// Runs `body` in a child process, which ends with its result, 0 to 255. Gives that, or -1 when a signal
/// ended the child.
int InChild(const std::function<int()>& body) {
    const pid_t child = fork();
    if (child == 0) {
        _exit(body());
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class SavedGames : public ::testing::Test {
protected:
    SavedGames() {
        std::string pattern = (fs::temp_directory_path() / "vorlund-test-XXXXXX").string();
        base_ = mkdtemp(pattern.data());
        chmod(base_.c_str(), S_IRWXU | S_IRGRP | S_IXGRP | S_IROTH | S_IXOTH);
        Prepare(true);
    }
    ~SavedGames() override { fs::remove_all(base_); }
    SavedGames(const SavedGames&) = delete;
    SavedGames& operator=(const SavedGames&) = delete;

    std::string Path(const std::string& file = File) const { return path_ + "/" + file; }

    /// The folder as it was before the save: with the old game in it, or missing together with its parent.
    void Prepare(bool overwrite) {
        fs::remove_all(base_ + "/deep");
        path_ = base_ + (overwrite ? "/saves" : "/deep/er");
        if (overwrite) {
            fs::create_directory(path_);
            Put(Path(), oldBytes_);
            fs::remove(Path("unfinished.tmp"));
        }
    }

    /// Saves the new game over the old one or into no folder. What went wrong is the result; in any case the
    /// file is then the old game or the new one, and no other saved game has come up.
    std::optional<std::string> Save(bool overwrite, Meddler& meddler) {
        Prepare(overwrite);
        auto error = SavedGamesFolder(path_, meddler.Calls()).Save(File, newGame_);
        EXPECT_FALSE(fs::exists(Path("unfinished.tmp")));
        ExpectOldOrNew(overwrite);
        EXPECT_TRUE(error || Content(Path()) == newBytes_);
        return error;
    }

    void ExpectOldOrNew(bool overwrite) {
        const std::vector<std::string> list = SavedGamesFolder(path_).List();
        if (overwrite || !list.empty()) {
            EXPECT_EQ(list, std::vector<std::string>{File});
            const std::string content = Content(Path());
            EXPECT_TRUE(content == newBytes_ || (overwrite && content == oldBytes_));
        }
    }

    std::string base_;
    std::string path_;
    GameState newGame_ = SampleGame(5);
    std::string oldBytes_ = WriteGame(SampleGame(2));
    std::string newBytes_ = WriteGame(newGame_);
};

TEST_F(SavedGames, ASaveGoesToTheDiskBeforeItReplacesTheOldOne) {
    Meddler meddler;
    EXPECT_EQ(Save(true, meddler), std::nullopt);
    EXPECT_EQ(meddler.Names, (std::vector<std::string>{"Unlink", "CreateNew", "Write", "Sync", "Close",
                                                       "Rename", "OpenFolder", "Sync", "Close"}));
    Meddler slow;
    slow.BytesAtOnce = 100;
    EXPECT_EQ(Save(true, slow), std::nullopt);
    Meddler stuck;
    stuck.BytesAtOnce = 0;
    EXPECT_EQ(Save(true, stuck), CouldNot("saved", EIO));
    Meddler cannotFlushFolders;
    cannotFlushFolders.FailAt = 7;
    cannotFlushFolders.Error = EINVAL;
    EXPECT_EQ(Save(true, cannotFlushFolders), std::nullopt);
}

TEST_F(SavedGames, EachCallThatFailsOrIsTheLastLeavesTheOldGameOrTheNewOne) {
    for (const bool overwrite : {true, false}) {
        Meddler counting;
        EXPECT_EQ(Save(overwrite, counting), std::nullopt);
        for (std::size_t i = 0; i < counting.Names.size(); ++i) {
            SCOPED_TRACE(counting.Names[i] + " " + std::to_string(i) + (overwrite ? " over the old" : ""));
            for (const int error : {ENOSPC, EACCES, EINTR}) {
                Meddler meddler;
                meddler.FailAt = i;
                meddler.Error = error;
                const auto message = Save(overwrite, meddler);
                if (message) {
                    EXPECT_EQ(*message, CouldNot("saved", error));
                }
                // An interrupted call is made again. Only flushing the parents of a new folder fails unsaid.
                EXPECT_TRUE(message ? error != EINTR : error == EINTR || !overwrite);
            }
            for (const bool before : {true, false}) {
                Prepare(overwrite);
                EXPECT_EQ(InChild([&] {
                              Meddler meddler;
                              (before ? meddler.Before : meddler.After) = [&](std::size_t place) {
                                  if (place == i) {
                                      kill(getpid(), SIGKILL);
                                  }
                              };
                              SavedGamesFolder(path_, meddler.Calls()).Save(File, newGame_);
                              return 0;
                          }),
                          -1)
                    << "the child was to be killed";
                ExpectOldOrNew(overwrite);
                EXPECT_EQ(SavedGamesFolder(path_).Save(File, newGame_), std::nullopt);
                EXPECT_FALSE(fs::exists(Path("unfinished.tmp")));
            }
        }
    }
}

TEST_F(SavedGames, AFullDiskKeepsTheOldGame) {
    const int limited = InChild([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{1024, 1024};
        setrlimit(RLIMIT_FSIZE, &limit);
        return SavedGamesFolder(path_).Save(File, newGame_) == CouldNot("saved", EFBIG) ? 0 : 1;
    });
    EXPECT_EQ(limited, 0);
    EXPECT_EQ(Content(Path()), oldBytes_);
    EXPECT_FALSE(fs::exists(Path("unfinished.tmp")));
}

TEST_F(SavedGames, AGameThatWouldNotReadBackIsNotSaved) {
    const std::string could = "The game 'mygame.vrs' could not be saved.\r";
    newGame_.Players[1].Name = "\u0416";
    EXPECT_EQ(SavedGamesFolder(path_).Save(File, newGame_), could + "It would not read back as it is.");
    newGame_ = SampleGame(5);
    newGame_.CurrentPlayer = 1;
    EXPECT_EQ(SavedGamesFolder(path_).Save(File, newGame_),
              could + "CurrentPlayer of the game must be a living human player.");
    EXPECT_EQ(Content(Path()), oldBytes_);
}

TEST_F(SavedGames, ListsPlainFilesOfThePatternInOrderAndDeletesExactlyOne) {
    fs::remove(Path());
    for (const char* const name :
         {"zoo.vrs", "Beta.vrs", "alpha.vrs", ".vrs", "GAME.VRS", "a.vrs.bak", "*.vrs"}) {
        Put(Path(name), "");
    }
    fs::create_directory(Path("folder.vrs"));
    const SavedGamesFolder folder(path_);
    EXPECT_EQ(folder.List(), (std::vector<std::string>{"*.vrs", ".vrs", "alpha.vrs", "Beta.vrs", "zoo.vrs"}));
    EXPECT_TRUE(folder.FileExists(folder.PathOf(".vrs")));
    EXPECT_FALSE(folder.FileExists(folder.PathOf("folder.vrs")));
    EXPECT_EQ(folder.Delete("*.vrs"), std::nullopt);
    EXPECT_EQ(folder.List(), (std::vector<std::string>{".vrs", "alpha.vrs", "Beta.vrs", "zoo.vrs"}));
    EXPECT_EQ(folder.Delete(File), CouldNot("deleted", ENOENT));
    EXPECT_EQ(SavedGamesFolder(path_ + "/none").List(), std::vector<std::string>{});
}

TEST_F(SavedGames, LoadsTheGameOrSaysWhyNot) {
    Put(Path(), newBytes_ + std::string(1 << 20, 'x'));
    GameState expected = newGame_;
    expected.GameLoaded = true;
    Meddler meddler;
    meddler.BytesAtOnce = 1000;
    meddler.FailAt = 2;
    meddler.Error = EINTR;
    EXPECT_EQ(std::get<GameState>(SavedGamesFolder(path_, meddler.Calls()).Load(File, FreshGame())),
              expected);
    EXPECT_LT(meddler.Names.size(), 80U) << "the rest of a large file is left alone";

    const auto message = [&](Meddler& between) {
        return std::get<LoadError>(SavedGamesFolder(path_, between.Calls()).Load(File, FreshGame())).Message;
    };
    for (const std::size_t place : {0U, 1U}) {  // opening and reading
        Meddler failing;
        failing.FailAt = place;
        failing.Error = EIO;
        EXPECT_EQ(message(failing), CouldNot("loaded", EIO));
    }
    Meddler none;
    Put(Path(), WithLine(newGame_, 3, "perhaps"));
    EXPECT_EQ(
        message(none),
        "The game 'mygame.vrs' could not be loaded.\rLine 3: IsDead of Player 1 must be True or False.");
    fs::remove(Path());
    EXPECT_EQ(message(none), CouldNot("loaded", ENOENT));
}

TEST(GameName, GivesTheFileOrIsRefused) {
    const std::vector<std::pair<std::string, std::string>> files{
        {"  MY Game ", "my game.vrs"},
        {"   ", ".vrs"},
        {"100%&'~..", "100%&'~...vrs"},
        {"\u00C4PFEL \u00DF\u00D7", "\u00E4pfel \u00DF\u00D7.vrs"},
        {"\u0160\u0178\u0152\u0139", "\u0161\u00FF\u0153\u013A.vrs"},
        {"\u03A9\u0416\u0401", "\u03C9\u0436\u0451.vrs"},
        {"\U0001F600A", "\U0001F600a.vrs"},
    };
    for (const auto& [name, file] : files) {
        EXPECT_EQ(WhyNoGameName(name), std::nullopt) << name;
        EXPECT_EQ(FileNameOf(name), file);
    }
    EXPECT_EQ(WhyNoGameName(""), "Enter an identifiable game name to open at a later time.");
    for (const char* const name :
         {"a\\b", "a/b", "a:b", "a*", "?", "\"a", "<a", "a>", "a|b", "a\nb", "a\x7F", "a\u0085", "\xFF"}) {
        EXPECT_EQ(WhyNoGameName(name),
                  "A game name cannot hold a control character or any of these:\r\\ / : * ? \" < > |")
            << name;
    }
    EXPECT_EQ(SavedText("mygame.vrs"), "Game 'mygame.vrs' properly saved.");
    EXPECT_EQ(DeleteQuestion(".vrs"), "Are you sure you want to delete the game .vrs?");
}

}  // namespace
}  // namespace vorlund
