// SPDX-License-Identifier: MIT
//
// What memory and file streams have in common, then what each has of its own.
#include "image/CxIOFile.h"
#include "image/CxMemFile.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <type_traits>

namespace {

/// A temporary file that is gone with its handle.
struct IoStream {
    FILE* file = tmpfile();
    CxIOFile stream{file};
    CxIOFile closed;
    static constexpr int32_t kTellWhenClosed = 0; // the two streams differ here

    explicit IoStream(const std::string& content) {
        fwrite(content.data(), 1, content.size(), file);
        rewind(file);
    }
    ~IoStream() { fclose(file); }
};

struct MemStream {
    CxMemFile stream;
    CxMemFile closed;
    static constexpr int32_t kTellWhenClosed = -1;

    explicit MemStream(const std::string& content) {
        stream.Open();
        stream.Write(content.data(), 1, content.size());
        stream.Seek(0, SEEK_SET);
    }
};

template <class Stream>
class Streams : public testing::Test {};
using BothStreams = testing::Types<IoStream, MemStream>;
struct StreamNames {
    template <class Stream>
    static std::string GetName(int) {
        return std::is_same<Stream, IoStream>::value ? "File" : "Memory";
    }
};
TYPED_TEST_SUITE(Streams, BothStreams, StreamNames);

TYPED_TEST(Streams, ReadConsumesAPartialElementWithoutCountingIt) {
    TypeParam made("0123456789");
    CxFile& stream = made.stream;
    char read[13] = "............";
    EXPECT_EQ(stream.Read(read, 4, 3), 2u);
    EXPECT_STREQ(read, "0123456789..");
    EXPECT_EQ(stream.Tell(), 10);
    EXPECT_EQ(stream.GetC(), -1);
    EXPECT_TRUE(stream.Eof());
    EXPECT_EQ(stream.Read(read, 1, 1), 0u);
}

TYPED_TEST(Streams, SeekCountsFromStartPositionOrEnd) {
    const struct {
        int32_t offset, origin;
        bool moved;
        int32_t position;
    } steps[] = {{3, SEEK_SET, true, 3},  {2, SEEK_CUR, true, 5}, {-4, SEEK_CUR, true, 1},
                 {-4, SEEK_END, true, 6}, {0, 3, false, 6},       {0, -1, false, 6},
                 {5, SEEK_END, true, 15}, {0, SEEK_SET, true, 0}};
    TypeParam made("0123456789");
    CxFile& stream = made.stream;
    for (const auto& step : steps) {
        SCOPED_TRACE(testing::Message() << step.offset << " from " << step.origin);
        EXPECT_EQ(stream.Seek(step.offset, step.origin), step.moved);
        EXPECT_EQ(stream.Tell(), step.position);
        EXPECT_EQ(stream.Size(), 10);
    }
}

TYPED_TEST(Streams, EveryByteValueComesBack) {
    TypeParam made("");
    CxFile& stream = made.stream;
    for (int byte = 0; byte < 256; ++byte)
        ASSERT_TRUE(stream.PutC(static_cast<uint8_t>(byte)));
    EXPECT_TRUE(stream.Flush());
    EXPECT_EQ(stream.Size(), 256);
    ASSERT_TRUE(stream.Seek(0, SEEK_SET));
    for (int byte = 0; byte < 256; ++byte)
        ASSERT_EQ(stream.GetC(), byte);
    EXPECT_EQ(stream.GetC(), -1);
}

TYPED_TEST(Streams, WritingOverwritesAppendsAndFillsAGapWithZeros) {
    TypeParam made("0123456789");
    CxFile& stream = made.stream;
    ASSERT_TRUE(stream.Seek(8, SEEK_SET));
    EXPECT_EQ(stream.Write("abcd", 2, 2), 2u);
    EXPECT_EQ(stream.Size(), 12);
    ASSERT_TRUE(stream.Seek(5000, SEEK_SET));
    EXPECT_EQ(stream.Write("z", 1, 1), 1u);
    EXPECT_EQ(stream.Size(), 5001);

    ASSERT_TRUE(stream.Seek(0, SEEK_SET));
    std::string read(5001, '?');
    EXPECT_EQ(stream.Read(&read[0], 1, read.size()), read.size());
    EXPECT_EQ(read, "01234567abcd" + std::string(5000 - 12, '\0') + "z");
}

TYPED_TEST(Streams, EmptyTransfersMoveNothing) {
    TypeParam made("0123456789");
    CxFile& stream = made.stream;
    char byte = 0;
    EXPECT_EQ(stream.Read(&byte, 0, 5), 0u);
    EXPECT_EQ(stream.Read(&byte, 5, 0), 0u);
    EXPECT_EQ(stream.Write(&byte, 0, 5), 0u);
    EXPECT_EQ(stream.Tell(), 0);
    EXPECT_EQ(stream.Error(), 0);
}

TYPED_TEST(Streams, AClosedStreamAnswersWithFailures) {
    TypeParam made("");
    CxFile& stream = made.closed;
    char byte = 0;
    EXPECT_EQ(stream.Read(&byte, 1, 1), 0u);
    EXPECT_EQ(stream.Write(&byte, 1, 1), 0u);
    EXPECT_FALSE(stream.Seek(0, SEEK_SET));
    EXPECT_EQ(stream.Tell(), TypeParam::kTellWhenClosed);
    EXPECT_EQ(stream.Size(), -1);
    EXPECT_FALSE(stream.Flush());
    EXPECT_TRUE(stream.Eof());
    EXPECT_EQ(stream.Error(), -1);
    EXPECT_FALSE(stream.PutC(0));
    EXPECT_EQ(stream.GetC(), -1);
    EXPECT_TRUE(stream.Close());
}

/// The base PutC is for streams that have nothing better.
TEST(CxFile, PutCWritesOneByte) {
    class Recorder : public CxMemFile {
    public:
        bool PutC(uint8_t byte) override { return CxFile::PutC(byte); }
    };
    Recorder recorder;
    EXPECT_FALSE(recorder.PutC('a'));
    recorder.Open();
    EXPECT_TRUE(recorder.PutC('a'));
    EXPECT_EQ(recorder.Size(), 1);
    EXPECT_EQ(recorder.GetBuffer(false)[0], 'a');
}

TEST(CxIOFile, LeavesTheCallersHandleOpen) {
    FILE* file = tmpfile();
    ASSERT_NE(file, nullptr);
    {
        CxIOFile stream(file);
        EXPECT_TRUE(stream.Close());
        EXPECT_TRUE(stream.PutC('a')) << "still attached";
        EXPECT_FALSE(stream.Open("x", "rb")) << "a handle is attached";
    }
    EXPECT_EQ(ftell(file), 1);
    EXPECT_EQ(fclose(file), 0);
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
    EXPECT_EQ(stream.Error(), -1) << "closed all the same";
    remove(path.c_str());
    EXPECT_FALSE(stream.Open(path.c_str(), "rb"));
    EXPECT_FALSE(stream.Open(nullptr, "rb"));
}

/// Shows what the stream keeps to itself.
class OpenMemFile : public CxMemFile {
public:
    using CxMemFile::CxMemFile;
    using CxMemFile::edge;
    using CxMemFile::freeOnClose;
};

TEST(CxMemFile, GrowsToTheNextStepAboveTheNeed) {
    OpenMemFile stream;
    ASSERT_TRUE(stream.Open());
    EXPECT_FALSE(stream.Open()) << "a block is attached";
    EXPECT_EQ(stream.edge, 0);
    for (int written = 1; written <= 4097; ++written) {
        ASSERT_TRUE(stream.PutC('x'));
        ASSERT_EQ(stream.edge, written <= 4096 ? 4096 : 8192) << written;
    }
    const std::string rest(8192 - 4097, 'y');
    EXPECT_EQ(stream.Write(rest.data(), rest.size(), 1), 1u);
    EXPECT_EQ(stream.edge, 8192) << "what fits does not grow the block";
    EXPECT_TRUE(stream.PutC('z'));
    EXPECT_EQ(stream.edge, 12288);

    OpenMemFile exact;
    ASSERT_TRUE(exact.Open());
    EXPECT_EQ(exact.Write(std::string(8192, 'x').data(), 1, 8192), 8192u);
    EXPECT_EQ(exact.edge, 12288) << "a request of exactly two steps gets a third";
}

TEST(CxMemFile, SeekStopsAtTheStartAndRefusesWhat32BitsCannotHold) {
    uint8_t block[10] = {};
    CxMemFile stream(block, sizeof(block));
    EXPECT_TRUE(stream.Seek(-5, SEEK_SET));
    EXPECT_EQ(stream.Tell(), 0);
    EXPECT_TRUE(stream.Seek(-11, SEEK_END));
    EXPECT_EQ(stream.Tell(), 0);
    EXPECT_TRUE(stream.Seek(INT32_MIN, SEEK_CUR));
    EXPECT_EQ(stream.Tell(), 0);

    EXPECT_TRUE(stream.Seek(100, SEEK_SET));
    EXPECT_EQ(stream.Error(), 1);
    EXPECT_TRUE(stream.Eof());
    EXPECT_EQ(stream.Read(block, 1, 1), 0u);
    EXPECT_TRUE(stream.Seek(10, SEEK_SET));
    EXPECT_EQ(stream.Error(), 0);

    EXPECT_FALSE(stream.Seek(INT32_MAX, SEEK_CUR));
    EXPECT_FALSE(stream.Seek(INT32_MAX - 9, SEEK_END));
    EXPECT_EQ(stream.Tell(), 10);
    EXPECT_TRUE(stream.Seek(INT32_MAX, SEEK_SET));
    EXPECT_FALSE(stream.PutC(0)) << "the block cannot grow to 2 GiB";
    EXPECT_EQ(stream.Write(block, 1, 1), 0u);
    EXPECT_EQ(stream.Tell(), INT32_MAX);
}

TEST(CxMemFile, RefusesTransfersWhoseSizeDoesNotFit) {
    uint8_t block[10] = {};
    CxMemFile stream(block, sizeof(block));
    uint8_t other[1] = {};
    const struct {
        size_t elementSize, count;
    } cases[] = {{65536, 65536}, {SIZE_MAX, 2}, {2, SIZE_MAX / 2 + 2}, {1, SIZE_MAX}};
    for (const auto& size : cases) {
        SCOPED_TRACE(testing::Message() << size.elementSize << " x " << size.count);
        EXPECT_EQ(stream.Read(other, size.elementSize, size.count), 0u);
        EXPECT_EQ(stream.Write(other, size.elementSize, size.count), 0u);
    }
    EXPECT_EQ(stream.Read(nullptr, 1, 1), 0u);
    EXPECT_EQ(stream.Write(nullptr, 1, 1), 0u);
    EXPECT_EQ(stream.Tell(), 0);
}

TEST(CxMemFile, ABlockBeyondPositionsReadsAsEmpty) {
    uint8_t block[1] = {'a'};
    CxMemFile largest(block, INT32_MAX);
    EXPECT_EQ(largest.GetC(), 'a');
    CxMemFile tooLarge(block, 0x80000000u);
    EXPECT_TRUE(tooLarge.Eof());
    EXPECT_EQ(tooLarge.GetC(), -1);
}

TEST(CxMemFile, WritesACallersBlockInPlace) {
    uint8_t block[4] = {1, 2, 3, 4};
    OpenMemFile stream(block, sizeof(block));
    EXPECT_EQ(stream.Write("ab", 1, 2), 2u);
    EXPECT_EQ(memcmp(block, "ab\3\4", 4), 0);
    EXPECT_TRUE(stream.Close());
    EXPECT_EQ(stream.GetBuffer(true), block) << "still attached, still the caller's";
}

TEST(CxMemFile, TakesOverACallersBlockThatHasToGrow) {
    uint8_t* block = static_cast<uint8_t*>(malloc(2));
    ASSERT_NE(block, nullptr);
    OpenMemFile stream(block, 2);
    EXPECT_FALSE(stream.freeOnClose);
    EXPECT_EQ(stream.Write("abc", 1, 3), 3u);
    EXPECT_TRUE(stream.freeOnClose); // the destructor frees it, or the leak checker speaks up
    EXPECT_EQ(memcmp(stream.GetBuffer(false), "abc", 3), 0);
}

TEST(CxMemFile, HandsItsBlockOver) {
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
