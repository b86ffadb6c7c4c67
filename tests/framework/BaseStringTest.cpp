// SPDX-License-Identifier: MIT
#include "ModuleState.h"
#include "Thrown.h"
#include "afxstr.h"

#include <gtest/gtest.h>

#include <mbctype.h>

#include <climits>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

namespace {

std::string Text(const CString& string) {
    return std::string(string.GetString(), static_cast<size_t>(string.GetLength()));
}

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
    EXPECT_EQ("", Text(CString()));
    EXPECT_EQ("", Text(CString(none)));
    EXPECT_EQ("abc", Text(CString("abc")));
    EXPECT_EQ("ab", Text(CString("abc", 2)));
    EXPECT_EQ(std::string("a\0c", 3), Text(CString("a\0c", 3)));
    EXPECT_EQ("xxx", Text(CString('x', 3)));
    EXPECT_EQ("", Text(CString('x', -1)));
    EXPECT_EQ("wide", Text(CString(L"wide")));
    EXPECT_EQ("wi", Text(CString(L"wide", 2)));
    EXPECT_EQ("yy", Text(CString(L'y', 2)));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { CString(none, 1); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([] { CString("abc", -1); }));
}

TEST(BaseString, ConvertsWideTextThroughTheAnsiCodePage) {
    const wchar_t wide[] = L"\u00e4\u0416"; // the second has no place in a Western code page
    char expected[16] = {};
    ::WideCharToMultiByte(CP_ACP, 0, wide, -1, expected, sizeof(expected), nullptr, nullptr);
    CString text("?");
    text = wide;
    EXPECT_STREQ(expected, text);
    EXPECT_TRUE(text == wide);
}

TEST(BaseString, IsOnePointerToItsCharacters) {
    const CString text("abc");
    const char* characters = nullptr;
    std::memcpy(&characters, &text, sizeof(text));
    EXPECT_STREQ("abc", characters);
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
    for (std::thread& thread : threads) {
        thread.join();
    }
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
    EXPECT_EQ("longer", Text(text));
    std::memcpy(text.GetBufferSetLength(2), "xy", 2);
    EXPECT_EQ("xy", Text(text));
    text.FreeExtra();
    EXPECT_EQ(2, text.GetAllocLength());
    text.ReleaseBuffer(1);
    EXPECT_EQ("x", Text(text));
    // A buffer filled to the brim has no null before its end.
    char* const brim = text.GetBuffer(5);
    std::memset(brim, 'z', static_cast<size_t>(text.GetAllocLength()));
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetAllocLength(), text.GetLength());

    const int tooLong = text.GetAllocLength() + 1;
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.ReleaseBuffer(tooLong); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.GetBuffer(-1); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.Truncate(text.GetLength() + 1); }));
}

TEST(BaseString, IndicesAreChecked) {
    CString text("abc");
    EXPECT_EQ('c', text[2]);
    EXPECT_EQ('\0', text.GetAt(3));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.GetAt(4); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.GetAt(-1); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.SetAt(3, 'x'); }));
}

TEST(BaseString, Compares) {
    const CString text("Banana");
    const char* const none = nullptr;
    EXPECT_EQ(0, text.Compare("Banana"));
    EXPECT_LT(text.Compare("Cherry"), 0);
    EXPECT_GT(text.Compare("Apple"), 0);
    EXPECT_GT(text.Compare(none), 0);
    EXPECT_EQ(0, text.CompareNoCase("bANANA"));
    EXPECT_NE(0, text.Compare("bANANA"));
    EXPECT_EQ(0, text.Collate("Banana"));
    EXPECT_EQ(0, text.CollateNoCase("banana"));
    EXPECT_TRUE(text == "Banana" && "Banana" == text && text == L"Banana" && text != 'B');
    EXPECT_TRUE(CString('B') == 'B' && 'B' == CString('B'));
    EXPECT_TRUE(text < "Cherry" && "Apple" < text && text > "Apple" && "Cherry" > text);
    EXPECT_TRUE(text <= text && text >= "Banana" && "Apple" <= text && "Cherry" >= text);
    EXPECT_FALSE(text < "Banana" || text > "Banana" || text != "Banana");
}

