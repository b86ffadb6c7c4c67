// SPDX-License-Identifier: MIT
#include "diag/CadDebugLog.h"

#include <windows.h>

#include <shlobj.h>

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <memory>

namespace {

constexpr char kLogName[] = "\\TvCaddebug.log";

using Path = char[MAX_PATH];

/// Sets `path` to two texts in a row, cut where it is full.
void Join(Path& path, const char* first, const char* second) {
    std::snprintf(path, sizeof path, "%s%s", first, second);
}

/// The last of the bytes in `wanted`, after the first character; null when there is none.
/// Walks by characters: the second byte of a double-byte one may look like a backslash.
char* FindLast(char* text, const char* wanted) {
    char* found = nullptr;
    if (*text == '\0')
        return found;
    for (char* at = ::CharNextA(text); *at != '\0'; at = ::CharNextA(at)) {
        if (std::strchr(wanted, *at) != nullptr)
            found = at;
    }
    return found;
}

void GetProgramPath(Path& path) {
    path[0] = '\0'; // where the system knows no name
    ::GetModuleFileNameA(nullptr, path, sizeof path);
    path[sizeof path - 1] = '\0'; // a name that is cut may come without its end
}

void GetProgramFolder(Path& folder) {
    GetProgramPath(folder);
    if (char* const separator = FindLast(folder, "\\/"))
        *separator = '\0';
}

/// The program's path with "ini" for its extension.
void GetSettingsPath(Path& settings) {
    Path program;
    GetProgramPath(program);
    char* const dot = FindLast(program, ".");
    const char* const separator = FindLast(program, "\\/");
    if (dot != nullptr && (separator == nullptr || dot > separator))
        *dot = '\0';
    Join(settings, program, ".ini");
}

bool IsFolder(const char* path) {
    WIN32_FIND_DATAA found;
    const HANDLE search = ::FindFirstFileA(path, &found);
    if (search == INVALID_HANDLE_VALUE)
        return false;
    ::FindClose(search);
    return (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// Where the log goes when the program's folder is not for writing.
bool GetSharedFolder(Path& folder) {
    Path documents = "";
    if (!::SHGetSpecialFolderPathA(nullptr, documents, CSIDL_COMMON_DOCUMENTS, FALSE))
        return false;
    Join(folder, documents, "\\Tarvex");
    if (!IsFolder(folder) && !::CreateDirectoryA(folder, nullptr))
        Join(folder, documents, "");
    return true;
}

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

File Open(const char* path, const char* mode) {
    std::FILE* file = nullptr;
    if (::fopen_s(&file, path, mode) != 0)
        file = nullptr;
    return File(file);
}

} // namespace

CCadDebugLog::CCadDebugLog() noexcept {
    static_assert(kPathSize == MAX_PATH, "what the system fills");
    Path settings;
    GetSettingsPath(settings);
    m_enabled = ::GetPrivateProfileIntA("config", "logFlag", 0, settings) != 0;
    if (!m_enabled)
        return;

    Path folder;
    GetProgramFolder(folder);
    Join(m_logPath, folder, kLogName);
    if (Open(m_logPath, "a+"))
        return;
    // The second place is not tried out: what cannot be written is left out, entry by entry.
    m_logPath[0] = '\0';
    if (GetSharedFolder(folder))
        Join(m_logPath, folder, kLogName);
}

void CCadDebugLog::Log(const char* format, ...) {
    if (!m_enabled)
        return;
    SYSTEMTIME now;
    ::GetLocalTime(&now);
    char time[260];
    std::snprintf(time, sizeof time, "%4d-%.2d-%.2d %.2d:%.2d:%.2d", now.wYear, now.wMonth,
                  now.wDay, now.wHour, now.wMinute, now.wSecond);

    const File file = Open(m_logPath, "a+");
    if (!file)
        return;
    std::fprintf(file.get(), "\n%s\n", time);
    std::va_list arguments;
    va_start(arguments, format);
    std::vfprintf(file.get(), format, arguments);
    va_end(arguments);
}

void CCadDebugLog::LogTruncate(const char* format, ...) {
    if (!m_enabled)
        return;
    const File file = Open(m_logPath, "w"); // empties it
    if (!file)
        return;
    std::va_list arguments;
    va_start(arguments, format);
    std::vfprintf(file.get(), format, arguments);
    va_end(arguments);
}
