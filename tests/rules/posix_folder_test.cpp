// SPDX-License-Identifier: MIT
#include <sys/resource.h>
#include <sys/stat.h>

#include <cerrno>

#include "tests/rules/saved_games.h"

// What only the file systems of POSIX have: limits, permissions, symbolic links, pipes, sockets, devices and
// every character in a name.

namespace vorlund {
namespace {

TEST_F(SavedGames, AreNotCutOffByALimitOnFileSizes) {
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small{1000, limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    const SaveResult limited = Save();
    setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_EQ(limited, NotSaved(Reason(EFBIG)));
}

TEST_F(SavedGames, ArePrivate) {
    fs::remove_all(path.parent_path());
    EXPECT_EQ(Save(), Saved);
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_all);
}

TEST_F(SavedGames, AreDeletedByExactName) {
    Put("*.vrs", "");
    EXPECT_EQ(SavedGamesFolder(folder).Delete("*.vrs"), std::nullopt);
    EXPECT_EQ(Files(), std::set<std::string>{"my.vrs"});
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
    EXPECT_EQ(Load(SavedGamesFolder(folder)), "no such game");
    EXPECT_EQ(SavedGamesFolder(folder).List().Files, std::vector<std::string>{});
    fs::create_directory(disk);
    EXPECT_EQ(Save(false), Saved);
    EXPECT_EQ(Save(false), (SaveResult{Kind::AlreadyThere,
                                       "Saved game already exists...\r"
                                       "Would you like to overwrite this file?"}));
    std::ofstream(disk / "real.vrs") << Old;
    EXPECT_EQ(Save(), Saved);
    EXPECT_TRUE(fs::is_symlink(path / "my.vrs") && fs::is_symlink(path / "hop"));
    EXPECT_EQ(Content(disk / "real.vrs"), New);
    EXPECT_EQ(Load(SavedGamesFolder(folder)), New);
    EXPECT_EQ(SavedGamesFolder(folder).Delete("my.vrs"), std::nullopt);
    EXPECT_EQ(Content(disk / "real.vrs"), New);
    link("my.vrs", "my.vrs");
    EXPECT_EQ(Save(), NotSaved(Reason(ELOOP)));
    EXPECT_EQ(Load(SavedGamesFolder(folder)), CouldNot("loaded", Reason(ELOOP)));
    EXPECT_EQ(SavedGamesFolder(folder).List().Files, std::vector<std::string>{"my.vrs"});
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
        EXPECT_EQ(Load(SavedGamesFolder(folder)), CouldNot("loaded", why));
        EXPECT_EQ(SavedGamesFolder(folder).List().Files, std::vector<std::string>{});
        EXPECT_EQ(fs::symlink_status(place).type(), type);
    }
}

}  // namespace
}  // namespace vorlund
