// SPDX-License-Identifier: MIT
#include "decorations/RtfEdit.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "tests/decorations/SubjectDialog.h"
#include "tests/support/ImportPatch.h"

namespace fs = std::filesystem;

namespace {

class RtfDialog : public SubjectDialog<CRtfEdit> {
public:
    RtfDialog() {
        AfxInitRichEdit2();
        Open("RichEdit20A", "", ES_MULTILINE | ES_READONLY);
        Load("{\\rtf1\\ansi before}");
    }
    ~RtfDialog() override { fs::remove(m_file); }

    void Load(const std::string& content) {
        std::ofstream(m_file, std::ios::binary) << content;
        m_subject.LoadRtfFile(m_file.string().c_str());
    }

    CString Text() {
        m_subject.SetSel(0, -1);
        return m_subject.GetSelText();
    }

    const fs::path m_file = fs::temp_directory_path() / "tintkit.rtf";
};

TEST(RtfEdit, ShowsTheLastFileLoaded) {
    RtfDialog dialog;
    EXPECT_STREQ(dialog.Text(), "before");
    dialog.m_subject.LoadRtfFile(dialog.m_file.string().c_str());
    EXPECT_STREQ(dialog.Text(), "before") << "once, not twice";

    dialog.Load("{\\rtf1\\ansi{\\b bold} plain}");
    EXPECT_STREQ(dialog.Text(), "bold plain");
    for (const long position : {1, 7}) {
        dialog.m_subject.SetSel(position, position + 1);
        CHARFORMAT2 format = {};
        EXPECT_TRUE(dialog.m_subject.GetSelectionCharFormat(format) & CFM_BOLD);
        EXPECT_EQ((format.dwEffects & CFE_BOLD) != 0, position == 1);
    }
    dialog.Load("");
    EXPECT_EQ(dialog.m_subject.GetTextLength(), 0);

    // Most of a large document is what the control skips: laying out 20 MB of text takes it a minute.
    std::string large = "{\\rtf1\\ansi{\\*\\unknown " + std::string(20 << 20, 'x') + "}start";
    const std::string line = "\\par " + std::string(194, 'y');
    for (int i = 0; i < 1000; ++i)
        large += line;
    dialog.Load(large + "\\par end}");
    const CString text = dialog.Text();
    EXPECT_GE(text.GetLength(), 1000 * 195);
    EXPECT_STREQ(text.Left(5), "start");
    EXPECT_STREQ(text.Right(3), "end");
}

TEST(RtfEdit, SurvivesFilesThatAreNotRtf) {
    RtfDialog dialog;
    for (const std::string& content :
         {std::string("plain text"), std::string("{\\rtf1 cut {\\b off"), std::string(5000, '{'),
          std::string("{\\rtf1 ") + std::string(5000, '}'), std::string("\0\xFF\xFE{", 4)}) {
        dialog.Load(content);
        dialog.Load("{\\rtf1 after}");
        EXPECT_STREQ(dialog.Text(), "after") << content.substr(0, 40);
    }
}

int g_readsLeft = 0;
decltype(&::ReadFile) g_readFile = nullptr;

BOOL WINAPI FailingRead(HANDLE file, LPVOID buffer, DWORD size, LPDWORD read, LPOVERLAPPED how) {
    if (g_readsLeft-- > 0)
        return g_readFile(file, buffer, size, read, how);
    ::SetLastError(ERROR_READ_FAULT);
    return FALSE;
}

TEST(RtfEdit, KeepsItsTextWhenTheFileCannotBeRead) {
    RtfDialog dialog;
    const std::string path = dialog.m_file.string();
    for (const std::string& other : {std::string("C:\\no\\such\\file.rtf"), std::string(),
                                     std::string(5000, 'p'), fs::temp_directory_path().string()}) {
        dialog.m_subject.LoadRtfFile(other.c_str());
        EXPECT_STREQ(dialog.Text(), "before") << other.substr(0, 40);
    }
    std::ofstream(path) << "{\\rtf1 " << std::string(100000, 'n') << "}";
    const HANDLE locked = ::CreateFileA(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                        OPEN_EXISTING, 0, nullptr);
    dialog.m_subject.LoadRtfFile(path.c_str());
    EXPECT_STREQ(dialog.Text(), "before");
    ::CloseHandle(locked);

    for (const int reads : {0, 1, 3}) {
        g_readsLeft = reads;
        ImportPatch patch;
        g_readFile = patch.Redirect("kernel32.dll", "ReadFile", &FailingRead);
        dialog.m_subject.LoadRtfFile(path.c_str());
        EXPECT_STREQ(dialog.Text(), "before") << reads << " reads succeeded";
    }
    g_readsLeft = 12; // enough for the check: the reading itself fails, and is not left by a throw
    {
        ImportPatch patch;
        g_readFile = patch.Redirect("kernel32.dll", "ReadFile", &FailingRead);
        EXPECT_NO_THROW(dialog.m_subject.LoadRtfFile(path.c_str()));
    }
    EXPECT_TRUE(fs::remove(path)) << "no handle is left behind";
}

} // namespace
