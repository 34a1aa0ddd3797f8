// SPDX-License-Identifier: MIT
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "machine/folders.h"
#include "machine/sound_library.h"
#include "machine/system_calls.h"

namespace vorlund {
namespace {

constexpr mode_t FileMode = 0666;
constexpr mode_t FolderMode = 0700;

FileKind KindOf(mode_t mode) {
    return S_ISREG(mode)    ? FileKind::File
           : S_ISDIR(mode)  ? FileKind::Folder
           : S_ISFIFO(mode) ? FileKind::Pipe
           : S_ISSOCK(mode) ? FileKind::Socket
                            : FileKind::Device;
}

int Look(const std::string& path, FileKind& kind) {
    struct stat about {};
    const int result = stat(path.c_str(), &about);
    kind = KindOf(about.st_mode);
    return result;
}

int IsNamed(int file, const std::string& path) {
    struct stat open {};
    struct stat named {};
    if (fstat(file, &open) == -1 || lstat(path.c_str(), &named) == -1) {
        return errno == ENOENT ? 0 : -1;
    }
    return open.st_dev == named.st_dev && open.st_ino == named.st_ino ? 1 : 0;
}

int ReadLink(const std::string& path, std::string& target) {
    std::array<char, PATH_MAX> buffer{};
    const ssize_t size = readlink(path.c_str(), buffer.data(), buffer.size());
    target.assign(buffer.data(), size > 0 ? static_cast<std::size_t>(size) : 0);
    return size == -1 ? -1 : 0;
}

int ListFolder(const std::string& path, std::vector<std::string>& names) {
    DIR* const folder = opendir(path.c_str());
    if (folder == nullptr) {
        return -1;
    }
    names.clear();
    errno = 0;
    while (const dirent* const entry = readdir(folder)) {
        names.emplace_back(entry->d_name);
    }
    const int error = errno;
    closedir(folder);
    errno = error;
    return error == 0 ? 0 : -1;
}

auto Opener(int flags) {
    // Without O_NONBLOCK, opening a pipe would block.
    return [flags](const std::string& path) {
        return open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK, FileMode);
    };
}

}  // namespace

SystemCalls RealSystemCalls() {
    std::signal(SIGXFSZ, SIG_IGN);
    SystemCalls calls;
    calls.Process = getpid();
    calls.OpenForReading = Opener(O_RDONLY);
    calls.CreateNew = Opener(O_WRONLY | O_CREAT | O_EXCL);
    calls.OpenForLocking = Opener(O_RDWR | O_NOFOLLOW);
    calls.OpenFolder = Opener(O_RDONLY | O_DIRECTORY);
    calls.Read = [](int file, char* into, std::size_t size) { return read(file, into, size); };
    calls.Write = [](int file, const char* from, std::size_t size) { return write(file, from, size); };
    calls.Sync = fsync;
    calls.SyncFileSystem = syncfs;
    calls.Close = close;
    calls.Lock = [](int file) { return flock(file, LOCK_EX | LOCK_NB); };
    calls.IsNamed = IsNamed;
    calls.Rename = [](const std::string& from, const std::string& to) {
        return std::rename(from.c_str(), to.c_str());
    };
    calls.Unlink = [](const std::string& path) { return unlink(path.c_str()); };
    calls.MakeFolder = [](const std::string& path) { return mkdir(path.c_str(), FolderMode); };
    calls.Look = Look;
    calls.ReadLink = ReadLink;
    calls.ListFolder = ListFolder;
    return calls;
}

std::string DataFolder() {
    const char* const folder = std::getenv("XDG_DATA_HOME");
    if (folder != nullptr && folder[0] == '/') {  // a relative path is invalid there and ignored
        return folder;
    }
    const char* const home = std::getenv("HOME");
    return std::string(home != nullptr ? home : "") + "/.local/share";
}

std::string RuntimeFolder() {
    const char* const folder = std::getenv("XDG_RUNTIME_DIR");
    return folder != nullptr ? folder : "";
}

void* SoundFunction(const std::string& path, const char* name) {
    void* const library = dlopen(path.c_str(), RTLD_NOW);
    return library != nullptr ? dlsym(library, name) : nullptr;
}

}  // namespace vorlund
