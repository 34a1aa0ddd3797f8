// SPDX-License-Identifier: MIT
// windows.h must come before the headers that need its types.
// clang-format off
#include <windows.h>
// clang-format on
#include <fcntl.h>
#include <io.h>
#include <process.h>
#include <shlobj.h>
#include <sys/stat.h>
#include <winternl.h>

#include <algorithm>
#include <array>
#include <climits>
#include <system_error>

#include "machine/folders.h"
#include "machine/sound_library.h"
#include "machine/system_calls.h"

extern "C" NTSTATUS NTAPI RtlGetLastNtStatus();  // in ntdll, but in no header of MinGW

namespace vorlund {
namespace {

/// What OpenFolder returns: a folder cannot be flushed here, and renaming flushes what it changes.
constexpr int Folder = INT_MAX;

/// Sets errno to `error`, a code of the system, and returns -1.
int Fail(DWORD error = GetLastError()) {
    errno = error == ERROR_LOCK_VIOLATION ? EWOULDBLOCK
                                          : std::error_code(static_cast<int>(error), std::system_category())
                                                .default_error_condition()
                                                .value();
    return -1;
}

int Succeed(BOOL succeeded) {
    return succeeded != 0 ? 0 : Fail();
}

/// UTF-8 as the system's UTF-16. Empty for what is not valid UTF-8, which names no file.
std::wstring Wide(const std::string& text) {
    const int bytes = static_cast<int>(text.size());
    const int size = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), bytes, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(size), L' ');
    MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), bytes, wide.data(), size);
    return wide;
}

std::string Narrow(const wchar_t* text) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(size), ' ');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, narrow.data(), size, nullptr, nullptr);
    narrow.resize(narrow.size() - 1);  // without the terminating zero
    return narrow;
}

HANDLE Open(const std::string& path, DWORD access, DWORD creation, DWORD flags) {
    // Shared for everything: a file that is open can then be renamed and deleted, as on other systems.
    constexpr DWORD share = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return CreateFileW(Wide(path).c_str(), access, share, nullptr, creation, flags, nullptr);
}

/// True if a file could not be opened because it is being deleted: what is deleted while it is open keeps its
/// name until it is closed.
bool WasBeingDeleted() {
    constexpr NTSTATUS deletePending =
        static_cast<NTSTATUS>(0xC0000056);  // one of the codes of access denied
    return RtlGetLastNtStatus() == deletePending;
}

/// A file descriptor; -1 and errno on an error, for which `deleted` is the code if the file is being deleted.
int OpenFile(const std::string& path, DWORD access, DWORD creation, DWORD flags, DWORD deleted) {
    HANDLE const handle = Open(path, access, creation, flags);
    if (handle == INVALID_HANDLE_VALUE) {
        return WasBeingDeleted() ? Fail(deleted) : Fail();
    }
    return _open_osfhandle(reinterpret_cast<intptr_t>(handle), _O_BINARY);
}

int OpenForReading(const std::string& path) {
    return OpenFile(path, GENERIC_READ, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, ERROR_FILE_NOT_FOUND);
}

int CreateNew(const std::string& path) {
    return OpenFile(path, GENERIC_WRITE, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, ERROR_FILE_EXISTS);
}

int OpenForLocking(const std::string& path) {
    return OpenFile(path, GENERIC_READ | GENERIC_WRITE, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT,
                    ERROR_FILE_NOT_FOUND);
}

HANDLE HandleOf(int file) {
    return reinterpret_cast<HANDLE>(_get_osfhandle(file));
}

int Lock(int file) {
    // Behind the end of any file, because what is locked cannot be written through another handle
    OVERLAPPED place{};
    place.OffsetHigh = INT_MAX;
    return Succeed(
        LockFileEx(HandleOf(file), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place));
}

