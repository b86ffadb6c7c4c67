// SPDX-License-Identifier: MIT
#include "Thrown.h"
#include "afx.h"
#include "atltypes.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

using Bytes = std::vector<BYTE>;

/// A node of a graph of objects. Nodes belong to whoever loads them.
class CTestNode : public CObject {
    DECLARE_SERIAL(CTestNode)
public:
    CTestNode() { ++alive; }
    ~CTestNode() override { --alive; }
    void Serialize(CArchive& ar) override;

    int value = 0;
    CTestNode* next = nullptr;
    static int alive;
};
int CTestNode::alive = 0;
IMPLEMENT_SERIAL(CTestNode, CObject, 1)

void CTestNode::Serialize(CArchive& ar) {
    if (ar.IsStoring())
        ar << value << next;
    else
        ar >> value >> next;
}

/// A class that reads every version of itself.
class CTestVersioned : public CTestNode {
    DECLARE_SERIAL(CTestVersioned)
public:
    void Serialize(CArchive& ar) override {
        if (ar.IsLoading()) {
            schema = ar.GetObjectSchema();
            again = ar.GetObjectSchema();
        }
        ar.SerializeClass(RUNTIME_CLASS(CTestNode));
        CTestNode::Serialize(ar);
    }
    UINT schema = 0;
    UINT again = 0;
};
IMPLEMENT_SERIAL(CTestVersioned, CTestNode, VERSIONABLE_SCHEMA | 3)

class CTestNotStorable : public CObject {
    DECLARE_DYNCREATE(CTestNotStorable)
};
IMPLEMENT_DYNCREATE(CTestNotStorable, CObject)

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

void LoadNode(CArchive& archive) {
    CTestNode* node = nullptr;
    archive >> node;
    delete node;
}

void LoadText(CArchive& archive) {
    CString text;
    archive >> text;
}

