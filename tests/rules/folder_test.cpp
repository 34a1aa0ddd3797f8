// SPDX-License-Identifier: MIT
#include <cerrno>

#include "tests/rules/saved_games.h"

namespace vorlund {
namespace {

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
              NotSaved(Reason(ENOSPC) + "\rThe unfinished file 'unfinished-" + std::to_string(process) +
                       "-1.tmp' could not be removed.\r" + Reason(ENOSPC)));

    GameState game = NewOne;
    game.Players[1].Name = "\u0416";
    EXPECT_EQ(SavedGamesFolder(folder).Save("my.vrs", game, true),
              NotSaved("It would not read back as it is."));
}

TEST_F(SavedGames, CanBeWrittenByTwoProcessesAtOnce) {
    const std::string own = "unfinished-" + std::to_string(process) + "-1.tmp";
    fs::create_directory(path / own);  // not removed; the next name is used
    for (const char* const name : {"unfinished-7-2.tmp", "unfinished-x-1.tmp", "unfinished-7-1.tmp.vrs"}) {
        Put(name, "");
    }
    // Where open files cannot be replaced, the one that has just replaced the game makes the other give up.
    const SystemCalls real = RealSystemCalls();
    Put("from.vrs", New);
    const int open = real.OpenForReading(folder + "/my.vrs");
    const bool replacesOpenFiles = real.Rename(folder + "/from.vrs", folder + "/my.vrs") == 0;
    EXPECT_EQ(real.Close(open), 0);
    fs::remove(path / "from.vrs");
    for (std::size_t place = 1, calls = 1; place <= calls; ++place) {
        FailingCalls one;
        FailingCalls other;
        one.Before = [&] {
            if (one.Names.size() + 1 == place) {
                const SavedGamesFolder saves(folder, other.Calls());
                const bool isReplaced = Content(path / "my.vrs") == New;
                EXPECT_EQ(saves.Save("my.vrs", NewOne, true),
                          isReplaced && !replacesOpenFiles ? NotSaved(Reason(EACCES)) : Saved);
                EXPECT_EQ(saves.Save("other.vrs", NewOne, true).Outcome, Kind::Saved);
            }
        };
        Put("my.vrs", Old);
        EXPECT_EQ(SavedGamesFolder(folder, one.Calls()).Save("my.vrs", NewOne, true), Saved) << place;
        calls = one.Names.size();
    }
    EXPECT_EQ(Content(path / "my.vrs"), New);
    EXPECT_EQ(Files(), (std::set<std::string>{"my.vrs", "other.vrs", own, "unfinished-7-1.tmp.vrs",
                                              "unfinished-x-1.tmp"}));
}

TEST_F(SavedGames, AreToldApartByFileAndNotByPath) {
    const SystemCalls calls = RealSystemCalls();
    Put("other.vrs", Old);
    const int file = calls.OpenForReading(folder + "/my.vrs");
    EXPECT_EQ(calls.IsNamed(file, folder + "/my.vrs"), 1);
    EXPECT_EQ(calls.IsNamed(file, folder + "/other.vrs"), 0);
    EXPECT_EQ(calls.IsNamed(file, folder + "/none.vrs"), 0);
    EXPECT_EQ(calls.Close(file), 0);
}

TEST_F(SavedGames, AreListedInOrderAndDeletedByExactName) {
    for (const char* const name : {"Zoo.vrs", "Beta.vrs", ".vrs", "GAME.VRS", "a.vrs.bak", "%.vrs"}) {
        Put(name, "");
    }
    const SavedGamesFolder saves(folder);
    EXPECT_EQ(saves.Delete("%.vrs"), std::nullopt);
    EXPECT_EQ(saves.Delete("%.vrs"), "The game '%.vrs' could not be deleted.\r" + Reason(ENOENT));
    const std::vector<std::string> all{".vrs", "Beta.vrs", "my.vrs", "Zoo.vrs"};
    EXPECT_EQ(saves.List().Files, all);
    FailingCalls blind{0, {"Look"}, EACCES};
    EXPECT_EQ(SavedGamesFolder(folder, blind.Calls()).List().Files, all);
    EXPECT_EQ(SavedGamesFolder(folder + "/none").List().Error, std::nullopt);
    EXPECT_EQ(SavedGamesFolder(folder + "/.vrs").List().Error,
              "The saved games could not be listed.\r" + Reason(ENOTDIR));
}

TEST_F(SavedGames, AreLoadedOrGiveTheError) {
    const auto load = [&](FailingCalls calls) {
        const std::string result = Load(SavedGamesFolder(folder, calls.Calls()));
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
    EXPECT_EQ(Load(SavedGamesFolder(folder + "/my.vrs")), "no such game") << "a file in place of the folder";
    Put("my.vrs", "");
    EXPECT_EQ(load({}), CouldNot("loaded", "Line 1: The file ends before NumPlayers of the game."));
}

}  // namespace
}  // namespace vorlund