int IsNamed(int file, const std::string& path) {
    HANDLE const named = Open(path, 0, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
    if (named == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        return error == ERROR_FILE_NOT_FOUND || WasBeingDeleted() ? 0 : Fail(error);
    }
    BY_HANDLE_FILE_INFORMATION one{};
    BY_HANDLE_FILE_INFORMATION other{};
    const bool known = GetFileInformationByHandle(HandleOf(file), &one) != 0 &&
                       GetFileInformationByHandle(named, &other) != 0;
    const int result = known ? 0 : Fail();
    CloseHandle(named);
    const bool same = one.dwVolumeSerialNumber == other.dwVolumeSerialNumber &&
                      one.nFileIndexHigh == other.nFileIndexHigh && one.nFileIndexLow == other.nFileIndexLow;
    return result == 0 && same ? 1 : result;
}

/// Fails as long as a program has the file `to` open; virus scanners and indexers do so for a moment after it
/// was written.
int Rename(const std::string& from, const std::string& to) {
    constexpr int MostTries = 10;
    constexpr DWORD Pause = 50;  // milliseconds
    for (int tries = 1;; ++tries) {
        if (MoveFileExW(Wide(from).c_str(), Wide(to).c_str(),
                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0) {
            return 0;
        }
        const DWORD error = GetLastError();
        if (tries == MostTries || (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION)) {
            return Fail(error);
        }
        Sleep(Pause);
    }
}

int Look(const std::string& path, FileKind& kind) {
    struct _stat64 about {};
    const int result = _wstat64(Wide(path).c_str(), &about);
    kind = (about.st_mode & _S_IFDIR) != 0   ? FileKind::Folder
           : (about.st_mode & _S_IFREG) != 0 ? FileKind::File
                                             : FileKind::Device;
    return result;
}

int ReadLink(const std::string& path, std::string&) {
    if (GetFileAttributesW(Wide(path).c_str()) == INVALID_FILE_ATTRIBUTES) {
        return Fail();
    }
    errno = EINVAL;  // links are followed by the system, not here
    return -1;
}

int ListFolder(const std::string& path, std::vector<std::string>& names) {
    FileKind kind{};
    if (Look(path, kind) == -1) {
        return -1;
    }
    if (kind != FileKind::Folder) {
        errno = ENOTDIR;
        return -1;
    }
    WIN32_FIND_DATAW entry{};
    HANDLE const search = FindFirstFileW(Wide(path + "/*").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) {
        return Fail();
    }
    names.clear();
    do {
        names.push_back(Narrow(entry.cFileName));
    } while (FindNextFileW(search, &entry) != 0);
    const DWORD error = GetLastError();
    FindClose(search);
    return error == ERROR_NO_MORE_FILES ? 0 : Fail(error);
}

unsigned Bounded(std::size_t size) {
    return static_cast<unsigned>(std::min<std::size_t>(size, INT_MAX));
}

}  // namespace

SystemCalls RealSystemCalls() {
    SystemCalls calls;
    calls.Process = _getpid();
    calls.OpenForReading = OpenForReading;
    calls.CreateNew = CreateNew;
    calls.OpenForLocking = OpenForLocking;
    calls.OpenFolder = [](const std::string&) { return Folder; };
    calls.Read = [](int file, char* into, std::size_t size) -> long {
        return _read(file, into, Bounded(size));
    };
    calls.Write = [](int file, const char* from, std::size_t size) -> long {
        return _write(file, from, Bounded(size));
    };
    calls.Sync = [](int file) { return file == Folder ? 0 : Succeed(FlushFileBuffers(HandleOf(file))); };
    calls.SyncFileSystem = [](int) { return 0; };
    calls.Close = [](int file) { return file == Folder ? 0 : _close(file); };
    calls.Lock = Lock;
    calls.IsNamed = IsNamed;
    calls.Rename = Rename;
    calls.Unlink = [](const std::string& path) { return Succeed(DeleteFileW(Wide(path).c_str())); };
    calls.MakeFolder = [](const std::string& path) {
        return Succeed(CreateDirectoryW(Wide(path).c_str(), nullptr));
    };
    calls.Look = Look;
    calls.ReadLink = ReadLink;
    calls.ListFolder = ListFolder;
    return calls;
}

std::string DataFolder() {
    wchar_t* path = nullptr;
    std::string folder;
    if (SHGetKnownFolderPath(FOLDERID_LocalAppData, KF_FLAG_DEFAULT, nullptr, &path) == S_OK) {
        folder = Narrow(path);
    }
    CoTaskMemFree(path);
    std::replace(folder.begin(), folder.end(), '\\', '/');
    return folder;
}

std::string RuntimeFolder() {
    return {};
}

void* SoundFunction(const std::string&, const char* name) {
    return reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(nullptr), name));
}

}  // namespace vorlund
