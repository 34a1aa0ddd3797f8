// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <system_error>

#include "savegame/folder.h"
#include "savegame/format.h"
#include "tests/engine/games.h"
#include "tests/rules/small_worlds.h"

namespace vorlund {

/// Prints a result in a failure message.
void PrintTo(const SaveResult& result, std::ostream* out) {
    *out << static_cast<int>(result.Outcome) << " " << result.Message;
}

namespace {

namespace fs = std::filesystem;
using Kind = SaveResult::Kind;

const GameState NewOne = NewGame(3, "1 Anna 10/3F; 9 Ben 2/1; 20 Cleo 0/0");
const std::string New = WriteGame(NewOne);
const std::string Old = WriteGame(NewGame(2, "1 Anna 10/0F; 2 Anna 0/0D; 8 Ben 11/0F"));

std::string Content(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string Reason(int error) {
    return std::generic_category().message(error) + ".";
}

std::string CouldNot(const std::string& what, const std::string& why) {
    return "The game 'my.vrs' could not be " + what + ".\r" + why;
}

/// System calls that record their names and fail on request.
struct FailingCalls {
    std::size_t FailAt = 0;              ///< which call fails, counted from 1
    std::set<std::string> FailAlways{};  ///< names of calls that fail each time
    int Error = 0;                       ///< errno of a failure
    std::size_t BytesAtOnce = MaxSavedGameBytes;
    std::function<void()> Before = [] {};  ///< called before each call
    std::vector<std::string> Names{};      ///< of the calls so far

    SystemCalls Calls() {
        SystemCalls calls = RealSystemCalls();
        calls.Sync = [](int) { return 0; };  // slow, and no test can observe its effect
        std::istringstream names(
            "OpenForReading CreateNew OpenForLocking OpenFolder Read Write Sync SyncFileSystem Close Lock "
            "IsNamed Rename Unlink MakeFolder Look ReadLink ListFolder");
        const auto wrapAll = [&](auto&... call) {
            (Wrap(call, *std::istream_iterator<std::string>(names)), ...);
        };
        wrapAll(calls.OpenForReading, calls.CreateNew, calls.OpenForLocking, calls.OpenFolder, calls.Read,
                calls.Write, calls.Sync, calls.SyncFileSystem, calls.Close, calls.Lock, calls.IsNamed,
                calls.Rename, calls.Unlink, calls.MakeFolder, calls.Look, calls.ReadLink, calls.ListFolder);
        return calls;
    }

    template <typename Result, typename... Arguments>
    void Wrap(std::function<Result(Arguments...)>& call, const std::string& name) {
        call = [this, name, real = call](Arguments... arguments) -> Result {
            Before();
            Names.push_back(name);
            if constexpr (sizeof...(Arguments) == 3) {  // Read and Write
                auto& size = std::get<2>(std::tie(arguments...));
                size = std::min(size, BytesAtOnce);
            }
            const bool fails = Names.size() == FailAt || FailAlways.contains(name);
            errno = Error;
            return fails ? -1 : real(arguments...);
        };
    }
};

struct SavedGames : testing::Test {
    SavedGames() {
        fs::create_directories(path);
        Put("my.vrs", Old);
    }
    ~SavedGames() override { fs::remove_all(path.parent_path()); }

    void Put(const std::string& file, const std::string& bytes) const {
        std::ofstream(path / file, std::ios::binary) << bytes;
    }

    std::set<std::string> Files() const {
        std::set<std::string> files;
        for (const auto& entry : fs::directory_iterator(path)) {
            files.insert(entry.path().filename());
        }
        return files;
    }

    SaveResult Save(bool overwrite = true) const {
        return SavedGamesFolder(path).Save("my.vrs", NewOne, overwrite);
    }

    /// Saves the new game over the old one, or without a folder. Before each call the file must be one or the
    /// other.
    SaveResult Save(FailingCalls& calls, bool overOld = true) const {
        const std::string old = overOld ? Old : "";
        fs::remove_all(path.parent_path());
        if (overOld) {
            fs::create_directories(path);
            Put("my.vrs", Old);
            Put("unfinished-1-1.tmp", "left by a crash");
        }
        calls.Before = [&] {
            const std::string content = Content(path / "my.vrs");
            EXPECT_TRUE(SavedGamesFolder(path).List().Files.size() <= 1 &&
                        (content == New || content == old));
        };
        const auto result = SavedGamesFolder(path, calls.Calls()).Save("my.vrs", NewOne, true);
        EXPECT_EQ(Content(path / "my.vrs"), result.Outcome == Kind::NotSaved ? old : New);
        return result;
    }

    /// The error of loading, or the file of the loaded game.
    static std::string Load(const SavedGamesFolder& folder) {
        const auto result = folder.Load("my.vrs", FreshGame());
        const auto* const error = std::get_if<LoadError>(&result);
        const auto* const game = std::get_if<GameState>(&result);
        return error != nullptr ? error->Message : game != nullptr ? WriteGame(*game) : "no such game";
    }

    const fs::path path = fs::temp_directory_path() / ("vorlund-" + std::to_string(getpid())) / "saves";
};

const SaveResult Saved{Kind::Saved, "Game 'my.vrs' properly saved."};

SaveResult NotSaved(const std::string& why) {
    return {Kind::NotSaved, CouldNot("saved", why)};
}

SaveResult InDoubt(int error) {
    return {Kind::SavedInDoubt,
            "Game 'my.vrs' saved, but a power cut now could still lose it.\r" + Reason(error)};
}

TEST_F(SavedGames, AreTheOldOrTheNewOneWhicheverCallFails) {
    // Every call of a save and its result if that call fails; Leftover: saved, but the crash's file is not
    // removed.
    const std::pair<bool, std::string> rows[]{
        {true,
         "Look:NotSaved ReadLink:NotSaved ListFolder:Leftover Look:Leftover OpenForLocking:Leftover "
         "Lock:Leftover IsNamed:Leftover Unlink:Leftover Close:Saved CreateNew:NotSaved OpenForLocking:Saved "
         "Lock:Saved IsNamed:Saved Write:NotSaved Sync:NotSaved Close:NotSaved Rename:NotSaved "
         "OpenFolder:Saved Sync:InDoubt Close:Saved Close:Saved"},
        {false,
         "Look:NotSaved ReadLink:NotSaved ListFolder:Saved CreateNew:NotSaved MakeFolder:NotSaved "
         "MakeFolder:NotSaved MakeFolder:NotSaved CreateNew:NotSaved OpenForLocking:Saved Lock:Saved "
         "IsNamed:Saved Write:NotSaved Sync:NotSaved Close:NotSaved Rename:NotSaved "
         "OpenFolder:Saved Sync:InDoubt Close:Saved OpenFolder:Saved Sync:InDoubt Close:Saved "
         "OpenFolder:Saved Sync:InDoubt Close:Saved Close:Saved"},
    };
    for (const auto& [overOld, row] : rows) {
        FailingCalls none;
        EXPECT_EQ(Save(none, overOld), Saved);
        EXPECT_TRUE(overOld || fs::status(path).permissions() == fs::perms::owner_all);
        std::istringstream expected(row);
        std::vector<std::string> names;
        bool began = false;
        for (std::string outcome; std::getline(expected >> std::ws, outcome, ':');) {
            names.push_back(outcome);
            began = began || outcome == "CreateNew";
            expected >> outcome;
            for (const int error : {ENOSPC, EACCES, EINTR}) {
                const std::string result = error == EINTR ? "Saved" : outcome;
                FailingCalls failing{names.size(), {}, error};
                EXPECT_EQ(Save(failing, overOld), result == "NotSaved"  ? NotSaved(Reason(error))
                                                  : result == "InDoubt" ? InDoubt(error)
                                                                        : Saved)
                    << names.size() << names.back();
                const std::size_t kept = fs::exists(path / "my.vrs") ? 1 : 0;
                const bool isLeft = result == "Leftover" || (overOld && result == "NotSaved" && !began);
                EXPECT_EQ(fs::exists(path) ? Files().size() : 0, kept + (isLeft ? 1 : 0)) << names.size();
            }
        }
        EXPECT_EQ(none.Names, names);
    }
}

TEST_F(SavedGames, AreWrittenInSpiteOfFileSystemLimitsOrGiveTheError) {
    const auto save = [&](FailingCalls calls) { return Save(calls); };
    EXPECT_EQ(save({0, {}, 0, 1000}), Saved);
    EXPECT_EQ(save({0, {}, 0, 0}), NotSaved(Reason(EIO)));
    EXPECT_EQ(save({19, {}, EINVAL}), Saved) << "a file system that cannot flush folders";
    EXPECT_EQ(save({19, {}, ENOTSUP}), Saved);
    EXPECT_EQ(save({0, {"OpenFolder", "ListFolder"}, EACCES}), Saved) << "a folder that cannot be read";
    EXPECT_EQ(save({0, {"OpenFolder", "ListFolder", "SyncFileSystem"}, EACCES}), InDoubt(EACCES));
    EXPECT_EQ(save({0, {"Lock"}, ENOLCK}), Saved) << "a file system without locks";
    EXPECT_EQ(save({0, {"Look"}, EIO}), NotSaved(Reason(EIO)));
    EXPECT_EQ(save({0, {"Write", "Unlink"}, ENOSPC}),
              NotSaved(Reason(ENOSPC) + "\rThe unfinished file 'unfinished-" + std::to_string(getpid()) +
                       "-1.tmp' could not be removed.\r" + Reason(ENOSPC)));

    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small{1000, limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    const SaveResult limited = Save();
    setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_EQ(limited, NotSaved(Reason(EFBIG)));

    GameState game = NewOne;
    game.Players[1].Name = "\u0416";
    EXPECT_EQ(SavedGamesFolder(path).Save("my.vrs", game, true),
              NotSaved("It would not read back as it is."));
}

TEST_F(SavedGames, CanBeWrittenByTwoProcessesAtOnce) {
    const std::string own = "unfinished-" + std::to_string(getpid()) + "-1.tmp";
    EXPECT_EQ(mkfifo((path / own).c_str(), 0600), 0);  // not removed; the next name is used
    for (const char* const name : {"unfinished-7-2.tmp", "unfinished-x-1.tmp", "unfinished-7-1.tmp.vrs"}) {
        Put(name, "");
    }
    for (std::size_t place = 1, calls = 1; place <= calls; ++place) {
        FailingCalls one;
        FailingCalls other;
        one.Before = [&] {
            if (one.Names.size() + 1 == place) {
                const SavedGamesFolder folder(path, other.Calls());
                EXPECT_EQ(folder.Save("my.vrs", NewOne, true), Saved);
                EXPECT_EQ(folder.Save("other.vrs", NewOne, true).Outcome, Kind::Saved);
            }
        };
        Put("my.vrs", Old);
        EXPECT_EQ(SavedGamesFolder(path, one.Calls()).Save("my.vrs", NewOne, true), Saved) << place;
        calls = one.Names.size();
    }
    EXPECT_EQ(Content(path / "my.vrs"), New);
    EXPECT_EQ(Files(), (std::set<std::string>{"my.vrs", "other.vrs", own, "unfinished-7-1.tmp.vrs",
                                              "unfinished-x-1.tmp"}));
}

TEST_F(SavedGames, AreToldApartByFileAndNotByPath) {
    const SystemCalls calls = RealSystemCalls();
    Put("other.vrs", Old);
    const int file = calls.OpenForReading(path / "my.vrs");
    EXPECT_EQ(calls.IsNamed(file, path / "my.vrs"), 1);
    EXPECT_EQ(calls.IsNamed(file, path / "other.vrs"), 0);
    EXPECT_EQ(calls.IsNamed(file, path / "none.vrs"), 0);
    EXPECT_EQ(calls.Close(file), 0);
}

TEST_F(SavedGames, BehindASymbolicLinkAreReplacedButNotTheLink) {
    const fs::path disk = path.parent_path() / "disk";
    const std::string behind = "It is a link to '" + (disk / "real.vrs").string() + "'.\r";
    const auto link = [&](const char* name, const fs::path& target) {
        fs::remove(path / name);
        fs::create_symlink(target, path / name);
    };
    link("hop", disk / "real.vrs");
    link("my.vrs", "hop");
    EXPECT_EQ(Save(), NotSaved(behind + Reason(ENOENT))) << "the disk is not mounted";
    EXPECT_FALSE(fs::exists(disk));
    EXPECT_EQ(Load(SavedGamesFolder(path)), "no such game");
    EXPECT_EQ(SavedGamesFolder(path).List().Files, std::vector<std::string>{});
    fs::create_directory(disk);
    EXPECT_EQ(Save(false), Saved);
    EXPECT_EQ(Save(false), (SaveResult{Kind::AlreadyThere,
                                       "Saved game already exists...\r"
                                       "Would you like to overwrite this file?"}));
    std::ofstream(disk / "real.vrs") << Old;
    EXPECT_EQ(Save(), Saved);
    EXPECT_TRUE(fs::is_symlink(path / "my.vrs") && fs::is_symlink(path / "hop"));
    EXPECT_EQ(Content(disk / "real.vrs"), New);
    EXPECT_EQ(Load(SavedGamesFolder(path)), New);
    EXPECT_EQ(SavedGamesFolder(path).Delete("my.vrs"), std::nullopt);
    EXPECT_EQ(Content(disk / "real.vrs"), New);
    link("my.vrs", "my.vrs");
    EXPECT_EQ(Save(), NotSaved(Reason(ELOOP)));
    EXPECT_EQ(Load(SavedGamesFolder(path)), CouldNot("loaded", Reason(ELOOP)));
    EXPECT_EQ(SavedGamesFolder(path).List().Files, std::vector<std::string>{"my.vrs"});
}

TEST_F(SavedGames, AreRegularFilesOnly) {
    const fs::path place = path / "my.vrs";
    const std::pair<const char*, std::function<void()>> rows[]{
        {"folder", [&] { fs::create_directory(place); }},
        {"pipe", [&] { EXPECT_EQ(mkfifo(place.c_str(), 0600), 0); }},
        {"socket", [&] { EXPECT_EQ(mknod(place.c_str(), S_IFSOCK | 0600, 0), 0); }},
        {"device", [&] { fs::create_symlink("/dev/null", place); }},
    };
    for (const auto& [kind, make] : rows) {
        fs::remove(place);
        make();
        const auto type = fs::symlink_status(place).type();
        const std::string why = std::string("There is a ") + kind + " of that name.";
        EXPECT_EQ(Save(), NotSaved(why));
        EXPECT_EQ(Load(SavedGamesFolder(path)), CouldNot("loaded", why));
        EXPECT_EQ(SavedGamesFolder(path).List().Files, std::vector<std::string>{});
        EXPECT_EQ(fs::symlink_status(place).type(), type);
    }
}

TEST_F(SavedGames, AreListedInOrderAndDeletedByExactName) {
    for (const char* const name : {"Zoo.vrs", "Beta.vrs", ".vrs", "GAME.VRS", "a.vrs.bak", "*.vrs"}) {
        Put(name, "");
    }
    const SavedGamesFolder folder(path);
    EXPECT_EQ(folder.Delete("*.vrs"), std::nullopt);
    EXPECT_EQ(folder.Delete("*.vrs"), "The game '*.vrs' could not be deleted.\r" + Reason(ENOENT));
    const std::vector<std::string> all{".vrs", "Beta.vrs", "my.vrs", "Zoo.vrs"};
    EXPECT_EQ(folder.List().Files, all);
    FailingCalls blind{0, {"Look"}, EACCES};
    EXPECT_EQ(SavedGamesFolder(path, blind.Calls()).List().Files, all);
    EXPECT_EQ(SavedGamesFolder(path / "none").List().Error, std::nullopt);
    EXPECT_EQ(SavedGamesFolder(path / ".vrs").List().Error,
              "The saved games could not be listed.\r" + Reason(ENOTDIR));
}

TEST_F(SavedGames, AreLoadedOrGiveTheError) {
    const auto load = [&](FailingCalls calls) {
        const std::string result = Load(SavedGamesFolder(path, calls.Calls()));
        EXPECT_LT(calls.Names.size(), 80U) << "only the start of a large file is read";
        const bool isOpened = std::count(calls.Names.begin(), calls.Names.end(), "Read") > 0;
        EXPECT_EQ(calls.Names.back() == "Close", isOpened);
        return result;
    };
    Put("my.vrs", New + std::string(1 << 20, 'x'));
    EXPECT_EQ(load({4, {}, EINTR, 1000}), New);
    for (const std::size_t place : {1U, 2U, 3U}) {
        EXPECT_EQ(load({place, {}, EIO}), CouldNot("loaded", Reason(EIO)));
    }
    EXPECT_EQ(load({2, {}, ENOENT}), "no such game") << "deleted after Look";
    EXPECT_EQ(Load(SavedGamesFolder(path / "my.vrs")), "no such game") << "a file in place of the folder";
    Put("my.vrs", "");
    EXPECT_EQ(load({}), CouldNot("loaded", "Line 1: The file ends before NumPlayers of the game."));
}

}  // namespace
}  // namespace vorlund
