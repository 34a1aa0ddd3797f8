#include "savegame/folder.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "savegame/format.h"
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

std::string SaveError(const std::string& reason) {
    return "The game 'mygame.vrs' could not be saved.\r" + reason;
}

std::string SystemReason(int error) {
    return std::generic_category().message(error) + ".";
}

/// Stands between the saved games and the system: keeps the names of the calls, makes one of them fail and
/// tells before and after each.
class Meddler {
public:
    std::vector<std::string> Names;
    std::size_t FailAt = std::string::npos;  ///< which call, by its place in Names
    int Error = 0;                           ///< and how
    std::function<void(std::size_t)> Before = [](std::size_t) {};
    std::function<void(std::size_t)> After = [](std::size_t) {};

    SystemCalls Calls() {
        SystemCalls calls = RealSystemCalls();
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
        path_ = base_ + "/saves";
        fs::create_directory(path_);
        newGame_.Players[0].Money = 1234;
        oldBytes_ = WriteGame(oldGame_);
        newBytes_ = WriteGame(newGame_);
    }
    ~SavedGames() override { fs::remove_all(base_); }
    SavedGames(const SavedGames&) = delete;
    SavedGames& operator=(const SavedGames&) = delete;

    std::string Path() const { return path_ + "/" + File; }

    /// The folder as it was before the save: with the old game in it, or missing together with its parent.
    void Prepare(bool overwrite) {
        fs::remove_all(base_ + "/deep");
        path_ = base_ + (overwrite ? "/saves" : "/deep/er");
        if (overwrite) {
            Put(Path(), oldBytes_);
            fs::remove(path_ + "/unfinished.tmp");
        }
    }

    /// The file is the old game or the new one, and no other saved game has come up.
    void ExpectOldOrNew(bool overwrite, const std::string& what) {
        const std::vector<std::string> list = SavedGamesFolder(path_).List();
        if (!overwrite && list.empty()) {
            return;
        }
        EXPECT_EQ(list, std::vector<std::string>{File}) << what;
        const std::string content = Content(Path());
        EXPECT_TRUE(content == newBytes_ || (overwrite && content == oldBytes_)) << what;
    }

    std::vector<std::string> CallsOfASave(bool overwrite) {
        Prepare(overwrite);
        Meddler meddler;
        EXPECT_EQ(SavedGamesFolder(path_, meddler.Calls()).Save(File, newGame_), std::nullopt);
        return meddler.Names;
    }

    std::string base_;
    std::string path_;
    GameState oldGame_ = SampleGame(2);
    GameState newGame_ = SampleGame(5);
    std::string oldBytes_;
    std::string newBytes_;
};

TEST_F(SavedGames, ASaveGoesToTheDiskBeforeItReplacesTheOldOne) {
    EXPECT_EQ(CallsOfASave(true), (std::vector<std::string>{"Unlink", "CreateNew", "Write", "Sync", "Close",
                                                            "Rename", "OpenFolder", "Sync", "Close"}));
    EXPECT_EQ(Content(Path()), newBytes_);
    CallsOfASave(false);
    EXPECT_EQ(Content(Path()), newBytes_);
}

TEST_F(SavedGames, EachCallThatFailsLeavesTheOldGameOrTheNewOneAndSaysWhy) {
    for (const bool overwrite : {true, false}) {
        const std::vector<std::string> names = CallsOfASave(overwrite);
        for (const int error : {ENOSPC, EIO, EACCES, EROFS, EDQUOT}) {
            for (std::size_t i = 0; i < names.size(); ++i) {
                const std::string what = names[i] + " " + std::to_string(i) + ": " + SystemReason(error);
                Prepare(overwrite);
                Meddler meddler;
                meddler.FailAt = i;
                meddler.Error = error;
                const auto message = SavedGamesFolder(path_, meddler.Calls()).Save(File, newGame_);
                ExpectOldOrNew(overwrite, what);
                EXPECT_EQ(fs::exists(path_ + "/unfinished.tmp"), false) << what;
                if (message) {
                    EXPECT_EQ(*message, SaveError(SystemReason(error))) << what;
                } else {
                    // Only flushing the parents of a new folder may fail unsaid.
                    EXPECT_FALSE(overwrite) << what;
                    EXPECT_EQ(Content(Path()), newBytes_) << what;
                }
            }
        }
    }
}

TEST_F(SavedGames, AnInterruptedCallIsMadeAgain) {
    for (const bool overwrite : {true, false}) {
        const std::vector<std::string> names = CallsOfASave(overwrite);
        for (std::size_t i = 0; i < names.size(); ++i) {
            Prepare(overwrite);
            Meddler meddler;
            meddler.FailAt = i;
            meddler.Error = EINTR;
            EXPECT_EQ(SavedGamesFolder(path_, meddler.Calls()).Save(File, newGame_), std::nullopt)
                << names[i];
            EXPECT_EQ(Content(Path()), newBytes_) << names[i];
        }
    }
    SystemCalls calls = RealSystemCalls();
    bool interrupted = false;
    calls.Read = [&](int file, char* into, std::size_t size) -> long {
        interrupted = !interrupted;
        errno = EINTR;
        return interrupted ? -1 : RealSystemCalls().Read(file, into, std::min(size, std::size_t{100}));
    };
    const auto loaded = SavedGamesFolder(path_, calls).Load(File, FreshGame());
    EXPECT_EQ(WriteGame(std::get<GameState>(loaded)), newBytes_);
}

