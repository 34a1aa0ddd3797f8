#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "savegame/system_calls.h"
#include "state/game_state.h"

namespace vorlund {

/// A saved game could not be loaded; nothing has changed.
struct LoadError {
    std::string Message;  ///< for the player: the file, and the system's reason or the line and what is wrong

    bool operator==(const LoadError&) const = default;
};

/// The folder of the saved games. It need not exist: it is made at the first save. Files are named by their
/// bare name, as FileNameOf and List give it. Every error is a text for the player that names the file and
/// the system's reason; lines are joined by a carriage return.
class SavedGamesFolder {
public:
    /// `path` without a slash at its end.
    explicit SavedGamesFolder(std::string path, SystemCalls calls = RealSystemCalls());

    std::string PathOf(const std::string& file) const { return path_ + "/" + file; }

    /// True when a plain file of exactly this path exists.
    bool FileExists(const std::string& path) const;

    /// The saved games, in alphabetical order whatever the case. Empty when the folder cannot be read.
    std::vector<std::string> List() const;

    /// Saves `game`, whose turn a living human has, as `file`, replacing what was saved there. Whatever
    /// happens on the way, crash included, the file is the old game or the new one, whole. Nothing when the
    /// game is on the disk, otherwise the error.
    std::optional<std::string> Save(const std::string& file, const GameState& game) const;

    /// The game in `file` over `fresh`, as ReadGame gives it.
    std::variant<GameState, LoadError> Load(const std::string& file, const GameState& fresh) const;

    /// Deletes `file` and no other. Nothing when it is gone, otherwise the error.
    std::optional<std::string> Delete(const std::string& file) const;

private:
    /// Both answer 0 or the system's number of the error.
    int Replace(const std::string& file, const std::string& bytes) const;
    int ReadStart(const std::string& file, std::string& bytes) const;

    std::string path_;
    SystemCalls calls_;
};

}  // namespace vorlund
