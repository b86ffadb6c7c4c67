// SPDX-License-Identifier: MIT
#include "Thrown.h"
#include "afxtempl.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace {

using Numbers = std::vector<int>;
using IntList = CList<int, int>;
using StringMap = CMap<CString, LPCTSTR, int, int>;

/// The elements in order, and the same read backwards, which must agree.
Numbers Content(const IntList& list) {
    Numbers forward;
    Numbers backward;
    for (POSITION position = list.GetHeadPosition(); position != nullptr;)
        forward.push_back(list.GetNext(position));
    for (POSITION position = list.GetTailPosition(); position != nullptr;)
        backward.insert(backward.begin(), list.GetPrev(position));
    EXPECT_EQ(forward, backward);
    EXPECT_EQ(static_cast<INT_PTR>(forward.size()), list.GetCount());
    return forward;
}

std::map<std::string, int> Content(const StringMap& map) {
    std::map<std::string, int> content;
    for (POSITION position = map.GetStartPosition(); position != nullptr;) {
        CString key;
        int value = 0;
        map.GetNextAssoc(position, key, value);
        content[key.GetString()] = value;
    }
    EXPECT_EQ(static_cast<INT_PTR>(content.size()), map.GetCount());
    return content;
}

/// The cause of the failure to load a collection from the bytes, -1 when it succeeds.
template <class COLLECTION>
int Fault(std::vector<BYTE> bytes) {
    CMemFile file(bytes.data(), static_cast<UINT>(bytes.size()));
    CArchive archive(&file, CArchive::load);
    COLLECTION collection;
    return CauseOf<CArchiveException>([&] { collection.Serialize(archive); });
}

} // namespace

TEST(BaseList, Changes) {
    IntList list;
    const POSITION two = list.AddTail(2);
    list.AddHead(1);
    list.AddTail(4);
    const POSITION three = list.InsertAfter(two, 3);
    list.InsertBefore(two, 9);
    EXPECT_EQ((Numbers{1, 9, 2, 3, 4}), Content(list));
    list.InsertBefore(nullptr, 0);
    list.InsertAfter(nullptr, 5);
    list.SetAt(three, 33);
    list.RemoveAt(two);
    EXPECT_EQ((Numbers{0, 1, 9, 33, 4, 5}), Content(list));
    EXPECT_EQ(three, list.Find(33));
    EXPECT_EQ(nullptr, list.Find(33, three));
    EXPECT_EQ(three, list.FindIndex(3));
    EXPECT_EQ(nullptr, list.FindIndex(6));
    EXPECT_TRUE(list.RemoveHead() == 0 && list.RemoveTail() == 5);
    EXPECT_TRUE(list.GetHead() == 1 && list.GetTail() == 4);
    list.RemoveAll();
    POSITION none = list.GetHeadPosition();
    EXPECT_EQ(nullptr, none);
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { list.GetHead(); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { list.GetNext(none); }));
}

TEST(BaseMap, KeepsOneValueForEachKey) {
    StringMap map;
    map.SetAt("one", 1);
    map["two"] = 2;
    map["two"] += 20;
    EXPECT_EQ(0, map["new"]);
    EXPECT_EQ((std::map<std::string, int>{{"new", 0}, {"one", 1}, {"two", 22}}), Content(map));
    int value = -1;
    EXPECT_TRUE(map.Lookup("one", value));
    EXPECT_FALSE(map.Lookup("missing", value));
    EXPECT_EQ(1, value);
    EXPECT_TRUE(map.RemoveKey(map.PLookup("two")->key)); // the key is part of what goes
    EXPECT_FALSE(map.RemoveKey("two"));
    EXPECT_EQ(2, map.GetCount());
    map.RemoveAll();
    EXPECT_EQ(nullptr, map.GetStartPosition());
    EXPECT_FALSE(map.RemoveKey("one"));
    CString key;
    POSITION none = nullptr;
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { map.GetNextAssoc(none, key, value); }));
}

TEST(BaseMap, FewBucketsHoldManyPairs) {
    CMap<int, int, int, int> map;
    map.InitHashTable(3, FALSE);
    const int* const first = &map[1];
    for (int key = 0; key < 5000; ++key)
        map[key] = -key;
    EXPECT_EQ(first, &map[1]); // values stay where they are
    for (int key = 0; key < 5000; key += 2)
        EXPECT_TRUE(map.RemoveKey(key));
    int sum = 0;
    for (const auto* pair = map.PGetFirstAssoc(); pair != nullptr; pair = map.PGetNextAssoc(pair)) {
        EXPECT_EQ(-pair->key, pair->value);
        sum += pair->key;
    }
    EXPECT_EQ(2500, map.GetCount());
    EXPECT_EQ(2500 * 2500, sum); // of the odd numbers below 5000
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { map.InitHashTable(5); }));
}

TEST(BaseCollectionArchive, MapsComeBackAsTheyWere) {
    StringMap map, loaded;
    for (int number = 0; number < 70000; ++number) // the count needs the longer form
        map[CString(std::to_string(number).c_str())] = number;
    CMemFile file;
    CArchive storing(&file, CArchive::store);
    map.Serialize(storing);
    storing.Close();
    file.SeekToBegin();
    CArchive loading(&file, CArchive::load);
    loaded.Serialize(loading);
    EXPECT_EQ(Content(map), Content(loaded));
}

TEST(BaseCollectionArchive, CountsBeyondTheFileAreRefused) {
    const std::vector<BYTE> huge = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x7F, 1, 2, 3, 4};
    const std::vector<BYTE> enormous(14, 0xFF);
    for (const auto& bytes : {huge, enormous}) {
        EXPECT_EQ(CArchiveException::endOfFile, Fault<IntList>(bytes));
        EXPECT_EQ(CArchiveException::endOfFile, Fault<StringMap>(bytes));
    }
    EXPECT_EQ(-1, Fault<IntList>({1, 0, 1, 0, 0, 0}));
    EXPECT_EQ(CArchiveException::endOfFile, Fault<IntList>({2, 0, 1, 0, 0, 0, 2})); // cut off
}
