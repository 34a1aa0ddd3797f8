// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "machine/system_calls.h"
#include "state/game_state.h"

namespace vorlund {

/// The result of Save, with a text for the player.
struct SaveResult {
    enum class Kind {
        Saved,         ///< written and flushed to the disk
        SavedInDoubt,  ///< written, but flushing failed: a power failure may lose the new file
        AlreadyThere,  ///< nothing has changed: the file exists and `overwrite` was false
        NotSaved       ///< nothing has changed
    };
    Kind Outcome;
    std::string Message;

    bool operator==(const SaveResult&) const = default;
};

/// A saved game could not be loaded; nothing has changed.
struct LoadError {
    std::string Message;  ///< for the player: the file, and the system's error or the bad line and its fault

    bool operator==(const LoadError&) const = default;
};

/// The file does not exist.
struct NoSuchGame {};

/// The saved games, sorted by name without regard to case.
struct SavedGamesList {
    std::vector<std::string> Files{};
    std::optional<std::string> Error{};  ///< why the list may be incomplete
};

/// The folder of the saved games. It need not exist: the first save makes it. Files are given by name, as
/// FileNameOf and List return it. An error is a text for the player with the file and the system's error; its
/// lines are separated by carriage returns.
class SavedGamesFolder {
public:
    /// `path` without a slash at its end.
    explicit SavedGamesFolder(std::string path, SystemCalls calls = RealSystemCalls());

    /// The files that Load may be asked for. One whose kind cannot be determined is listed; loading it fails
    /// with the error.
    SavedGamesList List() const;

    /// Saves `game`, in which a living human has the turn, as `file`; replaces an existing file only if
    /// `overwrite` is true. At every moment, even after a crash, the file is the complete old or the complete
    /// new game.
    SaveResult Save(const std::string& file, const GameState& game, bool overwrite) const;

    /// The game in `file`, read over `fresh` by ReadGame.
    std::variant<GameState, NoSuchGame, LoadError> Load(const std::string& file,
                                                        const GameState& fresh) const;

    /// Deletes exactly `file`; of a symbolic link only the link. Nothing on success, otherwise the error.
    std::optional<std::string> Delete(const std::string& file) const;

private:
    std::string PathOf(const std::string& file) const { return path_ + "/" + file; }

    /// Whether a regular file exists at `path`. Nothing, with the reason in `whyNot`, when that cannot be
    /// determined or something else is there.
    std::optional<bool> FileExists(const std::string& path, std::string& whyNot) const;

    /// Reads the first MaxSavedGameBytes of the file. Returns 0 or an errno value.
    int ReadStart(const std::string& path, std::string& bytes) const;

    std::string path_;
    SystemCalls calls_;
};

}  // namespace vorlund
