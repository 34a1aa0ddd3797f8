// SPDX-License-Identifier: MIT
#include "savegame/safe_write.h"

#include <algorithm>
#include <string_view>

namespace vorlund {
namespace {

// The bytes are written into an unfinished file beside the target, which is then renamed to the target. Its
// writer holds a lock on it, so that one without a lock is known to be left by a crash and can be removed.
constexpr std::string_view UnfinishedStart = "unfinished-";
constexpr std::string_view UnfinishedEnd = ".tmp";

constexpr int MostLinks = 40;  // as many as the system follows
constexpr int MostUnfinished = 100;

struct Unfinished {
    std::string Name{};
    std::string Path{};
    int File = -1;
    int Lock = -1;  ///< a second descriptor, since File is closed before the file is renamed
};

bool IsUnfinished(std::string_view name) {
    if (!name.starts_with(UnfinishedStart) || !name.ends_with(UnfinishedEnd)) {
        return false;
    }
    name.remove_prefix(UnfinishedStart.size());
    return name.find_first_not_of("-0123456789") == name.size() - UnfinishedEnd.size();
}

std::string ParentOf(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? "." : slash == 0 ? "/" : path.substr(0, slash);
}

std::string Inside(const std::string& folder, const std::string& name) {
    return folder + "/" + name;
}

/// Replaces `path` by what it leads to while it is a symbolic link. Returns 0 or the error.
int FollowLinks(const SystemCalls& calls, std::string& path) {
    for (int links = 0; links < MostLinks; ++links) {
        std::string target;
        if (const int error = ErrorOf(Repeat([&] { return calls.ReadLink(path, target); }))) {
            return error == EINVAL || error == ENOENT ? 0 : error;
        }
        path = target.starts_with('/') ? target : Inside(ParentOf(path), target);
    }
    return ELOOP;
}

/// A descriptor that holds the lock on the file `path`. -1 with errno ENOENT when the file has been removed,
/// or EWOULDBLOCK when another process holds the lock.
int LockFile(const SystemCalls& calls, const std::string& path) {
    const int file = Repeat([&] { return calls.OpenForLocking(path); });
    if (file == -1) {
        return -1;
    }
    int error = ErrorOf(Repeat([&] { return calls.Lock(file); }));
    if (error == 0) {
        // The process that held the lock before may have removed the file.
        const int named = Repeat([&] { return calls.IsNamed(file, path); });
        error = named == 0 ? ENOENT : ErrorOf(named);
    }
    if (error == 0) {
        return file;
    }
    CloseFile(calls, file);
    errno = error;
    return -1;
}

/// Removes the unfinished files that no process has locked. Errors are ignored: such a file disturbs nothing.
void RemoveLeftovers(const SystemCalls& calls, const std::string& folder) {
    std::vector<std::string> names;
    Repeat([&] { return calls.ListFolder(folder, names); });
    std::erase_if(names, [](const std::string& name) { return !IsUnfinished(name); });
    for (const std::string& name : names) {
        const std::string path = Inside(folder, name);
        FileKind kind{};
        if (Repeat([&] { return calls.Look(path, kind); }) == -1 || kind != FileKind::File) {
            continue;
        }
        const int lock = LockFile(calls, path);
        if (lock != -1) {
            Repeat([&] { return calls.Unlink(path); });
            CloseFile(calls, lock);
        }
    }
}

/// Creates the unfinished file, empty and locked. Returns 0 or the error.
int Begin(const SystemCalls& calls, const std::string& folder, Unfinished& fresh) {
    for (int number = 1; number <= MostUnfinished; ++number) {
        fresh.Name = std::string(UnfinishedStart) + std::to_string(calls.Process) + "-" +
                     std::to_string(number) + std::string(UnfinishedEnd);
        fresh.Path = Inside(folder, fresh.Name);
        fresh.File = Repeat([&] { return calls.CreateNew(fresh.Path); });
        if (fresh.File == -1 && errno != EEXIST) {
            return errno;
        }
        if (fresh.File == -1) {
            continue;
        }
        fresh.Lock = LockFile(calls, fresh.Path);
        if (fresh.Lock != -1 || (errno != ENOENT && errno != EWOULDBLOCK)) {
            return 0;  // where files cannot be locked, other copies cannot lock and remove it either
        }
        // Another copy took it for a leftover in the moment before it was locked.
        CloseFile(calls, fresh.File);
    }
    return EEXIST;
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

/// Writes `bytes` to the open `file`, flushes it to the disk and closes it. Returns 0 or the first error.
int Fill(const SystemCalls& calls, int file, const std::string& bytes) {
    int error = WriteAll(calls, file, bytes);
    if (error == 0) {
        error = ErrorOf(Repeat([&] { return calls.Sync(file); }));
    }
    const int closeError = CloseFile(calls, file);
    return error != 0 ? error : closeError;
}

/// Makes the folder `path`, with its parents if need be, and appends to `changed` each folder in which one
/// was made. Returns 0 or the error. The recursion ends at the root. NOLINTNEXTLINE(misc-no-recursion)
int MakeFolderWithParents(const SystemCalls& calls, const std::string& path,
                          std::vector<std::string>& changed) {
    const auto make = [&] { return ErrorOf(Repeat([&] { return calls.MakeFolder(path); })); };
    int error = make();
    if (error == ENOENT && ParentOf(path) != path) {
        error = MakeFolderWithParents(calls, ParentOf(path), changed);
        error = error == 0 ? make() : error;
    }
    if (error == 0) {
        changed.push_back(ParentOf(path));
    }
    return error == EEXIST ? 0 : error;
}

/// Flushes the names in a folder to the disk, if the file system can do that. `file` is a descriptor of a
/// file in it or -1.
int SyncFolder(const SystemCalls& calls, const std::string& path, int file) {
    const int folder = Repeat([&] { return calls.OpenFolder(path); });
    if (folder == -1) {
        // A folder with write but no read permission cannot be opened; the whole file system can be flushed.
        const int error = errno;
        return file != -1 && Repeat([&] { return calls.SyncFileSystem(file); }) == 0 ? 0 : error;
    }
    const int error = ErrorOf(Repeat([&] { return calls.Sync(folder); }));
    CloseFile(calls, folder);
    return error == EINVAL || error == ENOTSUP ? 0 : error;
}

}  // namespace

Written WriteSafely(const SystemCalls& calls, const std::string& path, const std::string& bytes) {
    Written result;
    result.Target = path;
    result.Error = FollowLinks(calls, result.Target);
    if (result.Error != 0) {
        return result;
    }
    const std::string folder = ParentOf(result.Target);
    std::vector<std::string> changed{folder};
    RemoveLeftovers(calls, folder);
    Unfinished fresh;
    result.Error = Begin(calls, folder, fresh);
    // The folder behind a dangling link is not made: it may be on a disk that is not mounted.
    if (result.Error == ENOENT && result.Target == path) {
        result.Error = MakeFolderWithParents(calls, folder, changed);
        result.Error = result.Error == 0 ? Begin(calls, folder, fresh) : result.Error;
    }
    if (result.Error != 0) {
        return result;
    }
    result.Error = Fill(calls, fresh.File, bytes);
    if (result.Error == 0) {
        result.Error = ErrorOf(Repeat([&] { return calls.Rename(fresh.Path, result.Target); }));
    }
    if (result.Error != 0) {
        result.WhyLeft = ErrorOf(Repeat([&] { return calls.Unlink(fresh.Path); }));
        result.LeftBehind = result.WhyLeft != 0 ? fresh.Name : "";
    } else {
        for (const std::string& each : changed) {
            const int error = SyncFolder(calls, each, fresh.Lock);
            result.Doubt = result.Doubt != 0 ? result.Doubt : error;
        }
    }
    if (fresh.Lock != -1) {
        CloseFile(calls, fresh.Lock);
    }
    return result;
}

}  // namespace vorlund
