// SPDX-License-Identifier: MIT
#include "diag/CadDebugLog.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <shlobj.h>

#include <algorithm>
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

    EXPECT_TRUE(fs::remove(places.m_log)) << "nothing is held open";
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
    const fs::path tarvex = places.m_root / "documents" / "Tarvex";
    const std::string program =
        "Z:\\proc\\app.exe"; // a file system of the kernel's own, under Wine
    const std::string documents = Places::g_documents;
    const std::string name = "\\TvCaddebug.log";
    const std::string longPath = "Q:\\" + std::string(250, 'd');
    const struct {
        std::string program, documents, folder;
    } cases[] = {
        {program, documents, documents + "\\Tarvex"}, // made
        {program, documents, documents + "\\Tarvex"}, // there already
        {program, documents, documents},              // its name is taken by a file
        {program, documents + "\\none", documents + "\\none"},
        {program, "Z:\\proc", "Z:\\proc"},
        {program, "", ""},
        {longPath + "\\a.exe", longPath, longPath},
        {longPath + "ddd\\a.exe", longPath, longPath}, // cut within the name
        {longPath + longPath, longPath, longPath},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.program + " " + c.documents);
        if (c.folder == documents) {
            fs::remove_all(tarvex);
            std::ofstream(tarvex) << "file";
        }
        Places::g_program = c.program;
        Places::g_documents = c.documents;
        CCadDebugLog log;
        EXPECT_EQ(log.GetPath(), (c.folder.empty() ? "" : c.folder + name).substr(0, 259));
        log.LogTruncate("here");
        EXPECT_EQ(Bytes(log.GetPath()), c.documents == documents ? "here" : "");
        EXPECT_LE(g_settings.size(), 259u);
        EXPECT_TRUE(c.program != program || g_settings == "Z:\\proc\\app.ini");
    }
}

} // namespace
