// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
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

// A folder of saved games for a test, and system calls that fail on request.

namespace vorlund {

/// Prints a result in a failure message.
inline void PrintTo(const SaveResult& result, std::ostream* out) {
    *out << static_cast<int>(result.Outcome) << " " << result.Message;
}

namespace fs = std::filesystem;
using Kind = SaveResult::Kind;

inline const GameState NewOne = NewGame(3, "1 Anna 10/3F; 9 Ben 2/1; 20 Cleo 0/0");
inline const std::string New = WriteGame(NewOne);
inline const std::string Old = WriteGame(NewGame(2, "1 Anna 10/0F; 2 Anna 0/0D; 8 Ben 11/0F"));

inline std::string Content(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline std::string Reason(int error) {
    return std::generic_category().message(error) + ".";
}

inline std::string CouldNot(const std::string& what, const std::string& why) {
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
            if (fails && name == "Close") {
                real(arguments...);  // a file is closed even if that reports an error
            }
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
            files.insert(entry.path().filename().string());
        }
        return files;
    }

    SaveResult Save(bool overwrite = true) const {
        return SavedGamesFolder(folder).Save("my.vrs", NewOne, overwrite);
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
            EXPECT_TRUE(SavedGamesFolder(folder).List().Files.size() <= 1 &&
                        (content == New || content == old));
        };
        const auto result = SavedGamesFolder(folder, calls.Calls()).Save("my.vrs", NewOne, true);
        EXPECT_EQ(Content(path / "my.vrs"), result.Outcome == Kind::NotSaved ? old : New);
        return result;
    }

    /// The error of loading, or the file of the loaded game.
    static std::string Load(const SavedGamesFolder& saves) {
        const auto result = saves.Load("my.vrs", FreshGame());
        const auto* const error = std::get_if<LoadError>(&result);
        const auto* const game = std::get_if<GameState>(&result);
        return error != nullptr ? error->Message : game != nullptr ? WriteGame(*game) : "no such game";
    }

    const long process = RealSystemCalls().Process;
    const fs::path path = fs::temp_directory_path() / ("vorlund-" + std::to_string(process)) / "saves";
    const std::string folder = path.generic_string();
};

inline const SaveResult Saved{Kind::Saved, "Game 'my.vrs' properly saved."};

inline SaveResult NotSaved(const std::string& why) {
    return {Kind::NotSaved, CouldNot("saved", why)};
}

inline SaveResult InDoubt(int error) {
    return {Kind::SavedInDoubt,
            "Game 'my.vrs' saved, but a power cut now could still lose it.\r" + Reason(error)};
}

}  // namespace vorlund