Bytes Joined(Bytes first, const Bytes& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

/// The tag, schema and name in front of the first object of class CTestNode.
Bytes NodeHeader(BYTE schema = 1) {
    return {0xFF, 0xFF, schema, 0, 9, 0, 'C', 'T', 'e', 's', 't', 'N', 'o', 'd', 'e'};
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
    for (const int size : {0, 1, 128, 129, 1000}) {
        EXPECT_EQ(bytes, Stored(store, size)) << size;
        Load(
            bytes,
            [&](CArchive& archive) {
                for (int index = 0; index < 100; ++index) {
                    int value = -1;
                    archive >> value;
                    EXPECT_EQ(index, value);
                }
                std::string loaded(2000, '\0');
                EXPECT_EQ(1001u, archive.Read(&loaded[0], 2000));
                EXPECT_EQ(block + '\x09', loaded.substr(0, 1001));
            },
            size);
    }
}

TEST(BaseArchive, FlushEmptiesTheBuffer) {
    BYTE buffer[8] = {};
    CMemFile file;
    CArchive archive(&file, CArchive::store, sizeof(buffer), buffer);
    archive << BYTE{42};
    EXPECT_EQ(42, buffer[0]);
    EXPECT_TRUE(file.GetLength() == 0 && !archive.IsBufferEmpty());
    archive.Flush();
    EXPECT_TRUE(file.GetLength() == 1 && archive.IsBufferEmpty());
    BYTE bytes[] = {1, 2, 3, 4};
    CMemFile source(bytes, 4);
    CArchive loading(&source, CArchive::load);
    loading >> bytes[0];
    loading.Close();
    EXPECT_EQ(1u, source.GetPosition()) << "what was not read is given back";
}

TEST(BaseArchive, DestructorWritesUnlessToldOtherwise) {
    CMemFile files[3];
    {
        CArchive written(&files[0], CArchive::store);
        CArchive aborted(&files[1], CArchive::store);
        CArchive unflushed(&files[2], CArchive::store | CArchive::bNoFlushOnDelete);
        for (CArchive* const archive : {&written, &aborted, &unflushed})
            *archive << 1;
        aborted.Abort();
    }
    EXPECT_EQ(4u, files[0].GetLength());
    EXPECT_EQ(0u, files[1].GetLength());
    EXPECT_EQ(0u, files[2].GetLength());
}

TEST(BaseArchive, DirectionIsChecked) {
    CMemFile file;
    CArchive storing(&file, CArchive::store);
    CArchive loading(&file, CArchive::load);
    BYTE byte = 0;
    EXPECT_EQ(CArchiveException::writeOnly, CauseOf<CArchiveException>([&] { storing >> byte; }));
    EXPECT_EQ(CArchiveException::readOnly, CauseOf<CArchiveException>([&] { loading << byte; }));
    storing.Close();
    EXPECT_EQ(CArchiveException::genericException,
              CauseOf<CArchiveException>([&] { storing << byte; }));
    EXPECT_TRUE(Throws<CInvalidArgException>([] { CArchive(nullptr, CArchive::load); }));
}

TEST(BaseArchive, ReadsLines) {
    const Bytes bytes = Stored([](CArchive& archive) {
        archive.WriteString("one\r\n");
        archive.WriteString("\nlonger line\r\nlast\r");
    });
    Load(bytes, [](CArchive& archive) {
        CString line;
        char buffer[8];
        EXPECT_TRUE(archive.ReadString(line));
        EXPECT_STREQ("one", line);
        EXPECT_TRUE(archive.ReadString(line));
        EXPECT_STREQ("", line);
        EXPECT_STREQ("longer ", archive.ReadString(buffer, sizeof(buffer)));
        EXPECT_STREQ("line", archive.ReadString(buffer, sizeof(buffer)));
        EXPECT_TRUE(archive.ReadString(line));
        EXPECT_STREQ("last\r", line);
        EXPECT_FALSE(archive.ReadString(line));
        EXPECT_EQ(nullptr, archive.ReadString(buffer, sizeof(buffer)));
    });
}

TEST(BaseArchiveObjects, StandInTheDocumentedFormat) {
    CTestNode first;
    CTestNode second;
    first.value = 5;
    first.next = &second;
    second.next = &first;
    const Bytes bytes = Stored([&](CArchive& archive) { archive << &first << &second; });
    // Class 1, object 2, class 1 again with object 3, which points back to 2; then object 3.
    const Bytes expected = Joined(NodeHeader(), {5, 0, 0, 0, 0x01, 0x80, 0, 0, 0, 0, 2, 0, 3, 0});
    EXPECT_EQ(expected, bytes);
    Load(bytes, [](CArchive& archive) {
        CTestNode* one = nullptr;
        CTestNode* two = nullptr;
        archive >> one >> two;
        EXPECT_EQ(5, one->value);
        EXPECT_EQ(two, one->next);
        EXPECT_EQ(one, two->next);
        delete one;
        delete two;
    });
    EXPECT_EQ(2, CTestNode::alive); // the two on this stack
}

TEST(BaseArchiveObjects, IndicesBeyond16BitsAreLong) {
    CMemFile file;
    CArchive archive(&file, CArchive::store);
    std::vector<CTestNode> nodes(0x8000);
    for (CTestNode& node : nodes)
        archive << &node;
    archive.Flush();
    const ULONGLONG end = file.GetLength();
    archive << &nodes[0x7FFE - 2] << &nodes[0x7FFF - 2];
    archive.Close();
    BYTE tags[9] = {};
    file.Seek(static_cast<LONGLONG>(end), CFile::begin);
    ASSERT_EQ(8u, file.Read(tags, sizeof(tags)));
    EXPECT_EQ((Bytes{0xFE, 0x7F, 0xFF, 0x7F, 0xFF, 0x7F, 0, 0}), Bytes(tags, tags + 8));

    file.SeekToBegin();
    CArchive loading(&file, CArchive::load);
    std::vector<std::unique_ptr<CTestNode>> loaded;
    for (size_t count = 0; count < nodes.size(); ++count) {
        CTestNode* node = nullptr;
        loading >> node;
        loaded.emplace_back(node);
    }
    CTestNode* last = nullptr;
    loading >> last >> last;
    EXPECT_EQ(loaded[0x7FFF - 2].get(), last);
}

TEST(BaseArchiveObjects, MappedObjectsAreKnownWithoutBeingStored) {
    CTestNode document;
    CTestNode item;
    item.next = &document;
    const Bytes bytes = Stored([&](CArchive& archive) {
        archive.MapObject(&document);
        archive << &item;
    });
    CTestNode otherDocument;
    Load(bytes, [&](CArchive& archive) {
        archive.MapObject(&otherDocument);
        CTestNode* loaded = nullptr;
        archive >> loaded;
        EXPECT_EQ(&otherDocument, loaded->next);
        delete loaded;
    });
}

TEST(BaseArchiveObjects, SchemaIsCheckedOrHandedOver) {
    CTestVersioned object;
    Bytes bytes = Stored([&](CArchive& archive) { archive << &object; });
    bytes[2] = 2; // written by an older version
    Load(bytes, [](CArchive& archive) {
        CTestVersioned* loaded = nullptr;
        archive >> loaded;
        EXPECT_EQ(2u, loaded->schema);
        EXPECT_EQ(static_cast<UINT>(-1), loaded->again);
        delete loaded;
    });
    EXPECT_EQ(-1, Fault(Joined(NodeHeader(1), {5, 0, 0, 0, 0, 0}), LoadNode));
    EXPECT_EQ(CArchiveException::badSchema,
              Fault(Joined(NodeHeader(2), {5, 0, 0, 0, 0, 0}), LoadNode));
}

TEST(BaseArchiveObjects, OnlySerializableClassesAreStored) {
    const CTestNotStorable object;
    CMemFile file;
    CArchive archive(&file, CArchive::store);
    EXPECT_TRUE(Throws<CNotSupportedException>([&] { archive << &object; }));
    EXPECT_TRUE(Throws<CNotSupportedException>(
        [&] { archive.WriteClass(RUNTIME_CLASS(CTestNotStorable)); }));
}

TEST(BaseArchiveObjects, HostileTagsAreRefused) {
    struct Case {
        const char* name;
        Bytes bytes;
        int fault;
    };
    const Bytes value = {5, 0, 0, 0};
    const Case cases[] = {
        {"index of nothing", {9, 0}, CArchiveException::badIndex},
        {"long index of nothing", {0xFF, 0x7F, 0, 0, 0, 0x40}, CArchiveException::badIndex},
        {"class index of nothing", {1, 0x80}, CArchiveException::badIndex},
        {"class index 0", {0, 0x80}, CArchiveException::badIndex},
        {"long class index of nothing", {0xFF, 0x7F, 1, 0, 0, 0x80}, CArchiveException::badIndex},
        {"class in place of an object", Joined(NodeHeader(), {5, 0, 0, 0, 1, 0}),
         CArchiveException::badIndex},
        {"object in place of a class", Joined(NodeHeader(), {5, 0, 0, 0, 2, 0x80}),
         CArchiveException::badIndex},
        {"unknown class", {0xFF, 0xFF, 1, 0, 2, 0, 'N', 'o'}, CArchiveException::badClass},
        {"class that is not stored",
         {0xFF, 0xFF, 0xFF, 0xFF, 7, 0, 'C', 'O', 'b', 'j', 'e', 'c', 't'},
         CArchiveException::badClass},
        {"class without name", {0xFF, 0xFF, 1, 0, 0, 0}, CArchiveException::badClass},
        {"name that is too long", {0xFF, 0xFF, 1, 0, 0, 1}, CArchiveException::badClass},
        {"class of another kind",
         {0xFF, 0xFF, 0, 0, 12, 0, 'C', 'S', 't', 'r', 'i', 'n', 'g', 'A', 'r', 'r', 'a', 'y'},
         CArchiveException::badClass},
    };
    for (const Case& test : cases)
        EXPECT_EQ(test.fault, Fault(test.bytes, LoadNode)) << test.name;
    const Bytes good = Joined(NodeHeader(), {5, 0, 0, 0, 0, 0});
    for (size_t size = 0; size < good.size(); ++size) {
        const Bytes cut(good.begin(), good.begin() + static_cast<ptrdiff_t>(size));
        EXPECT_EQ(CArchiveException::endOfFile, Fault(cut, LoadNode)) << size;
    }
    EXPECT_EQ(0, CTestNode::alive); // what was half loaded is freed
}

TEST(BaseArchiveObjects, NestingHasALimit) {
    const auto chain = [](int length) {
        Bytes bytes = NodeHeader();
        for (int count = 1; count < length; ++count)
            bytes = Joined(std::move(bytes), {0, 0, 0, 0, 1, 0x80});
        return Joined(std::move(bytes), {0, 0, 0, 0, 0, 0});
    };
    const auto load = [](CArchive& archive) {
        CTestNode* node = nullptr;
        archive >> node;
        while (node != nullptr) {
            const std::unique_ptr<CTestNode> owner(node);
            node = node->next;
        }
    };
    EXPECT_EQ(-1, Fault(chain(1000), load));
    EXPECT_EQ(CArchiveException::badIndex, Fault(chain(1001), load));
    EXPECT_EQ(0, CTestNode::alive);
}

TEST(BaseArchiveObjects, ObjectSeenTwiceIsNotFreedByAFailure) {
    // The node points to itself and the file ends before a second object.
    CTestNode* seen = nullptr;
    const Bytes bytes = Joined(NodeHeader(), {5, 0, 0, 0, 2, 0});
    EXPECT_EQ(CArchiveException::endOfFile, Fault(bytes, [&](CArchive& archive) {
                  archive >> seen;
                  EXPECT_EQ(seen, seen->next);
                  LoadNode(archive);
              }));
    ASSERT_EQ(1, CTestNode::alive);
    delete seen;
}
