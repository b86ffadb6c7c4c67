// SPDX-License-Identifier: MIT
#include "diag/CadDebugLog.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <shlobj.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "tests/support/ImportPatch.h"

namespace fs = std::filesystem;

namespace {

/// A program and a shared documents folder in places of the test's choice, at a time of its choice.
class Places {
public:
    Places() {
        fs::remove_all(m_root);
        fs::create_directories(m_root / "program");
        fs::create_directories(m_root / "documents");
        g_program = (m_root / "program" / "app.v2.exe").string();
        g_documents = (m_root / "documents").string();
        m_patch.Redirect("kernel32.dll", "GetModuleFileNameA", &ModuleName);
        m_patch.Redirect("kernel32.dll", "GetLocalTime", &LocalTime);
        m_patch.Redirect("shell32.dll", "SHGetSpecialFolderPathA", &SpecialFolder);
    }
    ~Places() {
        std::error_code ignored;
        fs::remove_all(m_root, ignored);
    }

    void SetFlag(const char* value) const {
        std::ofstream(m_root / "program" / "app.v2.ini") << "[config]\nlogFlag=" << value << "\n";
    }

    const fs::path m_root = fs::temp_directory_path() / "tintkit-log";
    const fs::path m_log = m_root / "program" / "TvCaddebug.log";

    static inline std::string g_program;
    static inline std::string g_documents; ///< empty: there are none

private:
    static DWORD WINAPI ModuleName(HMODULE, LPSTR name, DWORD size) {
        // A name that is too long is cut, on some systems without its end.
        const auto count = std::min<std::size_t>(g_program.size(), size);
        g_program.copy(name, count);
        if (count < size)
            name[count] = '\0';
        return static_cast<DWORD>(count);
    }
    static void WINAPI LocalTime(SYSTEMTIME* time) { *time = {2024, 3, 4, 7, 9, 5, 3, 999}; }
    static BOOL WINAPI SpecialFolder(HWND, LPSTR path, int folder, BOOL create) {
        EXPECT_EQ(folder, CSIDL_COMMON_DOCUMENTS);
        EXPECT_FALSE(create);
        ::lstrcpyA(path, g_documents.c_str());
        return !g_documents.empty();
    }

    ImportPatch m_patch;
};

std::string Bytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(CadDebugLog, TouchesNoFileWhileItIsOff) {
    const Places places;
    for (const char* const flag : {static_cast<const char*>(nullptr), "", "0", "no"}) {
        if (flag != nullptr)
            places.SetFlag(flag);
        CCadDebugLog log;
        EXPECT_FALSE(log.IsEnabled());
        EXPECT_STREQ(log.GetPath(), "");
        places.SetFlag("1"); // too late for this one
        log.Log("x");
        log.LogTruncate("x");
        EXPECT_FALSE(fs::exists(places.m_log));
    }
}

TEST(CadDebugLog, WritesTheseBytes) {
    const Places places;
    places.SetFlag("-1");
    CCadDebugLog log;
    ASSERT_TRUE(fs::exists(places.m_log)) << "made at once";
    EXPECT_EQ(Bytes(places.m_log), "");

    const std::string entry = "\r\n2024-03-07 09:05:03\r\n";
    log.Log("started\n");
    log.Log("%s %d", "100% %n %s", 7);
    CCadDebugLog().Log("!");
    EXPECT_EQ(Bytes(places.m_log), entry + "started\r\n" + entry + "100% %n %s 7" + entry + "!");

    const std::string large(1 << 20, 'w');
    log.LogTruncate("%s", large.c_str());
    log.Log("%s", large.c_str());
    EXPECT_EQ(Bytes(places.m_log), large + entry + large);
    log.LogTruncate("x");
    EXPECT_EQ(Bytes(places.m_log), "x");

    // Nothing is held open: another program may take the file away.
    EXPECT_TRUE(fs::remove(places.m_log));
    fs::create_directory(places.m_log);
    log.Log("nowhere");
    log.LogTruncate("nowhere");
}

std::string g_settings;

/// The settings of a program in a folder where no file can be made.
UINT WINAPI SwitchedOn(LPCSTR section, LPCSTR key, INT missing, LPCSTR file) {
    EXPECT_EQ(std::string(section) + key + std::to_string(missing), "configlogFlag0");
    g_settings = file;
    return 1;
}

TEST(CadDebugLog, GoesToTheSharedDocumentsWhereTheProgramCannotWrite) {
    const Places places;
    ImportPatch patch;
    patch.Redirect("kernel32.dll", "GetPrivateProfileIntA", &SwitchedOn);
    Places::g_program = "Z:\\proc\\app.exe"; // a file system of the kernel's own, under Wine

    const std::string documents = Places::g_documents;
    const struct {
        const char* what;
        std::string documents;
        bool tarvexIsAFile;
        std::string log;
    } cases[] = {
        {"made", documents, false, documents + "\\Tarvex\\TvCaddebug.log"},
        {"there already", documents, false, documents + "\\Tarvex\\TvCaddebug.log"},
        {"name taken", documents, true, documents + "\\TvCaddebug.log"},
        {"absent", documents + "\\none", false, documents + "\\none\\TvCaddebug.log"},
        {"not writable", "Z:\\proc", false, "Z:\\proc\\TvCaddebug.log"},
        {"unknown", "", false, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const fs::path tarvex = places.m_root / "documents" / "Tarvex";
        if (c.tarvexIsAFile) {
            fs::remove_all(tarvex);
            std::ofstream(tarvex) << "file";
        }
        Places::g_documents = c.documents;
        CCadDebugLog log;
        EXPECT_EQ(g_settings, "Z:\\proc\\app.ini");
        EXPECT_STREQ(log.GetPath(), c.log.c_str());
        EXPECT_FALSE(fs::exists(places.m_log));
        log.LogTruncate("here");
        const bool writable = c.documents == documents;
        EXPECT_EQ(Bytes(log.GetPath()), writable ? "here" : "");
    }
}

TEST(CadDebugLog, CutsPathsThatAreTooLong) {
    const Places places;
    ImportPatch patch;
    patch.Redirect("kernel32.dll", "GetPrivateProfileIntA", &SwitchedOn);
    Places::g_documents = "Q:\\" + std::string(250, 'd');
    for (const std::size_t length : {240u, 255u, 259u, 260u, 400u}) {
        for (const char* name : {"\\a.exe", ""}) {
            Places::g_program = "Q:\\" + std::string(length - 3 - std::strlen(name), 'p') + name;
            CCadDebugLog log;
            log.Log("nowhere");
            EXPECT_EQ(std::string(log.GetPath()),
                      (Places::g_documents + "\\TvCaddebug.log").substr(0, 259));
            EXPECT_LE(g_settings.size(), 259u);
        }
    }
}

} // namespace
