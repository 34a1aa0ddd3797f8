// SPDX-License-Identifier: MIT
#pragma once

#include <cerrno>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace vorlund {

enum class FileKind { File, Folder, Pipe, Socket, Device };

/// The system calls of the saved games, so that a test can make each of them fail. Like the system's, they
/// return -1 and set errno on an error; the caller repeats interrupted ones.
struct SystemCalls {
    long Process = 0;  ///< the process id

    std::function<int(const std::string& path)> OpenForReading;  ///< returns a file descriptor
    std::function<int(const std::string& path)> CreateNew;       ///< for writing; EEXIST if the file exists
    std::function<int(const std::string& path)> OpenForLocking;  ///< an existing file, no symbolic link
    std::function<int(const std::string& path)> OpenFolder;      ///< for Sync
    std::function<long(int file, char* into, std::size_t size)> Read;
    std::function<long(int file, const char* from, std::size_t size)> Write;
    std::function<int(int file)> Sync;
    std::function<int(int file)> SyncFileSystem;  ///< flushes the whole file system that contains the file
    std::function<int(int file)> Close;
    /// Locks the file until the descriptor is closed or the process ends. EWOULDBLOCK if another process has.
    std::function<int(int file)> Lock;
    std::function<int(int file, const std::string& path)> IsNamed;  ///< 1 when `path` is this file, or 0
    std::function<int(const std::string& from, const std::string& to)> Rename;  ///< replaces `to` atomically
    std::function<int(const std::string& path)> Unlink;
    std::function<int(const std::string& path)> MakeFolder;
    std::function<int(const std::string& path, FileKind& kind)> Look;           ///< follows symbolic links
    std::function<int(const std::string& path, std::string& target)> ReadLink;  ///< EINVAL if it is no link
    std::function<int(const std::string& path, std::vector<std::string>& names)> ListFolder;
};

/// The real system calls. Ignores SIGXFSZ for the process, so that exceeding the limit on file sizes fails a
/// write instead of ending the program.
SystemCalls RealSystemCalls();

/// Repeats a system call as long as a signal interrupts it.
template <typename Call>
auto Repeat(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}

/// 0, or errno when `result` is -1.
inline int ErrorOf(long result) {
    return result == -1 ? errno : 0;
}

/// Closes `file` and returns 0 or the error.
inline int CloseFile(const SystemCalls& calls, int file) {
    const int error = ErrorOf(calls.Close(file));
    // Linux closes the descriptor even when interrupted; a second close could hit a descriptor opened
    // meanwhile.
    return error == EINTR ? 0 : error;
}

}  // namespace vorlund
