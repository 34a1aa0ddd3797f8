// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <set>
#include <system_error>

#include "savegame/folder.h"
#include "savegame/format.h"
#include "tests/engine/games.h"
#include "tests/rules/small_worlds.h"

namespace vorlund {

/// How an outcome is printed when it is not the one that was due.
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

/// Stands between the saved games and the system, looks on before each call and makes some of them fail.
struct Meddler {
    std::size_t FailAt = 0;    ///< which call, counted from 1
    std::string FailAlways{};  ///< calls that fail each time
    int Error = 0;             ///< and how
    std::size_t BytesAtOnce = MaxSavedGameBytes;
    std::function<void()> Before = [] {};
    std::string Names{};  ///< of the calls so far, a letter each

    SystemCalls Calls() {
        SystemCalls calls = RealSystemCalls();
        calls.Sync = [](int) { return 0; };  // nobody sees it, and it takes its time
        const auto wrapAll = [this](const char* name, auto&... call) { (Wrap(call, *name++), ...); };
        wrapAll("onxfrwsyclimukted", calls.OpenForReading, calls.CreateNew, calls.OpenForLocking,
                calls.OpenFolder, calls.Read, calls.Write, calls.Sync, calls.SyncFileSystem, calls.Close,
                calls.Lock, calls.IsNamed, calls.Rename, calls.Unlink, calls.MakeFolder, calls.Look,
                calls.ReadLink, calls.ListFolder);
        return calls;
    }

