// SPDX-License-Identifier: MIT
#include "decorations/RtfEdit.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "tests/support/SubjectDialog.h"
#include "tests/support/ImportPatch.h"

namespace fs = std::filesystem;

namespace {

class RtfDialog : public SubjectDialog<CRtfEdit> {
public:
    RtfDialog() {
        AfxInitRichEdit2();
        Open("RichEdit20A", "", ES_MULTILINE | ES_READONLY);
    }
    ~RtfDialog() override { fs::remove(m_file); }

    CString Load(const std::string& content) {
        std::ofstream(m_file, std::ios::binary) << content;
        return LoadFile(m_file);
    }
    CString LoadFile(const fs::path& file) {
        m_subject.LoadRtfFile(file.string().c_str());
        m_subject.SetSel(0, -1);
        return m_subject.GetSelText();
    }

    const fs::path m_file = fs::temp_directory_path() / "tintkit.rtf";
};

TEST(RtfEdit, ShowsTheLastFileLoaded) {
    RtfDialog dialog;
    EXPECT_STREQ(dialog.Load("{\\rtf1\\ansi{\\b bold} plain}"), "bold plain");
    EXPECT_STREQ(dialog.LoadFile(dialog.m_file), "bold plain") << "once, not twice";
    dialog.m_subject.SetSel(1, 2);
    CHARFORMAT2 format = {};
    dialog.m_subject.GetSelectionCharFormat(format);
    EXPECT_NE(format.dwEffects & CFE_BOLD, 0u);
    EXPECT_STREQ(dialog.Load(""), "");

    // Most of a large document is what the control skips: laying out 20 MB of text takes it a minute.
    const std::string skipped = "{\\*\\unknown " + std::string(20 << 20, 'x') + "}";
    EXPECT_STREQ(dialog.Load("{\\rtf1\\ansi" + skipped + "start end}"), "start end");
    for (const std::string& other :
         {std::string("plain text"), std::string("{\\rtf1 cut {\\b off"), std::string(5000, '{'),
          std::string("{\\rtf1 ") + std::string(5000, '}'), std::string("\0\xFF\xFE{", 4)}) {
        dialog.Load(other); // as the control takes it
        EXPECT_STREQ(dialog.Load("{\\rtf1 after}"), "after") << other.substr(0, 40);
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
    dialog.Load("{\\rtf1\\ansi before}");
    for (const fs::path& other : {fs::path("C:\\no\\such\\file.rtf"), fs::path(),
                                  fs::path(std::string(5000, 'p')), fs::temp_directory_path()})
        EXPECT_STREQ(dialog.LoadFile(other), "before");
    std::ofstream(dialog.m_file) << "{\\rtf1 " << std::string(100000, 'n') << "}";
    {
        std::ofstream open(dialog.m_file, std::ios::app); // denies nothing; the viewer denies it
        EXPECT_STREQ(dialog.LoadFile(dialog.m_file), "before");
    }
    for (const int reads :
         {0, 1, 3, 12}) { // enough for the check, at last: the reading itself fails
        g_readsLeft = reads;
        ImportPatch patch;
        g_readFile = patch.Redirect("kernel32.dll", "ReadFile", &FailingRead);
        CString text = "before";
        EXPECT_NO_THROW(text = dialog.LoadFile(dialog.m_file));
        EXPECT_EQ(text == "before", reads < 12) << reads;
    }
    EXPECT_TRUE(fs::remove(dialog.m_file)) << "no handle is left behind";
}

} // namespace
