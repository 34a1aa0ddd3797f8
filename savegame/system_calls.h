// SPDX-License-Identifier: MIT
#pragma once

#include <cerrno>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace vorlund {

enum class FileKind { File, Folder, Pipe, Socket, Device };

/// What the saved games ask of the operating system, one entry a system call, so that a test can make each
/// of them fail. As in the system, every call answers -1 and sets errno when it fails. Interrupted calls are
/// the caller's to repeat.
struct SystemCalls {
    long Process = 0;  ///< a number that no other process has while this one runs

    std::function<int(const std::string& path)> OpenForReading;  ///< a file descriptor
    std::function<int(const std::string& path)> CreateNew;  ///< ditto, for writing; EEXIST if it is there
    std::function<int(const std::string& path)> OpenForLocking;  ///< ditto, of what is there and no link
    std::function<int(const std::string& path)> OpenFolder;      ///< ditto, for Sync
    std::function<long(int file, char* into, std::size_t size)> Read;
    std::function<long(int file, const char* from, std::size_t size)> Write;
    std::function<int(int file)> Sync;
    std::function<int(int file)> SyncFileSystem;  ///< all of it, the folder of the file included
    std::function<int(int file)> Close;
    /// Locks the file until this descriptor is closed or its process is gone. EWOULDBLOCK if another one has.
    std::function<int(int file)> Lock;
    std::function<int(int file, const std::string& path)> IsNamed;  ///< 1 when `path` is this very file, or 0
    std::function<int(const std::string& from, const std::string& to)> Rename;  ///< replaces `to` in one step
    std::function<int(const std::string& path)> Unlink;
    std::function<int(const std::string& path)> MakeFolder;
    std::function<int(const std::string& path, FileKind& kind)> Look;           ///< follows links
    std::function<int(const std::string& path, std::string& target)> ReadLink;  ///< EINVAL if it is none
    std::function<int(const std::string& path, std::vector<std::string>& names)> ListFolder;
};

/// The calls of the system itself. From here on a file that outgrows the user's limit is an error of the
/// write, whoever writes it, and not the end of the program.
SystemCalls RealSystemCalls();

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
inline int ErrorOf(long result) {
    return result == -1 ? errno : 0;
}

/// Closes `file` and answers 0 or the error.
inline int CloseFile(const SystemCalls& calls, int file) {
    const int error = ErrorOf(calls.Close(file));
    return error == EINTR ? 0
                          : error;  // the file is closed all the same, and a second close might hit another
}

}  // namespace vorlund
