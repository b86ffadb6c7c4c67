// SPDX-License-Identifier: MIT
#include "ModuleState.h"
#include "Thrown.h"
#include "afxstr.h"

#include <gtest/gtest.h>

#include <mbctype.h>

#include <climits>
#include <cstring>
#include <thread>
#include <vector>

namespace {

using Texts = std::vector<CString>;
using Numbers = std::vector<int>;

/// A copy of the test program with a string table of its own, loaded as data.
class StringTable {
public:
    /// @param table  content of the resource that holds the identifiers 16 to 31.
    explicit StringTable(std::vector<WORD> table) {
        char folder[MAX_PATH] = {};
        char program[MAX_PATH] = {};
        ::GetTempPathA(sizeof(folder), folder);
        ::GetTempFileNameA(folder, "str", 0, m_path);
        ::GetModuleFileNameA(nullptr, program, sizeof(program));
        ::CopyFileA(program, m_path, FALSE);
        const HANDLE update = ::BeginUpdateResourceA(m_path, FALSE);
        ::UpdateResourceA(update, reinterpret_cast<char*>(RT_STRING), MAKEINTRESOURCEA(2),
                          MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), table.data(),
                          static_cast<DWORD>(table.size() * sizeof(WORD)));
        ::EndUpdateResourceA(update, FALSE);
        m_module = ::LoadLibraryExA(m_path, nullptr, LOAD_LIBRARY_AS_DATAFILE);
    }
    ~StringTable() {
        ::FreeLibrary(m_module);
        ::DeleteFileA(m_path);
    }
    StringTable(const StringTable&) = delete;
    StringTable& operator=(const StringTable&) = delete;

    HINSTANCE module() const { return m_module; }

private:
    char m_path[MAX_PATH] = {};
    HMODULE m_module = nullptr;
};

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
    const Texts made = {CString(),           CString(none),    CString("abc", 2),
                        CString('x', 3),     CString('x', -1), CString(L"wide"),
                        CString(L"wide", 2), CString(L'y', 2), CString(umlaut)};
    EXPECT_EQ((Texts{"", "", "ab", "xxx", "", "wide", "wi", "yy", narrow}), made);
    EXPECT_TRUE(made.back() == umlaut);
    const CString withNull("a\0c", 3);
    EXPECT_EQ(0, std::memcmp("a\0c", withNull.GetString(), 4));
    EXPECT_EQ(3, withNull.GetLength());
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { CString(none, 1); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([] { CString("abc", -1); }));
    const char* characters = nullptr; // the string is one pointer, as functions with "..." take it
    std::memcpy(&characters, &made[2], sizeof(CString));
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
    EXPECT_EQ(original.GetString(), copy.GetString());
    copy.GetBuffer(3)[0] = 'y';
    EXPECT_STREQ("abc", original);
}

TEST(BaseString, CopiesMayBeUsedByDifferentThreads) {
    const CString original("shared");
    std::vector<std::thread> threads;
    for (int index = 0; index < 4; ++index) {
        threads.emplace_back([original] {
            for (int round = 0; round < 2000; ++round) {
                CString copy(original);
                copy += "!";
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_STREQ("shared", original);
}

TEST(BaseString, LockedBufferIsSharedWithNobody) {
    CString locked("abc");
    char* const buffer = locked.LockBuffer();
    CString copy(locked);
    EXPECT_NE(buffer, copy.GetString());
    locked = CString("xyz");
    EXPECT_EQ(buffer, locked.GetString());
    EXPECT_STREQ("xyz", locked);
    EXPECT_STREQ("abc", copy);
    locked.UnlockBuffer();
    copy = locked;
    EXPECT_EQ(buffer, copy.GetString());
}

TEST(BaseString, BufferIsWrittenToDirectly) {
    CString text("abc");
    std::strcpy(text.GetBuffer(10), "longer");
    EXPECT_GE(text.GetAllocLength(), 10);
    text.ReleaseBuffer();
    EXPECT_STREQ("longer", text);
    std::memcpy(text.GetBufferSetLength(2), "xy", 2);
    EXPECT_STREQ("xy", text);
    text.FreeExtra();
    EXPECT_EQ(2, text.GetAllocLength());
    text.ReleaseBuffer(1);
    EXPECT_STREQ("x", text);
    // A buffer filled to the brim has no null before its end.
    char* const brim = text.GetBuffer(5);
    std::memset(brim, 'z', static_cast<size_t>(text.GetAllocLength()));
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetAllocLength(), text.GetLength());

    const int tooLong = text.GetAllocLength() + 1;
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.ReleaseBuffer(tooLong); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.GetBuffer(-1); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.Truncate(text.GetLength() + 1); }));

    text = "abc";
    EXPECT_EQ('c', text[2]);
    EXPECT_EQ('\0', text.GetAt(3));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.GetAt(4); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.GetAt(-1); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.SetAt(3, 'x'); }));
}

