// SPDX-License-Identifier: MIT
#include "Thrown.h"
#include "afx.h"
#include "atltypes.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <tuple>
#include <vector>

using Bytes = std::vector<BYTE>;

namespace {

Bytes Stored(const std::function<void(CArchive&)>& store, int bufferSize = 4096) {
    CMemFile file;
    CArchive archive(&file, CArchive::store, bufferSize);
    store(archive);
    archive.Close();
    Bytes bytes(static_cast<size_t>(file.GetLength()));
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

void Load(Bytes bytes, const std::function<void(CArchive&)>& load, int bufferSize = 4096) {
    CMemFile file(bytes.data(), static_cast<UINT>(bytes.size()));
    CArchive archive(&file, CArchive::load, bufferSize);
    load(archive);
}

/// The cause of the failure to load, -1 when it succeeds.
int Fault(const Bytes& bytes, const std::function<void(CArchive&)>& load) {
    return CauseOf<CArchiveException>([&] { Load(bytes, load); });
}

void LoadText(CArchive& archive) {
    CString text;
    archive >> text;
}

} // namespace

template <class... T>
void ExpectSameBack(const T&... values) {
    const Bytes bytes = Stored([&](CArchive& archive) { ((archive << values), ...); });
    Load(bytes, [&](CArchive& archive) {
        std::tuple<T...> loaded;
        std::apply([&](T&... value) { ((archive >> value), ...); }, loaded);
        EXPECT_TRUE(loaded == std::tie(values...));
        BYTE none = 0;
        EXPECT_EQ(CArchiveException::endOfFile,
                  CauseOf<CArchiveException>([&] { archive >> none; }));
    });
}

TEST(BaseArchive, ValuesKeepTheirFormat) {
    EXPECT_EQ((Bytes{1, 3, 2, 7, 6, 5, 4, 1, 'c', 'w', 0}), Stored([](CArchive& archive) {
                  archive << BYTE{1} << WORD{0x0203} << DWORD{0x04050607} << true << 'c' << L'w';
              }));
    ExpectSameBack(BYTE{1}, WORD{0x0203}, DWORD{0x04050607}, true, 'c', L'w');
    ExpectSameBack(short{-2}, -3, LONG{-4}, 5u, LONGLONG{-6}, ULONGLONG{7}, 1.5f, -2.5);
    ExpectSameBack(CPoint(1, 2), CSize(3, 4), CRect(5, 6, 7, 8));
}

TEST(BaseArchive, StringLengthsTakeTheShortestForm) {
    for (const int length : {0, 1, 254, 255, 256, 0xFFFD, 0xFFFE, 0x10001}) {
        const CString text('x', length);
        const size_t prefix = length < 255 ? 1 : length < 0xFFFE ? 3 : 7;
        const Bytes bytes = Stored([&](CArchive& archive) { archive << text << 'e'; });
        EXPECT_EQ(prefix + static_cast<size_t>(length) + 1, bytes.size()) << length;
        Load(bytes, [&](CArchive& archive) {
            CString loaded;
            char end = '\0';
            archive >> loaded >> end;
            EXPECT_EQ(length, loaded.GetLength());
            EXPECT_TRUE(loaded == text && end == 'e') << length;
        });
    }
    // As a Unicode program writes it.
    Load({0xFF, 0xFE, 0xFF, 2, 'H', 0, 'i', 0}, [](CArchive& archive) {
        CString loaded;
        archive >> loaded;
        EXPECT_STREQ("Hi", loaded);
    });
}

TEST(BaseArchive, StringsLongerThanTheFileAreRefused) {
    EXPECT_EQ(-1, Fault({2, 'a', 'b'}, LoadText));
    const Bytes tooLong[] = {
        {3, 'a', 'b'},
        {0xFF, 3, 0, 'a', 'b'},
        {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x7F},
        {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF},
        {0xFF, 0xFE, 0xFF, 2, 'H', 0, 'i'},
        {0xFF},
        {},
    };
    for (const Bytes& bytes : tooLong)
        EXPECT_EQ(CArchiveException::endOfFile, Fault(bytes, LoadText)) << bytes.size();
    EXPECT_EQ(CArchiveException::badIndex, Fault({0xFF, 0xFE, 0xFF, 0xFF, 0xFE, 0xFF}, LoadText));
}

TEST(BaseArchive, FlushWhileLoadingGivesTheFileItsPlace) {
    Bytes bytes = {1, 2, 3};
    CMemFile file(bytes.data(), static_cast<UINT>(bytes.size()));
    CArchive archive(&file, CArchive::load);
    BYTE first = 0, second = 0;
    archive >> first;
    archive.Flush();
    EXPECT_EQ(1u, file.GetPosition());
    archive >> second;
    EXPECT_EQ(2, second);
}

TEST(BaseArchive, BufferOfAnySizeGivesTheSameBytes) {
    std::string block(1000, 'b');
    const auto store = [&](CArchive& archive) {
        for (int index = 0; index < 100; ++index)
            archive << index;
        archive.Write(block.data(), static_cast<INT>(block.size()));
        archive << BYTE{9};
    };
    const Bytes bytes = Stored(store);
    EXPECT_EQ(1401u, bytes.size());
    for (const int size : {0, 128, 129, 1000}) {
        EXPECT_EQ(bytes, Stored(store, size)) << size;
        const auto load = [&](CArchive& archive) {
            std::string loaded(2000, '\0');
            EXPECT_EQ(1401u, archive.Read(&loaded[0], 2000));
            EXPECT_EQ(block + '\x09', loaded.substr(400, 1001));
        };
        Load(bytes, load, size);
    }
}
