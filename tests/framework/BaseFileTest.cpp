// SPDX-License-Identifier: MIT
#include "Thrown.h"
#include "afx.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>
#include <memory>
#include <string>

namespace {

/// A folder for the files of one test.
class BaseFile : public testing::Test {
protected:
    void SetUp() override {
        char folder[MAX_PATH] = {};
        ::GetTempPathA(sizeof(folder), folder);
        m_folder.Format("%sfile%lu", folder, ::GetCurrentProcessId());
        ASSERT_TRUE(::CreateDirectoryA(m_folder, nullptr));
    }
    void TearDown() override {
        ::DeleteFileA(path("a.txt"));
        ::DeleteFileA(path("b.txt"));
        EXPECT_TRUE(::RemoveDirectoryA(m_folder));
    }

    CString path(const char* name) const { return m_folder + "\\" + name; }
    void write(const char* name, const char* content) const {
        CFile file(path(name), CFile::modeCreate | CFile::modeWrite);
        file.Write(content, static_cast<UINT>(strlen(content)));
    }
    std::string read(const char* name) const {
        CFile file(path(name), CFile::modeRead);
        std::string content(static_cast<size_t>(file.GetLength()), '\0');
        EXPECT_EQ(content.size(), file.Read(&content[0], static_cast<UINT>(content.size())));
        return content;
    }

    CString m_folder;
};

std::string Content(CFile& file) {
    char text[64] = {};
    file.SeekToBegin();
    const UINT size = file.Read(text, sizeof(text));
    return std::string(text, size);
}

} // namespace

TEST_F(BaseFile, ModesDecideAboutExistingContent) {
    write("a.txt", "first");
    EXPECT_EQ("first", read("a.txt"));
    write("a.txt", "2nd"); // modeCreate alone empties the file
    EXPECT_EQ("2nd", read("a.txt"));
    CFile file;
    const UINT keep = CFile::modeCreate | CFile::modeNoTruncate | CFile::modeReadWrite;
    ASSERT_TRUE(file.Open(path("a.txt"), keep));
    EXPECT_EQ(3u, file.SeekToEnd());
    file.Write("!", 1);
    file.Close();
    EXPECT_EQ("2nd!", read("a.txt"));
    CFile other(path("b.txt"), keep); // and creates a missing one
    EXPECT_EQ(0u, other.GetLength());
}

TEST_F(BaseFile, OpenReportsAndConstructorThrows) {
    CFileException failure;
    CFile file;
    EXPECT_FALSE(file.Open(path("a.txt"), CFile::modeRead, &failure));
    EXPECT_EQ(CFileException::fileNotFound, failure.m_cause);
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, failure.m_lOsError);
    EXPECT_STREQ(path("a.txt"), failure.m_strFileName);
    EXPECT_FALSE(file.Open(path("none\\a.txt"), CFile::modeRead));
    EXPECT_EQ(CFile::hFileNull, file.m_hFile);
    EXPECT_EQ(CFileException::fileNotFound,
              CauseOf<CFileException>([&] { CFile(path("a.txt"), CFile::modeRead); }));
}

TEST_F(BaseFile, SharingIsExclusiveUnlessAskedFor) {
    write("a.txt", "x");
    CFile first;
    CFile second;
    CFileException failure;
    ASSERT_TRUE(first.Open(path("a.txt"), CFile::modeRead));
    EXPECT_FALSE(second.Open(path("a.txt"), CFile::modeRead, &failure));
    EXPECT_EQ(CFileException::sharingViolation, failure.m_cause);
    first.Close();
    ASSERT_TRUE(first.Open(path("a.txt"), CFile::modeRead | CFile::shareDenyWrite));
    EXPECT_FALSE(second.Open(path("a.txt"), CFile::modeWrite | CFile::shareDenyNone));
    EXPECT_TRUE(second.Open(path("a.txt"), CFile::modeRead | CFile::shareDenyNone));
}