TEST(BaseString, Compares) {
    const CString text("Banana");
    const char* const none = nullptr;
    EXPECT_TRUE(text.Compare("Banana") == 0 && text.Compare("bANANA") != 0);
    EXPECT_TRUE(text.Compare("Cherry") < 0 && text.Compare("Apple") > 0 && text.Compare(none) > 0);
    EXPECT_TRUE(text.CompareNoCase("bANANA") == 0 && text.CompareNoCase("Apple") > 0);
    EXPECT_TRUE(text.Collate("Banana") == 0 && text.CollateNoCase("banana") == 0);
    EXPECT_TRUE(text == "Banana" && "Banana" == text && text == L"Banana" && text != 'B');
    EXPECT_TRUE(CString('B') == 'B' && 'B' == CString('B'));
    EXPECT_TRUE(text < "Cherry" && "Apple" < text && text > "Apple" && "Cherry" > text);
    EXPECT_TRUE(text <= text && text >= "Banana" && "Apple" <= text && "Cherry" >= text);
    EXPECT_FALSE(text < "Banana" || text > "Banana" || text != "Banana");
}

TEST(BaseString, CutsOutParts) {
    const CString text("abcdef");
    EXPECT_EQ((Texts{"cdef", "cd", "ef", "", "ab", ""}),
              (Texts{text.Mid(2), text.Mid(2, 2), text.Mid(4, INT_MAX), text.Mid(7, 1),
                     text.Mid(-5, 2), text.Mid(2, -1)}));
    EXPECT_EQ((Texts{"", "ab", "abcdef", "ef", "abcdef"}),
              (Texts{text.Left(-1), text.Left(2), text.Left(100), text.Right(2), text.Right(100)}));
    EXPECT_EQ((Texts{"abc", "", "abc", "abcdef"}),
              (Texts{text.SpanIncluding("cba"), text.SpanIncluding("b"), text.SpanExcluding("xd"),
                     text.SpanExcluding("")}));
}

TEST(BaseString, SplitsIntoTokens) {
    const CString text(" ,First Second,,Third ");
    Texts tokens;
    int position = 0;
    while (position >= 0)
        tokens.push_back(text.Tokenize(" ,", position));
    EXPECT_EQ((Texts{"First", "Second", "Third", ""}), tokens);
    EXPECT_EQ(-1, position);
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.Tokenize(",", position); }));
    position = 8;
    EXPECT_STREQ("Second,,Third ", text.Tokenize("", position));
}

TEST(BaseString, GrowsByAppending) {
    CString text;
    for (int index = 0; index < 1000; ++index)
        text += static_cast<char>('a' + index % 26);
    EXPECT_EQ(1000, text.GetLength());
    EXPECT_EQ('l', text[999]);
    text = "ab";
    text += text;
    text.Append(static_cast<const char*>(text) + 1, 2); // part of itself
    text += L"w";
    text += static_cast<unsigned char>('!');
    EXPECT_STREQ("ababbaw!", text);
    EXPECT_STREQ("x-y-z", "x-" + CString("y") + '-' + CString("z"));
    EXPECT_STREQ("xy", L'x' + CString("y"));
}

TEST(BaseString, ChangesInPlace) {
    CString text("abc");
    EXPECT_EQ(4, text.Insert(1, 'x'));
    EXPECT_EQ(6, text.Insert(100, "yz"));
    EXPECT_EQ(7, text.Insert(-1, '!'));
    EXPECT_STREQ("!axbcyz", text);
    EXPECT_EQ(14, text.Insert(1, text)); // itself
    EXPECT_STREQ("!!axbcyzaxbcyz", text);
    EXPECT_EQ(12, text.Delete(0, 2));
    EXPECT_EQ(6, text.Delete(6, INT_MAX));
    EXPECT_EQ(6, text.Delete(6));
    EXPECT_STREQ("axbcyz", text);
    EXPECT_STREQ("AXBCYZ", text.MakeUpper());
    EXPECT_STREQ("axbcyz", text.MakeLower());
    EXPECT_STREQ("zycbxa", text.MakeReverse());
    EXPECT_EQ(1, text.Remove('y'));
    EXPECT_EQ(0, text.Remove('y'));
    EXPECT_STREQ("zcbxa", text);
}

