// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdio>

// Lets GCC and clang check a format against its arguments. Both positions count from 1, `this` first.
#ifdef __MINGW_PRINTF_FORMAT
#define TINT_PRINTF_FORMAT(text, values) \
    __attribute__((format(__MINGW_PRINTF_FORMAT, text, values)))
#else
#define TINT_PRINTF_FORMAT(text, values)
#endif

/// The program's switchable trace file: off unless the settings file turns it on.
///
///     CCadDebugLog log;
///     log.Log("%u pictures in %s\n", count, folder);
///     log.Log("%s\n", text); // what comes from outside is data, never the format
///
/// The settings file is an INI file beside the program and named after it, so `gallery.exe` reads
/// `gallery.ini`; this turns the log on:
///
///     [config]
///     logFlag=1
///
/// The log is "TvCaddebug.log" in the program's folder.  Where that cannot be written, it is in the
/// folder "Tarvex" of the shared documents, made when it is not there, or else in the shared documents
/// themselves.
///
/// Each entry opens the file, writes and closes it: the file is complete even if the program dies, and
/// nothing is held in between.  That costs what opening a file costs, so this is no tool for hot paths.
/// No failure is ever reported; an entry that cannot be written is left out.  There is no lock: entries
/// of two threads may mix, and callers who need an order see to it themselves.
class CCadDebugLog {
public:
    /// Reads the settings and finds the file's place; both stay as they are for the object's life.
    /// When the log is on and the program's folder can be written, the file exists afterwards; when it
    /// is off, no file is touched, now or later.
    CCadDebugLog() noexcept;
    virtual ~CCadDebugLog() = default;

    /// Appends an entry: an empty line, a line with the local time ("2024-03-07 09:05:03"), then the
    /// formatted text.  No line end follows it: end `format` with "\n" where one is wanted.
    ///
    /// The file is a text file: each "\n" becomes a carriage return and a line feed.
    void Log(const char* format, ...) TINT_PRINTF_FORMAT(2, 3);

    /// Replaces the whole file by the formatted text, without a time: the way to start a fresh log.
    void LogTruncate(const char* format, ...) TINT_PRINTF_FORMAT(2, 3);

    bool IsEnabled() const { return m_enabled; }

    /// Full path of the log; empty while it is off.  A path too long for the system is cut.
    const char* GetPath() const { return m_logPath; }

private:
    static constexpr std::size_t kPathSize = 260; ///< with its end: the system's limit (MAX_PATH)

    bool m_enabled = false;
    char m_logPath[kPathSize] = "";
};