TEST_F(BaseFile, PositionAndLengthCanBeSet) {
    CFile file(path("a.txt"), CFile::modeCreate | CFile::modeReadWrite);
    file.Write("0123456789", 10);
    EXPECT_EQ(10u, file.GetPosition());
    EXPECT_EQ(2u, file.Seek(2, CFile::begin));
    EXPECT_EQ(5u, file.Seek(3, CFile::current));
    EXPECT_EQ(8u, file.Seek(-2, CFile::end));
    char rest[10];
    EXPECT_EQ(2u, file.Read(rest, sizeof(rest)));
    EXPECT_EQ(0u, file.Read(rest, sizeof(rest)));
    EXPECT_EQ(CFileException::badSeek,
              CauseOf<CFileException>([&] { file.Seek(-1, CFile::begin); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { file.Seek(0, 3); }));
    file.SetLength(4);
    EXPECT_EQ("0123", Content(file));
    file.SetLength(6);
    EXPECT_EQ(std::string("0123\0\0", 6), Content(file));
}

TEST_F(BaseFile, ClosedFileRefusesWork) {
    write("a.txt", "x");
    CFile file(path("a.txt"), CFile::modeRead);
    EXPECT_EQ(CFileException::accessDenied, CauseOf<CFileException>([&] { file.Write("y", 1); }));
    file.Close();
    file.Abort(); // accepted at any time
    char byte;
    EXPECT_EQ(CFileException::invalidFile, CauseOf<CFileException>([&] { file.Read(&byte, 1); }));
    EXPECT_EQ(CFileException::invalidFile, CauseOf<CFileException>([&] { file.GetLength(); }));
    EXPECT_EQ(CFileException::invalidFile, CauseOf<CFileException>([&] { file.Close(); }));
}

TEST_F(BaseFile, HandleOfACallerStaysOpen) {
    write("a.txt", "x");
    const HANDLE handle = ::CreateFileA(path("a.txt"), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                        OPEN_EXISTING, 0, nullptr);
    { const CFile attached(handle); }
    std::unique_ptr<CFile> copy(CFile(handle).Duplicate());
    EXPECT_EQ("x", Content(*copy));
    EXPECT_TRUE(::CloseHandle(handle));
    EXPECT_EQ("x", Content(*copy)); // has a handle of its own
}

TEST_F(BaseFile, StatusAndNames) {
    write("a.txt", "12345");
    CFile::Rename(path("a.txt"), path("b.txt"));
    ::SetFileAttributesA(path("b.txt"), FILE_ATTRIBUTE_READONLY);
    CFileStatus status, ofHandle;
    ASSERT_TRUE(CFile::GetStatus(path("b.txt"), status));
    EXPECT_EQ(5u, status.m_size);
    EXPECT_NE(0, status.m_attribute & CFile::readOnly);
    EXPECT_GE(status.m_mtime.GetTime(), time(nullptr) - 60);
    EXPECT_STREQ(path("b.txt"), status.m_szFullName);
    {
        CFile file(path("b.txt"), CFile::modeRead);
        EXPECT_STREQ("b.txt", file.GetFileName());
        ASSERT_TRUE(file.GetStatus(ofHandle));
    }
    EXPECT_TRUE(ofHandle.m_size == 5 && ofHandle.m_mtime == status.m_mtime);
    EXPECT_EQ(0, CTime(FILETIME{0, 0}).GetTime());
    ::SetFileAttributesA(path("b.txt"), FILE_ATTRIBUTE_NORMAL);
    CFile::Remove(path("b.txt"));
    EXPECT_FALSE(CFile::GetStatus(path("b.txt"), status));
    const auto missing = [this] { CFile::Remove(path("b.txt")); };
    EXPECT_EQ(CFileException::fileNotFound, CauseOf<CFileException>(missing));
}

TEST(BaseMemFile, GrowsAndKeepsZerosInGaps) {
    CMemFile file(4);
    file.Write("ab", 2);
    file.Seek(6, CFile::begin);
    file.Write("cd", 2);
    EXPECT_EQ(8u, file.GetLength());
    EXPECT_EQ(std::string("ab\0\0\0\0cd", 8), Content(file));
    file.SetLength(1);
    file.SetLength(3); // what was cut off does not come back
    EXPECT_EQ(std::string("a\0\0", 3), Content(file));
    char none;
    file.Seek(100, CFile::begin);
    EXPECT_EQ(0u, file.Read(&none, 1));
    EXPECT_EQ(CFileException::badSeek, CauseOf<CFileException>([&] { file.Seek(-4, CFile::end); }));
    EXPECT_EQ(CFileException::badSeek,
              CauseOf<CFileException>([&] { file.Seek(INT64_MAX, CFile::end); }));
}

TEST(BaseMemFile, AttachedBlockIsTheWholeFile) {
    BYTE block[] = {'a', 'b', 'c'};
    CMemFile file(block, sizeof(block));
    EXPECT_EQ("abc", Content(file));
    file.Seek(1, CFile::begin);
    file.Write("xy", 2);
    EXPECT_EQ('y', block[2]);
    EXPECT_TRUE(Throws<CMemoryException>([&] { file.Write("z", 1); }));
    EXPECT_TRUE(Throws<CMemoryException>([&] { file.SetLength(4); }));
    EXPECT_EQ(block, file.Detach());
    EXPECT_EQ(0u, file.GetLength());
}

TEST(BaseMemFile, AttachedBlockMayGrow) {
    CMemFile file;
    file.Attach(static_cast<BYTE*>(std::malloc(2)), 2, 16);
    EXPECT_EQ(0u, file.GetLength());
    file.Write("abcdef", 6);
    EXPECT_EQ("abcdef", Content(file));
    BYTE* const block = file.Detach();
    EXPECT_EQ('f', block[5]);
    std::free(block);
}

TEST(BaseMemFile, ImpossibleSizesAreRefused) {
    CMemFile file;
    EXPECT_TRUE(Throws<CMemoryException>([&] { file.SetLength(UINT64_MAX); }));
    EXPECT_TRUE(Throws<CMemoryException>([&] { file.SetLength(INT64_MAX); }));
    EXPECT_TRUE(Throws<CNotSupportedException>([&] { file.Duplicate(); }));
    EXPECT_TRUE(Throws<CNotSupportedException>([&] { file.LockRange(0, 1); }));
    EXPECT_EQ(0u, file.GetLength());
}
