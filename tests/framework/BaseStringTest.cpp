// SPDX-License-Identifier: MIT
#include "Thrown.h"
#include "afxstr.h"

#include <gtest/gtest.h>

#include <mbctype.h>

#include <climits>
#include <cstring>
#include <vector>

namespace {

using Texts = std::vector<CString>;
using Numbers = std::vector<int>;

/// Switches the multi-byte functions to Shift-JIS, where a backslash can be half a character.
class ShiftJis {
public:
    ShiftJis() : m_former(_getmbcp()) { _setmbcp(932); }
    ~ShiftJis() { _setmbcp(m_former); }

private:
    const int m_former;
};

} // namespace

TEST(BaseString, IsMadeFromEveryKindOfText) {
    const char* const none = nullptr;
    const wchar_t umlaut[] = L"\u00e4\u0416"; // the second has no place in a Western code page
    char narrow[16] = {};
    ::WideCharToMultiByte(CP_ACP, 0, umlaut, -1, narrow, sizeof(narrow), nullptr, nullptr);
    const Texts made = {CString(none),       CString("abc", 2), CString('x', 3), CString(L"wide"),
                        CString(L"wide", 2), CString(L'y', 2),  CString(umlaut)};
    EXPECT_EQ((Texts{"", "ab", "xxx", "wide", "wi", "yy", narrow}), made);
    EXPECT_TRUE(made.back() == umlaut);
    const CString withNull("a\0c", 3);
    EXPECT_EQ(0, std::memcmp("a\0c", withNull.GetString(), 4));
    EXPECT_EQ(3, withNull.GetLength());
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { CString(none, 1); }));
    const char* characters = nullptr; // the string is one pointer, as functions with "..." take it
    std::memcpy(&characters, &made[1], sizeof(CString));
    EXPECT_STREQ("ab", characters);
}

TEST(BaseString, CopiesShareTheirCharactersUntilOneChanges) {
    const CString original("abc");
    CString copy(original);
    EXPECT_EQ(original.GetString(), copy.GetString());
    copy.SetAt(1, 'x');
    EXPECT_STREQ("abc", original);
    EXPECT_STREQ("axc", copy);
    copy = original;
    copy.GetBuffer(3)[0] = 'y';
    EXPECT_STREQ("abc", original);
}

TEST(BaseString, BufferIsWrittenToDirectly) {
    CString text("abc");
    std::strcpy(text.GetBuffer(10), "longer");
    EXPECT_GE(text.GetAllocLength(), 10);
    text.ReleaseBuffer();
    EXPECT_STREQ("longer", text);
    std::memcpy(text.GetBufferSetLength(2), "xy", 2);
    EXPECT_STREQ("xy", text);
    text.ReleaseBuffer(1);
    EXPECT_STREQ("x", text);
    // A buffer filled to the brim has no null before its end.
    char* const brim = text.GetBuffer(5);
    std::memset(brim, 'z', static_cast<size_t>(text.GetAllocLength()));
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetAllocLength(), text.GetLength());

    const int tooLong = text.GetAllocLength() + 1;
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.ReleaseBuffer(tooLong); }));

    text = "abc";
    EXPECT_EQ('\0', text.GetAt(3));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.GetAt(4); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.SetAt(3, 'x'); }));
}

TEST(BaseString, ComparesAndSearches) {
    const CString text("Banana");
    const char* const none = nullptr;
    EXPECT_TRUE(text.Compare("Banana") == 0 && text.Compare("Cherry") < 0);
    EXPECT_TRUE(text.Compare("Apple") > 0 && text.Compare(none) > 0);
    EXPECT_TRUE(text.CompareNoCase("bANANA") == 0 && text.CompareNoCase("Apple") > 0);
    EXPECT_TRUE(text == "Banana" && "Banana" == text && text == L"Banana" && text != 'B');
    EXPECT_TRUE(text < "Cherry" && "Apple" < text && text >= "Banana" && !(text > "Banana"));
    EXPECT_EQ((Numbers{1, 3, -1, 2, -1, -1, 5}),
              (Numbers{text.Find('a'), text.Find('a', 2), text.Find('\0'), text.Find("nan"),
                       text.Find("nan", 3), text.Find("nan", 7), text.ReverseFind('a')}));
}