TEST_F(SavedGames, ShortWritesGoOnAndAnEmptyOneIsAnError) {
    Prepare(true);
    SystemCalls calls = RealSystemCalls();
    calls.Write = [](int file, const char* from, std::size_t size) {
        return RealSystemCalls().Write(file, from, std::min(size, std::size_t{100}));
    };
    EXPECT_EQ(SavedGamesFolder(path_, calls).Save(File, newGame_), std::nullopt);
    EXPECT_EQ(Content(Path()), newBytes_);
    calls.Write = [](int, const char*, std::size_t) { return 0L; };
    EXPECT_EQ(SavedGamesFolder(path_, calls).Save(File, oldGame_), SaveError(SystemReason(EIO)));
    EXPECT_EQ(Content(Path()), newBytes_);
}

TEST_F(SavedGames, AFileSystemThatCannotFlushFoldersWillDo) {
    Prepare(true);
    Meddler meddler;
    meddler.FailAt = 7;  // the second Sync
    meddler.Error = EINVAL;
    EXPECT_EQ(SavedGamesFolder(path_, meddler.Calls()).Save(File, newGame_), std::nullopt);
    EXPECT_EQ(meddler.Names.at(7), "Sync");
}

TEST_F(SavedGames, KilledBeforeOrAfterEachCallTheFileIsTheOldGameOrTheNewOne) {
    for (const bool overwrite : {true, false}) {
        const std::size_t count = CallsOfASave(overwrite).size();
        for (std::size_t i = 0; i < 2 * count; ++i) {
            Prepare(overwrite);
            const auto die = [&](std::size_t place) {
                if (place == i / 2) {
                    kill(getpid(), SIGKILL);
                }
            };
            const int result = InChild([&] {
                Meddler meddler;
                (i % 2 == 0 ? meddler.Before : meddler.After) = die;
                SavedGamesFolder(path_, meddler.Calls()).Save(File, newGame_);
                return 0;
            });
            EXPECT_EQ(result, -1) << "the child was to be killed at call " << i / 2;
            ExpectOldOrNew(overwrite, "killed at " + std::to_string(i));
            EXPECT_EQ(SavedGamesFolder(path_).Save(File, newGame_), std::nullopt);
            EXPECT_FALSE(fs::exists(path_ + "/unfinished.tmp"));
        }
    }
}

TEST_F(SavedGames, AFullDiskKeepsTheOldGame) {
    Prepare(true);
    const int limited = InChild([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{1024, 1024};
        setrlimit(RLIMIT_FSIZE, &limit);
        return SavedGamesFolder(path_).Save(File, newGame_) == SaveError(SystemReason(EFBIG)) ? 0 : 1;
    });
    EXPECT_EQ(limited, 0);
    EXPECT_EQ(Content(Path()), oldBytes_);
    EXPECT_FALSE(fs::exists(path_ + "/unfinished.tmp"));
}

TEST_F(SavedGames, AFullFileSystemKeepsTheOldGame) {
    constexpr int NotAllowed = 77;
    const int result = InChild([&] {
        // A disk of one page, seen by this child alone: one small game fits, a second does not.
        if (unshare(CLONE_NEWNS) != 0 || mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            mount("none", path_.c_str(), "tmpfs", 0, "size=4k") != 0) {
            return NotAllowed;
        }
        const SavedGamesFolder folder(path_);
        const bool saved = !folder.Save(File, oldGame_);
        const bool refused = folder.Save(File, newGame_) == SaveError(SystemReason(ENOSPC));
        const bool kept = Content(Path()) == oldBytes_ && folder.List() == std::vector<std::string>{File};
        return (saved ? 0 : 1) + (refused ? 0 : 2) + (kept ? 0 : 4);
    });
    if (result == NotAllowed) {
        GTEST_SKIP() << "this machine lets nobody mount a small disk";
    }
    EXPECT_EQ(result, 0);
}

TEST_F(SavedGames, AFolderWithoutWritePermissionIsToldAndKept) {
    Prepare(true);
    chmod(path_.c_str(), S_IRUSR | S_IXUSR | S_IROTH | S_IXOTH);
    const int result = InChild([&] {
        constexpr uid_t Nobody = 65534;
        if (geteuid() == 0 && setuid(Nobody) != 0) {
            return 1;
        }
        const SavedGamesFolder folder(path_);
        const bool saved = folder.Save(File, newGame_) == SaveError(SystemReason(EACCES));
        const bool deleted =
            folder.Delete(File) == "The game 'mygame.vrs' could not be deleted.\r" + SystemReason(EACCES);
        return (saved ? 0 : 2) + (deleted ? 0 : 4);
    });
    EXPECT_EQ(result, 0);
    chmod(path_.c_str(), S_IRWXU);
    EXPECT_EQ(Content(Path()), oldBytes_);
}

