// SPDX-License-Identifier: MIT
//
// File streams, and of memory streams what their fuzz target does not compare with a model: growth,
// the ends of what can be addressed, whose block it is.
#include "image/CxIOFile.h"
#include "image/CxMemFile.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>

namespace {

/// A temporary file of ten digits, at its start, that is gone with its handle.
class FileStream : public testing::Test {
protected:
    FileStream() {
        stream.Write("0123456789", 1, 10);
        stream.Seek(0, SEEK_SET);
    }
    ~FileStream() override { fclose(file); }

    FILE* file = tmpfile();
    CxIOFile stream{file};
};

TEST_F(FileStream, ReadsAndSeeks) {
    char read[13] = "............";
    EXPECT_EQ(stream.Read(read, 0, 5) + stream.Read(read, 5, 0) + stream.Write(read, 0, 5), 0u);
    EXPECT_EQ(stream.Read(read, 4, 3), 2u);
    EXPECT_STREQ(read, "0123456789..");
    EXPECT_EQ(stream.GetC(), -1);
    EXPECT_TRUE(stream.Eof());
    EXPECT_EQ(stream.Error(), 0);
    const struct {
        int32_t offset, origin;
        bool moved;
        int32_t position;
    } steps[] = {{3, SEEK_SET, true, 3},  {2, SEEK_CUR, true, 5}, {-4, SEEK_CUR, true, 1},
                 {-4, SEEK_END, true, 6}, {0, 3, false, 6},       {0, -1, false, 6},
                 {5, SEEK_END, true, 15}};
    for (const auto& step : steps) {
        EXPECT_EQ(stream.Seek(step.offset, step.origin), step.moved);
        EXPECT_EQ(stream.Tell(), step.position) << step.offset << " from " << step.origin;
        EXPECT_EQ(stream.Size(), 10);
    }
}

TEST_F(FileStream, WritesAndFillsAGapWithZeros) {
    ASSERT_TRUE(stream.Seek(8, SEEK_SET));
    EXPECT_EQ(stream.Write("abcd", 2, 2), 2u);
    ASSERT_TRUE(stream.Seek(20, SEEK_SET));
    EXPECT_TRUE(stream.PutC(0xFF));
    EXPECT_TRUE(stream.Flush());
    EXPECT_EQ(stream.Size(), 21);
    stream.Seek(0, SEEK_SET);
    std::string read(20, '?');
    EXPECT_EQ(stream.Read(&read[0], 1, read.size()), read.size());
    EXPECT_EQ(read, "01234567abcd" + std::string(8, '\0'));
    EXPECT_EQ(stream.GetC(), 0xFF);
}

TEST(ClosedStreams, AnswerWithFailures) {
    CxIOFile file;
    CxMemFile memory;
    char byte = 0;
    for (CxFile* stream : {static_cast<CxFile*>(&file), static_cast<CxFile*>(&memory)}) {
        EXPECT_EQ(stream->Read(&byte, 1, 1) + stream->Write(&byte, 1, 1), 0u);
        EXPECT_FALSE(stream->Seek(0, SEEK_SET) || stream->Flush() || stream->PutC(0));
        EXPECT_EQ(stream->Tell(), stream == &file ? 0 : -1) << "the two differ here";
        EXPECT_EQ(stream->Size(), -1);
        EXPECT_EQ(stream->Error(), -1);
        EXPECT_EQ(stream->GetC(), -1);
        EXPECT_TRUE(stream->Eof() && stream->Close());
    }
}

TEST_F(FileStream, LeavesTheCallersHandleOpen) {
    {
        CxIOFile other(file);
        EXPECT_TRUE(other.Close());
        EXPECT_TRUE(other.PutC('a')) << "still attached";
        EXPECT_FALSE(other.Open("x", "rb")) << "a handle is attached";
    }
    EXPECT_EQ(stream.Tell(), 1);
}

TEST(CxIOFile, OpensAndClosesAPath) {
    const std::string path = testing::TempDir() + "tintkit-iofile";
    CxIOFile stream;
    ASSERT_TRUE(stream.Open(path.c_str(), "wb"));
    EXPECT_TRUE(stream.PutC('a'));
    EXPECT_TRUE(stream.Close());
    EXPECT_EQ(stream.Error(), -1) << "closed";
    ASSERT_TRUE(stream.Open(path.c_str(), "rb"));
    EXPECT_EQ(stream.GetC(), 'a');
    EXPECT_FALSE(stream.PutC('b')) << "opened to read";
    EXPECT_NE(stream.Error(), 0);
    stream.Close(); // some run-time libraries fail here too, after an error
    remove(path.c_str());
    EXPECT_FALSE(stream.Open(path.c_str(), "rb"));
    EXPECT_FALSE(stream.Open(nullptr, "rb"));
}

/// Shows what the stream keeps to itself, puts bytes as the base does, and never sees an end.
class OpenMemFile : public CxMemFile {
public:
    using CxMemFile::CxMemFile;
    using CxMemFile::edge;
    using CxMemFile::freeOnClose;
    bool PutC(uint8_t byte) override { return CxFile::PutC(byte); }
    bool Eof() override { return false; }
};

TEST(CxMemFile, GrowsToTheNextStepAboveTheNeed) {
    OpenMemFile stream;
    EXPECT_FALSE(stream.PutC('x'));
    ASSERT_TRUE(stream.Open());
    EXPECT_FALSE(stream.Open()) << "a block is attached";
    const std::pair<size_t, int32_t> writes[] = {
        {1, 4096}, {4095, 4096}, {1, 8192}, {4095, 8192}, {4096, 16384}};
    for (const auto& [bytes, capacity] : writes) {
        EXPECT_EQ(stream.Write(std::string(bytes, 'x').data(), bytes, 1), 1u);
        EXPECT_EQ(stream.edge, capacity) << "the step above " << stream.Size();
    }
    EXPECT_TRUE(stream.PutC('y'));
    EXPECT_EQ(stream.GetC(), -1) << "the block's end holds whatever a derived class sees";
}

TEST(CxMemFile, PositionsStayWithinWhatCanBeAddressed) {
    uint8_t block[10] = {};
    CxMemFile stream(block, sizeof(block));
    EXPECT_TRUE(stream.Seek(INT32_MIN, SEEK_CUR)) << "stops at the start";
    EXPECT_TRUE(stream.Seek(100, SEEK_SET));
    EXPECT_EQ(stream.Error(), 1);
    EXPECT_EQ(stream.Read(block, 1, 1), 0u);
    EXPECT_FALSE(stream.Seek(INT32_MAX, SEEK_CUR));
    EXPECT_EQ(stream.Tell(), 100);
    EXPECT_TRUE(stream.Seek(INT32_MAX, SEEK_SET));
    EXPECT_FALSE(stream.PutC(0)) << "the block cannot grow to 2 GiB";
    stream.Seek(INT32_MAX - 4095, SEEK_SET);
    EXPECT_EQ(stream.Write(block, 1, 1), 0u) << "nor does the step above the need fit";

    const std::pair<size_t, size_t> sizes[] = {
        {65536, 65536}, {SIZE_MAX, 2}, {2, SIZE_MAX / 2 + 2}, {1, SIZE_MAX}};
    stream.Seek(0, SEEK_SET);
    for (const auto& [elementSize, count] : sizes) {
        EXPECT_EQ(stream.Read(block, elementSize, count), 0u) << count;
        EXPECT_EQ(stream.Write(block, elementSize, count), 0u) << count;
    }
    EXPECT_EQ(stream.Read(nullptr, 1, 1) + stream.Write(nullptr, 1, 1), 0u);
    EXPECT_EQ(stream.Tell(), 0);
    CxMemFile tooLarge(block, 0x80000000u);
    EXPECT_TRUE(tooLarge.Eof());
    EXPECT_EQ(tooLarge.GetC(), -1);
}

TEST(CxMemFile, KnowsWhoseBlockItIs) {
    uint8_t block[4] = {1, 2, 3, 4};
    OpenMemFile inPlace(block, sizeof(block));
    EXPECT_EQ(inPlace.Write("ab", 1, 2), 2u);
    EXPECT_EQ(memcmp(block, "ab\3\4", 4), 0);
    EXPECT_TRUE(inPlace.Close());
    EXPECT_EQ(inPlace.GetBuffer(true), block) << "still attached, still the caller's";

    OpenMemFile grown(static_cast<uint8_t*>(malloc(2)), 2);
    EXPECT_FALSE(grown.freeOnClose);
    EXPECT_EQ(grown.Write("abc", 1, 3), 3u);
    EXPECT_TRUE(grown.freeOnClose); // the destructor frees it, or the leak checker speaks up
    EXPECT_EQ(memcmp(grown.GetBuffer(false), "abc", 3), 0);

    uint8_t* taken = nullptr;
    {
        CxMemFile stream;
        ASSERT_TRUE(stream.Open());
        stream.PutC('a');
        taken = stream.GetBuffer(true);
    }
    ASSERT_NE(taken, nullptr);
    EXPECT_EQ(taken[0], 'a');
    free(taken);
}

} // namespace
