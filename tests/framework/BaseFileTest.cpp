// SPDX-License-Identifier: MIT
#include "Thrown.h"
#include "afx.h"

#include <gtest/gtest.h>

#include <string>

namespace {

/// A path for the file of one test.
class BaseFile : public testing::Test {
protected:
    void SetUp() override {
        char folder[MAX_PATH] = {};
        ::GetTempPathA(sizeof(folder), folder);
        m_path.Format("%sfile%lu.txt", folder, ::GetCurrentProcessId());
        m_missing = m_path + ".none";
    }
    void TearDown() override { ::DeleteFileA(m_path); }

    CString m_path;
    CString m_missing;
};

std::string Content(CFile& file) {
    char text[64] = {};
    file.SeekToBegin();
    const UINT size = file.Read(text, sizeof(text));
    return std::string(text, size);
}

} // namespace

TEST_F(BaseFile, OpenReportsAndConstructorThrows) {
    CFileException failure;
    CFile file;
    EXPECT_FALSE(file.Open(m_missing, CFile::modeRead, &failure));
    EXPECT_EQ(CFileException::fileNotFound, failure.m_cause);
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, failure.m_lOsError);
    EXPECT_STREQ(m_missing, failure.m_strFileName);
    EXPECT_EQ(CFile::hFileNull, file.m_hFile);
    EXPECT_EQ(CFileException::fileNotFound,
              CauseOf<CFileException>([&] { CFile(m_missing, CFile::modeRead); }));
    ASSERT_TRUE(file.Open(m_path, CFile::modeCreate | CFile::modeWrite));
    CFile second;
    EXPECT_FALSE(second.Open(m_path, CFile::modeRead, &failure));
    EXPECT_EQ(CFileException::sharingViolation, failure.m_cause) << "files are not shared";
}

TEST_F(BaseFile, PositionAndLengthCanBeSet) {
    CFile file(m_path, CFile::modeCreate | CFile::modeReadWrite);
    file.Write("0123456789", 10);
    EXPECT_EQ(2u, file.Seek(2, CFile::begin));
    EXPECT_EQ(5u, file.Seek(3, CFile::current));
    EXPECT_EQ(8u, file.Seek(-2, CFile::end));
    char rest[10];
    EXPECT_EQ(2u, file.Read(rest, sizeof(rest)));
    EXPECT_EQ(0u, file.Read(rest, sizeof(rest)));
    EXPECT_EQ(CFileException::badSeek,
              CauseOf<CFileException>([&] { file.Seek(-1, CFile::begin); }));
    file.SetLength(4);
    file.SetLength(6);
    EXPECT_EQ(std::string("0123\0\0", 6), Content(file));
    file.Close();
    EXPECT_EQ(CFileException::invalidFile, CauseOf<CFileException>([&] { file.Read(rest, 1); }));
    EXPECT_EQ(CFileException::invalidFile, CauseOf<CFileException>([&] { file.GetLength(); }));
}

TEST(BaseMemFile, GrowsAndKeepsZerosInGaps) {
    CMemFile file(4);
    file.Write("ab", 2);
    file.Seek(6, CFile::begin);
    file.Write("cd", 2);
    EXPECT_EQ(std::string("ab\0\0\0\0cd", 8), Content(file));
    file.SetLength(1);
    file.SetLength(3); // what was cut off does not come back
    EXPECT_EQ(std::string("a\0\0", 3), Content(file));
    char none;
    file.Seek(100, CFile::begin);
    EXPECT_EQ(0u, file.Read(&none, 1));
    for (const LONGLONG offset : {LONGLONG{-4}, LONGLONG{INT64_MAX}})
        EXPECT_EQ(CFileException::badSeek,
                  CauseOf<CFileException>([&] { file.Seek(offset, CFile::end); }));
    for (const ULONGLONG length : {ULONGLONG{UINT64_MAX}, ULONGLONG{INT64_MAX}})
        EXPECT_TRUE(Throws<CMemoryException>([&] { file.SetLength(length); }));
    EXPECT_EQ(3u, file.GetLength());
}