TEST(BaseString, Replaces) {
    CString text("one two one");
    EXPECT_EQ(2, text.Replace("one", "three"));
    EXPECT_STREQ("three two three", text);
    EXPECT_EQ(2, text.Replace("three", ""));
    EXPECT_EQ(0, text.Replace("", "x"));
    EXPECT_STREQ(" two ", text);
    EXPECT_EQ(2, text.Replace(' ', '_'));
    EXPECT_EQ(0, text.Replace('_', '_'));
    EXPECT_EQ(1, text.Replace("two", "two two")); // what was put in is not searched again
    EXPECT_STREQ("_two two_", text);
}

TEST(BaseString, Trims) {
    const Texts trimmed = {CString(" \t\r\na b \f\v").Trim(), CString("  a ").TrimLeft(),
                           CString(" a  ").TrimRight(),       CString("--a-").TrimLeft('-'),
                           CString("-a--").TrimRight('-'),    CString("<>a><").Trim("<>"),
                           CString("---").Trim('-'),          CString("-a-").Trim("")};
    EXPECT_EQ((Texts{"a b", "a ", " a", "a-", "-a", "a", "", "-a-"}), trimmed);
}

TEST(BaseString, Searches) {
    const CString text("abcabc");
    EXPECT_EQ((Numbers{1, 4, -1, -1}),
              (Numbers{text.Find('b'), text.Find('b', 2), text.Find('b', 5), text.Find('\0')}));
    EXPECT_EQ((Numbers{2, 3, -1, -1, -1}),
              (Numbers{text.Find("ca"), text.Find("abc", 1), text.Find("abc", 4),
                       text.Find("abc", 7), text.Find("abc", -1)}));
    EXPECT_EQ((Numbers{4, -1, 1, -1}), (Numbers{text.ReverseFind('b'), text.ReverseFind('x'),
                                                text.FindOneOf("xcb"), text.FindOneOf("xyz")}));
}

TEST(BaseString, RespectsDoubleByteCharacters) {
    const ShiftJis codePage;
    const CString so("\x83\x5C"); // Katakana: its second byte is a backslash
    const CString text = "a" + so + "\\" + so;
    EXPECT_EQ((Numbers{3, 3, 1, 3, 1}),
              (Numbers{text.Find('\\'), text.ReverseFind('\\'), text.Find(so), text.FindOneOf("\\"),
                       CString(text).Remove('\\')}));
    EXPECT_EQ((Texts{"a" + so, text, "a" + so + "\\", so + "\\" + so + "a"}),
              (Texts{text.SpanExcluding("\\"), CString(text).TrimRight('\\'),
                     CString(text).TrimRight(so), CString(text).MakeReverse()}));
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
    text.FormatMessage("%2!s! before %1!d!", 3, "two");
    EXPECT_STREQ("two before 3", text);
}

TEST(BaseString, LoadsResources) {
    // Identifiers 16 and 18; 17 is missing, and 19 claims more than there is.
    const StringTable strings({3, '%', 'd', 0xE4, 0, 2, 'H', 'i', 50, 'x'});
    ASSERT_NE(nullptr, strings.module());
    CString text("unchanged");
    for (const UINT id : {17, 19, 20, 32})
        EXPECT_FALSE(text.LoadString(strings.module(), id)) << id;
    EXPECT_STREQ("unchanged", text);
    EXPECT_TRUE(text.LoadString(strings.module(), 18));
    EXPECT_STREQ("Hi", text);
    const WORD german = MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN);
    EXPECT_TRUE(text.LoadString(strings.module(), 16, german));
    EXPECT_STREQ(CString(L"%d\u00e4"), text);
    EXPECT_FALSE(text.LoadString(strings.module(), 16, MAKELANGID(LANG_FRENCH, SUBLANG_FRENCH)));

    afx::SetResourceHandle(strings.module());
    EXPECT_STREQ("Hi", CString(MAKEINTRESOURCEA(18)));
    EXPECT_STREQ("", CString(MAKEINTRESOURCEA(17)));
    text.Format(16, 7);
    EXPECT_STREQ(CString(L"7\u00e4"), text);
    EXPECT_TRUE(Throws<CResourceException>([&] { text.Format(17); }));
    afx::SetResourceHandle(nullptr);
    EXPECT_FALSE(text.LoadString(18));
}

TEST(BaseString, ReadsTheEnvironment) {
    CString text("former");
    ::SetEnvironmentVariableA("BASE_STRING_TEST", "value");
    EXPECT_TRUE(text.GetEnvironmentVariable("BASE_STRING_TEST"));
    EXPECT_STREQ("value", text);
    ::SetEnvironmentVariableA("BASE_STRING_TEST", nullptr);
    EXPECT_FALSE(text.GetEnvironmentVariable("BASE_STRING_TEST"));
    EXPECT_STREQ("", text);
}
