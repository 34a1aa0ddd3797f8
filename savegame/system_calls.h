#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace vorlund {

/// What the saved games ask of the operating system, one entry a system call, so that a test can make each
/// of them fail. As in the system, every call answers -1 and sets errno when it fails. Interrupted calls are
/// the caller's to repeat.
struct SystemCalls {
    std::function<int(const std::string& path)> OpenForReading;  ///< a file descriptor
    std::function<int(const std::string& path)> CreateNew;   ///< ditto, for writing; EEXIST if it is there
    std::function<int(const std::string& path)> OpenFolder;  ///< ditto, for Sync
    std::function<long(int file, char* into, std::size_t size)> Read;
    std::function<long(int file, const char* from, std::size_t size)> Write;
    std::function<int(int file)> Sync;
    std::function<int(int file)> Close;
    std::function<int(const std::string& from, const std::string& to)> Rename;  ///< replaces `to` in one step
    std::function<int(const std::string& path)> Unlink;
    std::function<int(const std::string& path)> MakeFolder;
    std::function<int(const std::string& path)> IsPlainFile;  ///< 1 or 0
    std::function<int(const std::string& path, std::vector<std::string>& names)> ListFolder;
};

/// The calls of the system itself.
SystemCalls RealSystemCalls();

}  // namespace vorlund
