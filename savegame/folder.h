// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "savegame/system_calls.h"
#include "state/game_state.h"

namespace vorlund {

/// How Save has ended, with a text for the player.
struct SaveResult {
    enum class Kind {
        Saved,         ///< and on the disk
        SavedInDoubt,  ///< but it may not outlast a power cut
        AlreadyThere,  ///< nothing has changed: a game of that name is there, and was not to be overwritten
        NotSaved       ///< nothing has changed
    };
    Kind Outcome;
    std::string Message;

    bool operator==(const SaveResult&) const = default;
};

/// A saved game could not be loaded; nothing has changed.
struct LoadError {
    std::string Message;  ///< for the player: the file, and the system's reason or the line and what is wrong

    bool operator==(const LoadError&) const = default;
};

/// There is no saved game of that name, or no longer.
struct NoSuchGame {};

/// The saved games, in alphabetical order whatever the case.
struct SavedGamesList {
    std::vector<std::string> Files{};
    std::optional<std::string> Error{};  ///< why there may be more
};

/// The folder of the saved games. It need not exist: it is made at the first save. Files are named by their
/// bare name, as FileNameOf and List give it. Every error is a text for the player that names the file and
/// the system's reason; lines are joined by a carriage return.
class SavedGamesFolder {
public:
    /// `path` without a slash at its end.
    explicit SavedGamesFolder(std::string path, SystemCalls calls = RealSystemCalls());

    /// What can be loaded. What cannot be looked at is listed: loading it says why.
    SavedGamesList List() const;

    /// Saves `game`, whose turn a living human has, as `file`, replacing what was saved there if `overwrite`
    /// says so. Whatever happens on the way, crash included, the file is the old game or the new one, whole.
    SaveResult Save(const std::string& file, const GameState& game, bool overwrite) const;

    /// The game in `file` over `fresh`, as ReadGame gives it.
    std::variant<GameState, NoSuchGame, LoadError> Load(const std::string& file,
                                                        const GameState& fresh) const;

    /// Deletes `file` and no other, and of a link the link alone. Nothing when it is gone, otherwise the
    /// error.
    std::optional<std::string> Delete(const std::string& file) const;

private:
    std::string PathOf(const std::string& file) const { return path_ + "/" + file; }

    /// Whether a plain file of exactly this path exists. Nothing when that cannot be told, or when something
    /// else is there; `whyNot` says so.
    std::optional<bool> FileExists(const std::string& path, std::string& whyNot) const;

    /// Reads as much of the file as may be a game. 0 or the system's number of the error.
    int ReadStart(const std::string& path, std::string& bytes) const;

    std::string path_;
    SystemCalls calls_;
};

}  // namespace vorlund