TEST_F(SavedGames, AGameThatWouldNotReadBackIsNotSaved) {
    Prepare(true);
    newGame_.Players[1].Name = "\u0416";
    EXPECT_EQ(SavedGamesFolder(path_).Save(File, newGame_), SaveError("It would not read back as it is."));
    newGame_.Players[1].Name = "Anna";
    newGame_.CurrentPlayer = 1;
    EXPECT_EQ(SavedGamesFolder(path_).Save(File, newGame_),
              SaveError("CurrentPlayer of the game must be a living human player."));
    EXPECT_EQ(Content(Path()), oldBytes_);
}

TEST_F(SavedGames, ListsPlainFilesOfThePatternInAlphabeticalOrder) {
    for (const char* const name : {"zoo.vrs", "Beta.vrs", "alpha.vrs", ".vrs", "GAME.VRS", "notes.txt", "vrs",
                                   "a.vrs.bak", "unfinished.tmp"}) {
        Put(path_ + "/" + name, "");
    }
    fs::create_directory(path_ + "/folder.vrs");
    const SavedGamesFolder folder(path_);
    EXPECT_EQ(folder.List(), (std::vector<std::string>{".vrs", "alpha.vrs", "Beta.vrs", "zoo.vrs"}));
    EXPECT_TRUE(folder.FileExists(folder.PathOf(".vrs")));
    EXPECT_FALSE(folder.FileExists(folder.PathOf("folder.vrs")));
    EXPECT_FALSE(folder.FileExists(folder.PathOf("ALPHA.vrs")));
    EXPECT_EQ(SavedGamesFolder(path_ + "/none").List(), std::vector<std::string>{});
}

TEST_F(SavedGames, DeletesExactlyTheOneFile) {
    const SavedGamesFolder folder(path_);
    for (const char* const name : {"a.vrs", "*.vrs", "ab.vrs"}) {
        Put(path_ + "/" + name, "");
    }
    EXPECT_EQ(folder.Delete("*.vrs"), std::nullopt);
    EXPECT_EQ(folder.List(), (std::vector<std::string>{"a.vrs", "ab.vrs"}));
    EXPECT_EQ(folder.Delete("*.vrs"), "The game '*.vrs' could not be deleted.\r" + SystemReason(ENOENT));
}

TEST_F(SavedGames, LoadsTheGameOrSaysWhyNot) {
    const SavedGamesFolder folder(path_);
    EXPECT_EQ(folder.Save(File, newGame_), std::nullopt);
    newGame_.GameLoaded = true;
    EXPECT_EQ(std::get<GameState>(folder.Load(File, FreshGame())), newGame_);

    Put(Path(), newBytes_ + std::string(1 << 20, 'x'));
    std::size_t asked = 0;
    SystemCalls calls = RealSystemCalls();
    calls.Read = [&](int file, char* into, std::size_t size) {
        asked += size;
        return RealSystemCalls().Read(file, into, size);
    };
    EXPECT_EQ(std::get<GameState>(SavedGamesFolder(path_, calls).Load(File, FreshGame())), newGame_);
    EXPECT_LE(asked, MaxSavedGameBytes);

    const std::string could = "The game 'mygame.vrs' could not be loaded.\r";
    Put(Path(), WithLine(newGame_, 3, "perhaps"));
    EXPECT_EQ(std::get<LoadError>(folder.Load(File, FreshGame())).Message,
              could + "Line 3: IsDead of Player 1 must be True or False.");
    for (const int error : {EIO, EACCES}) {
        for (std::size_t i = 0; i < 2; ++i) {  // opening and reading
            Meddler meddler;
            meddler.FailAt = i;
            meddler.Error = error;
            const auto result = SavedGamesFolder(path_, meddler.Calls()).Load(File, FreshGame());
            EXPECT_EQ(std::get<LoadError>(result).Message, could + SystemReason(error));
        }
    }
    fs::remove(Path());
    EXPECT_EQ(std::get<LoadError>(folder.Load(File, FreshGame())).Message, could + SystemReason(ENOENT));
}

TEST(GameName, GivesTheFileOrIsRefused) {
    const std::vector<std::pair<std::string, std::string>> files{
        {"MyGame", "mygame.vrs"},
        {"  MYGAME ", "mygame.vrs"},
        {"   ", ".vrs"},
        {"My Game", "my game.vrs"},
        {"..", "...vrs"},
        {"100%&'~", "100%&'~.vrs"},
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
    for (const char* const name : {"a\\b", "a/b", "a:b", "a*", "?", "\"a", "<a", "a>", "a|b", "a\nb", "a\x7F",
                                   "a\u0085", "../x", "\xFF"}) {
        EXPECT_EQ(WhyNoGameName(name),
                  "A game name cannot hold a control character or any of these:\r\\ / : * ? \" < > |")
            << name;
    }
    EXPECT_EQ(SavedText("mygame.vrs"), "Game 'mygame.vrs' properly saved.");
    EXPECT_EQ(DeleteQuestion(".vrs"), "Are you sure you want to delete the game .vrs?");
}

}  // namespace
}  // namespace vorlund