TEST(BaseString, CutsOutParts) {
    const CString text("abcdef");
    const struct {
        const char* part;
        CString found;
    } rows[] = {
        {"cdef", text.Mid(2)},
        {"ef", text.Mid(4, INT_MAX)},
        {"", text.Mid(7, 1)},
        {"ab", text.Mid(-5, 2)},
        {"", text.Mid(2, -1)},
        {"", text.Left(-1)},
        {"abcdef", text.Left(100)},
        {"ef", text.Right(2)},
        {"a b", CString(" \t\r\na b \f\v").Trim()},
        {"a-", CString("--a-").TrimLeft("-")},
        {"", CString("---").TrimRight("-")},
    };
    for (const auto& row : rows)
        EXPECT_STREQ(row.part, row.found);
}

TEST(BaseString, GrowsByAppending) {
    CString text;
    text = "ab";
    text += text;
    text.Append(static_cast<const char*>(text) + 1, 2); // part of itself
    text += L'w';
    text += static_cast<unsigned char>('!');
    EXPECT_STREQ("ababbaw!", text);
    EXPECT_STREQ("x-y-z", "x-" + CString("y") + '-' + CString("z"));
}

TEST(BaseString, ChangesInPlace) {
    const struct {
        const char* before;
        int (*change)(CString&);
        int answer;
        const char* after;
    } rows[] = {
        {"abc", [](CString& s) { return s.Delete(0, 2); }, 1, "c"},
        {"abc", [](CString& s) { return s.Delete(1, INT_MAX); }, 1, "a"},
        {"abc", [](CString& s) { return s.Delete(6); }, 3, "abc"},
        {"one two one", [](CString& s) { return s.Replace("one", "three"); }, 2, "three two three"},
        {"a two", [](CString& s) { return s.Replace("two", "two two"); }, 1, "a two two"},
        {"aab", [](CString& s) { return s.Replace("a", ""); }, 2, "b"},
        {"ab", [](CString& s) { return s.Replace("", "x"); }, 0, "ab"},
        {"aBc", [](CString& s) { return s.MakeUpper().GetLength(); }, 3, "ABC"},
    };
    for (const auto& row : rows) {
        CString text(row.before);
        EXPECT_EQ(row.answer, row.change(text)) << row.before;
        EXPECT_STREQ(row.after, text);
    }
}

TEST(BaseString, RespectsDoubleByteCharacters) {
    const ShiftJis codePage;
    const CString so("\x83\x5C"); // Katakana: its second byte is a backslash
    const CString text = "a" + so + "\\" + so;
    EXPECT_EQ((Numbers{3, 3, 1}),
              (Numbers{text.Find('\\'), text.ReverseFind('\\'), text.Find(so)}));
    EXPECT_EQ((Texts{text, "a" + so + "\\"}),
              (Texts{CString(text).TrimRight("\\"), CString(text).TrimRight(so)}));
}

TEST(BaseString, Formats) {
    CString text;
    text.Format("%d %s %05.1f %lld", 42, "words", 2.5, 1LL << 40);
    EXPECT_STREQ("42 words 002.5 1099511627776", text);
    text.AppendFormat(" %c", '!');
    EXPECT_STREQ("42 words 002.5 1099511627776 !", text);
    text.Format("%s/%s", text.GetString(), "x"); // reads from itself
    EXPECT_STREQ("42 words 002.5 1099511627776 !/x", text);
    text.Format("%*d", 5000, 7);
    EXPECT_EQ(5000, text.GetLength());
}

TEST(BaseString, LoadsResources) {
    const HINSTANCE module = ::GetModuleHandleA("comctl32.dll"); // a library with many texts
    int found = 0;
    for (UINT id = 0; id < 5000; ++id) {
        char expected[1000] = "unchanged";
        CString text("unchanged");
        const bool exists = ::LoadStringA(module, id, expected, sizeof(expected)) > 0;
        found += exists ? 1 : 0;
        EXPECT_EQ(text.LoadString(module, id) != FALSE, exists) << id;
        EXPECT_STREQ(exists ? expected : "unchanged", text);
    }
    EXPECT_GT(found, 0);
    EXPECT_STREQ("", CString(MAKEINTRESOURCEA(17)));
}