    template <typename Result, typename... Arguments>
    void Wrap(std::function<Result(Arguments...)>& call, char name) {
        call = [this, name, real = call](Arguments... arguments) -> Result {
            Before();
            Names += name;
            if constexpr (sizeof...(Arguments) == 3) {  // reading and writing
                auto& size = std::get<2>(std::tie(arguments...));
                size = std::min(size, BytesAtOnce);
            }
            const bool fails = Names.size() == FailAt || FailAlways.find(name) != std::string::npos;
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

    /// Everything in the folder.
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

    /// The new game saved over the old one, or into no folder. At every moment the file is one or the other.
    SaveResult Save(Meddler& meddler, bool overOld = true) const {
        const std::string old = overOld ? Old : "";
        fs::remove_all(path.parent_path());
        if (overOld) {
            fs::create_directories(path);
            Put("my.vrs", Old);
            Put("unfinished-1-1.tmp", "what a crash has left");
        }
        meddler.Before = [&] {
            const std::string content = Content(path / "my.vrs");
            EXPECT_TRUE(SavedGamesFolder(path).List().Files.size() <= 1 &&
                        (content == New || content == old));
        };
        const auto result = SavedGamesFolder(path, meddler.Calls()).Save("my.vrs", NewOne, true);
        EXPECT_EQ(Content(path / "my.vrs"), result.Outcome == Kind::NotSaved ? old : New);
        return result;
    }

    /// What loading says, or the game.
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

TEST_F(SavedGames, AreTheOldOneOrTheNewOneWhateverCallFails) {
    // Each system call and what becomes of the game when it fails: N not saved, S saved, L saved, but the
    // leftover of the crash stays, D saved in doubt. The whole new file comes first, then its name.
    const std::tuple<bool, std::string, std::string> rows[]{
        {true, "tedtxliucnxliwscmfscc", "NNLLLLLLSNSSSNNNNSDSS"},
        {false, "tednkkknxliwscmfscfscfscc", "NNSNNNNNSSSNNNNSDSSDSSDSS"},
    };
    for (const auto& [overOld, calls, outcomes] : rows) {
        Meddler none;
        EXPECT_EQ(Save(none, overOld), Saved);
        EXPECT_EQ(none.Names, calls);
        for (std::size_t place = 1; place <= calls.size(); ++place) {
            for (const int error : {ENOSPC, EACCES, EINTR}) {
                Meddler meddler{place, "", error};
                const char outcome = error == EINTR ? 'S' : outcomes[place - 1];
                EXPECT_EQ(Save(meddler, overOld), outcome == 'N'   ? NotSaved(Reason(error))
                                                  : outcome == 'D' ? InDoubt(error)
                                                                   : Saved)
                    << place << calls[place - 1];
                const std::size_t tidy = fs::exists(path / "my.vrs") ? 1 : 0;
                const bool early = overOld && outcome == 'N' && place < calls.find('n');
                EXPECT_EQ(fs::exists(path) ? Files().size() : 0, tidy + (outcome == 'L' || early ? 1 : 0))
                    << place;
            }
        }
    }
}

TEST_F(SavedGames, AreWrittenAsFarAsTheMachineLetsThem) {
    const auto save = [&](Meddler meddler) { return Save(meddler); };
    EXPECT_EQ(save({0, "", 0, 1000}), Saved);
    EXPECT_EQ(save({0, "", 0, 0}), NotSaved(Reason(EIO)));
    EXPECT_EQ(save({19, "", EINVAL}), Saved) << "a file system that flushes no folders";
    EXPECT_EQ(save({0, "fd", EACCES}), Saved) << "a folder that cannot be read";
    EXPECT_EQ(save({0, "fdy", EACCES}), InDoubt(EACCES));
    EXPECT_EQ(save({0, "l", ENOLCK}), Saved) << "a file system without locks";
    EXPECT_EQ(save({0, "t", EIO}), NotSaved(Reason(EIO)));
    EXPECT_EQ(save({0, "wu", ENOSPC}),
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

TEST_F(SavedGames, OfTwoCopiesDoNotDisturbEachOther) {
    const std::string own = "unfinished-" + std::to_string(getpid()) + "-1.tmp";
    EXPECT_EQ(mkfifo((path / own).c_str(), 0600), 0);  // no leftover of ours, so the next name is taken
    for (const char* const name : {"unfinished-7-2.tmp", "unfinished-x-1.tmp", "unfinished-7-1.tmp.vrs"}) {
        Put(name, "");
    }
    for (std::size_t place = 1, calls = 1; place <= calls; ++place) {
        Meddler one;
        Meddler other;
        one.Before = [&] {
            if (one.Names.size() + 1 == place) {
                const SavedGamesFolder folder(path, other.Calls());
                EXPECT_EQ(folder.Save("my.vrs", NewOne, true), Saved);
                EXPECT_EQ(folder.Save("other.vrs", NewOne, true).Outcome, Kind::Saved);
            }
        };
        Put("my.vrs", Old);
        EXPECT_EQ(SavedGamesFolder(path, one.Calls()).Save("my.vrs", NewOne, true), Saved) << one.Names;
        calls = one.Names.size();
    }
    EXPECT_EQ(Content(path / "my.vrs"), New);
    EXPECT_EQ(Files(), (std::set<std::string>{"my.vrs", "other.vrs", own, "unfinished-7-1.tmp.vrs",
                                              "unfinished-x-1.tmp"}));
}

TEST_F(SavedGames, BehindALinkAreReplacedAndTheLinkStays) {
    const fs::path disk = path.parent_path() / "disk";
    const std::string behind = "It is a link to '" + (disk / "real.vrs").string() + "'.\r";
    const auto link = [&](const char* name, const fs::path& target) {
        fs::remove(path / name);
        fs::create_symlink(target, path / name);
    };
    link("hop", disk / "real.vrs");
    link("my.vrs", "hop");
    EXPECT_EQ(Save(), NotSaved(behind + Reason(ENOENT))) << "the disk is not plugged in";
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

TEST_F(SavedGames, AreNothingButFiles) {
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

TEST_F(SavedGames, AreListedInOrderAndDeletedOneByOne) {
    for (const char* const name : {"zoo.vrs", "Beta.vrs", ".vrs", "GAME.VRS", "a.vrs.bak", "*.vrs"}) {
        Put(name, "");
    }
    const SavedGamesFolder folder(path);
    EXPECT_EQ(folder.Delete("*.vrs"), std::nullopt);
    EXPECT_EQ(folder.Delete("*.vrs"), "The game '*.vrs' could not be deleted.\r" + Reason(ENOENT));
    const std::vector<std::string> all{".vrs", "Beta.vrs", "my.vrs", "zoo.vrs"};
    EXPECT_EQ(folder.List().Files, all);
    Meddler blind{0, "t", EACCES};
    EXPECT_EQ(SavedGamesFolder(path, blind.Calls()).List().Files, all);
    EXPECT_EQ(SavedGamesFolder(path / "none").List().Error, std::nullopt);
    EXPECT_EQ(SavedGamesFolder(path / ".vrs").List().Error,
              "The saved games could not be listed.\r" + Reason(ENOTDIR));
}

TEST_F(SavedGames, AreLoadedOrSayWhyNot) {
    const auto load = [&](Meddler meddler) {
        const std::string result = Load(SavedGamesFolder(path, meddler.Calls()));
        EXPECT_LT(meddler.Names.size(), 80U) << "the rest of a large file is left alone";
        return result;
    };
    Put("my.vrs", New + std::string(1 << 20, 'x'));
    EXPECT_EQ(load({4, "", EINTR, 1000}), New);
    for (const std::size_t place : {1U, 2U, 3U}) {
        EXPECT_EQ(load({place, "", EIO}), CouldNot("loaded", Reason(EIO)));
    }
    EXPECT_EQ(load({2, "", ENOENT}), "no such game") << "it has gone this moment";
    Put("my.vrs", "");
    EXPECT_EQ(load({}), CouldNot("loaded", "Line 1: The file ends before NumPlayers of the game."));
}

}  // namespace
}  // namespace vorlund
