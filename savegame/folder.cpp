#include "savegame/folder.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "savegame/format.h"
#include "savegame/game_name.h"
#include "state/text.h"

namespace vorlund {
namespace {

/// Not "*.vrs", so the list does not show it. There is one for all games: what a crash leaves behind goes
/// with the next save.
constexpr const char* Unfinished = "unfinished.tmp";

/// Makes a system call again for as long as a signal interrupts it.
template <typename Call>
auto Repeat(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}

/// 0, or the system's number for why `result` says that a call failed.
int ErrorOf(long result) {
    return result == -1 ? errno : 0;
}

std::string Reason(int error) {
    return std::generic_category().message(error) + ".";
}

std::string CouldNot(const std::string& file, const std::string& what, const std::string& why) {
    return "The game '" + file + "' could not be " + what + ".\r" + why;
}

int CloseFile(const SystemCalls& calls, int file) {
    const int error = ErrorOf(calls.Close(file));
    return error == EINTR ? 0
                          : error;  // the file is closed all the same, and a second close might hit another
}

int WriteAll(const SystemCalls& calls, int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const long written = Repeat([&] { return calls.Write(file, bytes.data(), bytes.size()); });
        if (written <= 0) {
            return written == 0 ? EIO : errno;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return 0;
}

/// Brings the names in a folder to the disk, where the file system can do that.
int SyncFolder(const SystemCalls& calls, const std::string& path) {
    const int folder = Repeat([&] { return calls.OpenFolder(path); });
    if (folder == -1) {
        return errno;
    }
    int error = ErrorOf(Repeat([&] { return calls.Sync(folder); }));
    if (error == EINVAL || error == ENOTSUP) {
        error = 0;
    }
    const int closeError = CloseFile(calls, folder);
    return error != 0 ? error : closeError;
}

std::string ParentOf(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? "." : slash == 0 ? "/" : path.substr(0, slash);
}

// One call for each folder of the path, and none above its root. NOLINTNEXTLINE(misc-no-recursion)
int MakeFolderWithParents(const SystemCalls& calls, const std::string& path) {
    const auto make = [&] { return ErrorOf(Repeat([&] { return calls.MakeFolder(path); })); };
    int error = make();
    if (error == ENOENT && ParentOf(path) != path) {
        error = MakeFolderWithParents(calls, ParentOf(path));
        error = error == 0 ? make() : error;
    }
    if (error == 0) {
        SyncFolder(calls, ParentOf(path));  // where that cannot be read, the new folder gets there in time
    }
    return error == EEXIST ? 0 : error;
}

/// A new file at `path` that holds `bytes`, on the disk and closed.
int WriteNewFile(const SystemCalls& calls, const std::string& path, const std::string& bytes) {
    const int file = Repeat([&] { return calls.CreateNew(path); });
    if (file == -1) {
        return errno;
    }
    int error = WriteAll(calls, file, bytes);
    if (error == 0) {
        error = ErrorOf(Repeat([&] { return calls.Sync(file); }));
    }
    const int closeError = CloseFile(calls, file);
    return error != 0 ? error : closeError;
}

/// Why `bytes` would not give `game` back; nothing when they do.
std::optional<std::string> WhyNotReadable(const GameState& game, const std::string& bytes) {
    const auto readBack = ReadGame(game, bytes);
    if (const auto* const bad = std::get_if<BadFile>(&readBack)) {
        return bad->What;
    }
    GameState expected = game;
    expected.GameLoaded = true;
    if (std::get<GameState>(readBack) != expected) {
        return "It would not read back as it is.";
    }
    return std::nullopt;
}

}  // namespace

SavedGamesFolder::SavedGamesFolder(std::string path, SystemCalls calls)
    : path_(std::move(path)), calls_(std::move(calls)) {}

bool SavedGamesFolder::FileExists(const std::string& path) const {
    return calls_.IsPlainFile(path) == 1;
}

std::vector<std::string> SavedGamesFolder::List() const {
    std::vector<std::string> names;
    calls_.ListFolder(path_, names);
    std::erase_if(
        names, [&](const std::string& name) { return !IsSavedGameFile(name) || !FileExists(PathOf(name)); });
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        return std::pair(LowerCase(a), a) < std::pair(LowerCase(b), b);
    });
    return names;
}

std::optional<std::string> SavedGamesFolder::Save(const std::string& file, const GameState& game) const {
    const std::string bytes = WriteGame(game);
    if (const auto why = WhyNotReadable(game, bytes)) {
        return CouldNot(file, "saved", *why);
    }
    const int error = Replace(file, bytes);
    return error == 0 ? std::nullopt : std::optional(CouldNot(file, "saved", Reason(error)));
}

int SavedGamesFolder::Replace(const std::string& file, const std::string& bytes) const {
    const std::string fresh = PathOf(Unfinished);
    const auto remove = [&] { return ErrorOf(Repeat([&] { return calls_.Unlink(fresh); })); };
    int error = remove();
    if (error != 0 && error != ENOENT) {
        return error;
    }
    error = WriteNewFile(calls_, fresh, bytes);
    if (error == ENOENT) {
        error = MakeFolderWithParents(calls_, path_);
        error = error == 0 ? WriteNewFile(calls_, fresh, bytes) : error;
    }
    if (error == 0) {
        error = ErrorOf(Repeat([&] { return calls_.Rename(fresh, PathOf(file)); }));
    }
    if (error != 0) {
        remove();
        return error;
    }
    return SyncFolder(calls_, path_);
}

std::variant<GameState, LoadError> SavedGamesFolder::Load(const std::string& file,
                                                          const GameState& fresh) const {
    std::string bytes;
    if (const int error = ReadStart(file, bytes)) {
        return LoadError{CouldNot(file, "loaded", Reason(error))};
    }
    auto game = ReadGame(fresh, bytes);
    if (const auto* const bad = std::get_if<BadFile>(&game)) {
        return LoadError{CouldNot(file, "loaded", "Line " + std::to_string(bad->Line) + ": " + bad->What)};
    }
    return std::get<GameState>(std::move(game));
}

int SavedGamesFolder::ReadStart(const std::string& file, std::string& bytes) const {
    const int handle = Repeat([&] { return calls_.OpenForReading(PathOf(file)); });
    if (handle == -1) {
        return errno;
    }
    bytes.resize(MaxSavedGameBytes);
    std::size_t size = 0;
    long got = 1;
    while (got > 0 && size < bytes.size()) {
        got = Repeat([&] { return calls_.Read(handle, bytes.data() + size, bytes.size() - size); });
        size += static_cast<std::size_t>(std::max(got, 0L));
    }
    const int error = ErrorOf(got);
    bytes.resize(size);
    CloseFile(calls_, handle);
    return error;
}

std::optional<std::string> SavedGamesFolder::Delete(const std::string& file) const {
    const int error = ErrorOf(Repeat([&] { return calls_.Unlink(PathOf(file)); }));
    return error == 0 ? std::nullopt : std::optional(CouldNot(file, "deleted", Reason(error)));
}

}  // namespace vorlund