TEST(BaseString, CutsOutParts) {
    const CString text("abcdef");
    EXPECT_STREQ("cdef", text.Mid(2));
    EXPECT_STREQ("cd", text.Mid(2, 2));
    EXPECT_STREQ("ef", text.Mid(4, INT_MAX));
    EXPECT_STREQ("", text.Mid(7, 1));
    EXPECT_STREQ("ab", text.Mid(-5, 2));
    EXPECT_STREQ("", text.Left(-1));
    EXPECT_STREQ("ab", text.Left(2));
    EXPECT_STREQ("abcdef", text.Left(100));
    EXPECT_STREQ("ef", text.Right(2));
    EXPECT_STREQ("abcdef", text.Right(100));
    EXPECT_STREQ("abc", text.SpanIncluding("cba"));
    EXPECT_STREQ("", text.SpanIncluding("b"));
    EXPECT_STREQ("abc", text.SpanExcluding("xd"));
    EXPECT_STREQ("abcdef", text.SpanExcluding(""));
}

TEST(BaseString, SplitsIntoTokens) {
    const CString text(" ,First Second,,Third ");
    std::vector<std::string> tokens;
    int position = 0;
    for (CString token = text.Tokenize(" ,", position); !token.IsEmpty();
         token = text.Tokenize(" ,", position)) {
        tokens.push_back(Text(token));
    }
    EXPECT_EQ((std::vector<std::string>{"First", "Second", "Third"}), tokens);
    EXPECT_EQ(-1, position);
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { text.Tokenize(",", position); }));
    position = 8;
    EXPECT_STREQ("Second,,Third ", text.Tokenize("", position));
}

TEST(BaseString, GrowsByAppending) {
    CString text;
    for (int index = 0; index < 1000; ++index) {
        text += static_cast<char>('a' + index % 26);
    }
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
    EXPECT_STREQ(" two ", text);
    EXPECT_EQ(0, text.Replace("", "x"));
    EXPECT_EQ(2, text.Replace(' ', '_'));
    EXPECT_EQ(0, text.Replace('_', '_'));
    EXPECT_EQ(1, text.Replace("two", "two two")); // what was put in is not searched again
    EXPECT_STREQ("_two two_", text);
}

TEST(BaseString, Trims) {
    EXPECT_STREQ("a b", CString(" \t\r\na b \f\v").Trim());
    EXPECT_STREQ("a ", CString("  a ").TrimLeft());
    EXPECT_STREQ(" a", CString(" a  ").TrimRight());
    EXPECT_STREQ("a-", CString("--a-").TrimLeft('-'));
    EXPECT_STREQ("-a", CString("-a--").TrimRight('-'));
    EXPECT_STREQ("a", CString("<>a><").Trim("<>"));
    EXPECT_STREQ("", CString("---").Trim('-'));
    EXPECT_STREQ("-a-", CString("-a-").Trim(""));
}

TEST(BaseString, Searches) {
    const CString text("abcabc");
    EXPECT_EQ(1, text.Find('b'));
    EXPECT_EQ(4, text.Find('b', 2));
    EXPECT_EQ(-1, text.Find('b', 5));
    EXPECT_EQ(-1, text.Find('\0'));
    EXPECT_EQ(2, text.Find("ca"));
    EXPECT_EQ(3, text.Find("abc", 1));
    EXPECT_EQ(-1, text.Find("abc", 4));
    EXPECT_EQ(-1, text.Find("abc", 7));
    EXPECT_EQ(-1, text.Find("abc", -1));
    EXPECT_EQ(4, text.ReverseFind('b'));
    EXPECT_EQ(-1, text.ReverseFind('x'));
    EXPECT_EQ(1, text.FindOneOf("xcb"));
    EXPECT_EQ(-1, text.FindOneOf("xyz"));
}

TEST(BaseString, RespectsDoubleByteCharacters) {
    const ShiftJis codePage;
    const char katakanaSo[] = "\x83\x5C"; // its second byte is a backslash
    const CString text = CString("a") + katakanaSo + "\\" + katakanaSo;
    EXPECT_EQ(3, text.Find('\\'));
    EXPECT_EQ(3, text.ReverseFind('\\'));
    EXPECT_EQ(1, text.Find(katakanaSo));
    EXPECT_EQ(3, text.FindOneOf("\\"));
    EXPECT_STREQ("a\x83\x5C", text.SpanExcluding("\\"));
    EXPECT_STREQ("a\x83\x5C\\\x83\x5C", CString(text).TrimRight('\\'));
    EXPECT_STREQ("a\x83\x5C\\", CString(text).TrimRight(katakanaSo));
    EXPECT_EQ(1, CString(text).Remove('\\'));
    EXPECT_STREQ("\x83\x5C\\\x83\x5C"
                 "a",
                 CString(text).MakeReverse());
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
    EXPECT_FALSE(text.LoadString(strings.module(), 17));
    EXPECT_FALSE(text.LoadString(strings.module(), 19));
    EXPECT_FALSE(text.LoadString(strings.module(), 20));
    EXPECT_FALSE(text.LoadString(strings.module(), 32));
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
