// SPDX-License-Identifier: MIT
#include "savegame/folder.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

#include "savegame/format.h"
#include "savegame/game_name.h"
#include "savegame/safe_write.h"
#include "state/text.h"

namespace vorlund {
namespace {

std::string Reason(int error) {
    return std::generic_category().message(error) + ".";
}

std::string CouldNot(const std::string& file, const std::string& what, const std::string& why) {
    return "The game '" + file + "' could not be " + what + ".\r" + why;
}

/// True for the errors that mean that the file does not exist.
bool IsAbsence(int error) {
    return error == ENOENT || error == ENOTDIR;
}

std::string NameOf(FileKind kind) {
    constexpr std::array<const char*, 5> Names{"file", "folder", "pipe", "socket", "device"};
    return Names[static_cast<std::size_t>(kind)];
}

/// Why reading `bytes` does not return `game`; nothing when it does.
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

std::string WhyNotWritten(const Written& written, const std::string& path) {
    std::string why = Reason(written.Error);
    if (written.Target != path) {
        why = "It is a link to '" + written.Target + "'.\r" + why;
    }
    if (written.WhyLeft != 0) {
        why += "\rThe unfinished file '" + written.LeftBehind + "' could not be removed.\r" +
               Reason(written.WhyLeft);
    }
    return why;
}

}  // namespace

SavedGamesFolder::SavedGamesFolder(std::string path, SystemCalls calls)
    : path_(std::move(path)), calls_(std::move(calls)) {}

std::optional<bool> SavedGamesFolder::FileExists(const std::string& path, std::string& whyNot) const {
    FileKind kind{};
    const int error = ErrorOf(Repeat([&] { return calls_.Look(path, kind); }));
    if (IsAbsence(error)) {
        return false;
    }
    if (error == 0 && kind == FileKind::File) {
        return true;
    }
    whyNot = error != 0 ? Reason(error) : "There is a " + NameOf(kind) + " of that name.";
    return std::nullopt;
}

SavedGamesList SavedGamesFolder::List() const {
    SavedGamesList list;
    const int error = ErrorOf(Repeat([&] { return calls_.ListFolder(path_, list.Files); }));
    if (error != 0 && error != ENOENT) {
        list.Error = "The saved games could not be listed.\r" + Reason(error);
    }
    std::erase_if(list.Files, [&](const std::string& name) {
        FileKind kind{};
        const auto look = [&] { return calls_.Look(PathOf(name), kind); };
        return !IsSavedGameFile(name) || (Repeat(look) == -1 ? IsAbsence(errno) : kind != FileKind::File);
    });
    std::sort(list.Files.begin(), list.Files.end(), [](const std::string& a, const std::string& b) {
        return std::pair(LowerCase(a), a) < std::pair(LowerCase(b), b);
    });
    return list;
}

SaveResult SavedGamesFolder::Save(const std::string& file, const GameState& game, bool overwrite) const {
    using Kind = SaveResult::Kind;
    const std::string path = PathOf(file);
    std::string whyNot;
    const auto exists = FileExists(path, whyNot);
    if (!exists) {
        return {Kind::NotSaved, CouldNot(file, "saved", whyNot)};
    }
    if (*exists && !overwrite) {
        return {Kind::AlreadyThere, OverwriteQuestion};
    }
    const std::string bytes = WriteGame(game);
    if (const auto why = WhyNotReadable(game, bytes)) {
        return {Kind::NotSaved, CouldNot(file, "saved", *why)};
    }
    const Written written = WriteSafely(calls_, path, bytes);
    if (written.Error != 0) {
        return {Kind::NotSaved, CouldNot(file, "saved", WhyNotWritten(written, path))};
    }
    if (written.Doubt != 0) {
        return {Kind::SavedInDoubt, DoubtfullySavedText(file) + "\r" + Reason(written.Doubt)};
    }
    return {Kind::Saved, SavedText(file)};
}

std::variant<GameState, NoSuchGame, LoadError> SavedGamesFolder::Load(const std::string& file,
                                                                      const GameState& fresh) const {
    const std::string path = PathOf(file);
    std::string whyNot;
    const auto exists = FileExists(path, whyNot);
    if (!exists) {
        return LoadError{CouldNot(file, "loaded", whyNot)};
    }
    std::string bytes;
    const int error = *exists ? ReadStart(path, bytes) : ENOENT;
    if (IsAbsence(error)) {
        return NoSuchGame{};
    }
    if (error != 0) {
        return LoadError{CouldNot(file, "loaded", Reason(error))};
    }
    auto game = ReadGame(fresh, bytes);
    if (const auto* const bad = std::get_if<BadFile>(&game)) {
        return LoadError{CouldNot(file, "loaded", "Line " + std::to_string(bad->Line) + ": " + bad->What)};
    }
    return std::get<GameState>(std::move(game));
}

int SavedGamesFolder::ReadStart(const std::string& path, std::string& bytes) const {
    const int handle = Repeat([&] { return calls_.OpenForReading(path); });
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
