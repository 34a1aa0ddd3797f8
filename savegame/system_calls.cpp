#include "savegame/system_calls.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace vorlund {
namespace {

constexpr mode_t FileMode = 0666;
constexpr mode_t FolderMode = 0700;

int IsPlainFile(const std::string& path) {
    struct stat about {};
    const int result = stat(path.c_str(), &about);
    return result == 0 ? (S_ISREG(about.st_mode) ? 1 : 0) : result;
}

int ListFolder(const std::string& path, std::vector<std::string>& names) {
    DIR* const folder = opendir(path.c_str());
    if (folder == nullptr) {
        return -1;
    }
    errno = 0;
    while (const dirent* const entry = readdir(folder)) {
        names.emplace_back(entry->d_name);
    }
    const int error = errno;
    closedir(folder);
    errno = error;
    return error == 0 ? 0 : -1;
}

}  // namespace

SystemCalls RealSystemCalls() {
    SystemCalls calls;
    calls.OpenForReading = [](const std::string& path) {
        // A pipe of that name must not keep the game waiting.
        return open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    };
    calls.CreateNew = [](const std::string& path) {
        return open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, FileMode);
    };
    calls.OpenFolder = [](const std::string& path) {
        return open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    };
    calls.Read = [](int file, char* into, std::size_t size) { return read(file, into, size); };
    calls.Write = [](int file, const char* from, std::size_t size) { return write(file, from, size); };
    calls.Sync = [](int file) { return fsync(file); };
    calls.Close = [](int file) { return close(file); };
    calls.Rename = [](const std::string& from, const std::string& to) {
        return std::rename(from.c_str(), to.c_str());
    };
    calls.Unlink = [](const std::string& path) { return unlink(path.c_str()); };
    calls.MakeFolder = [](const std::string& path) { return mkdir(path.c_str(), FolderMode); };
    calls.IsPlainFile = IsPlainFile;
    calls.ListFolder = ListFolder;
    return calls;
}

}  // namespace vorlund
