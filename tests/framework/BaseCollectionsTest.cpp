// SPDX-License-Identifier: MIT
#include "Thrown.h"
#include "afxcoll.h"
#include "afxtempl.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace {

/// Can be assigned but not copied: all that the collections ask for.
struct Assignable {
    Assignable() { ++alive; }
    Assignable(int number) : value(number) { ++alive; }
    Assignable(const Assignable&) = delete;
    ~Assignable() { --alive; }
    Assignable& operator=(const Assignable& other) {
        value = other.value;
        return *this;
    }
    bool operator==(const Assignable& other) const { return value == other.value; }

    int value = 0;
    static int alive;
};
int Assignable::alive = 0;

using Numbers = std::vector<int>;
using IntArray = CArray<int, int>;
using IntList = CList<int, int>;
using StringMap = CMap<CString, LPCTSTR, int, int>;

Numbers Content(const IntArray& array) {
    return Numbers(array.GetData(), array.GetData() + array.GetSize());
}

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

void Fill(IntArray& array, const Numbers& numbers) {
    array.RemoveAll();
    for (const int number : numbers)
        array.Add(number);
}

/// Stores one collection and loads it into the other.
template <class COLLECTION>
void Pass(COLLECTION& from, COLLECTION& to) {
    CMemFile file;
    CArchive storing(&file, CArchive::store);
    from.Serialize(storing);
    storing.Close();
    file.SeekToBegin();
    CArchive loading(&file, CArchive::load);
    to.Serialize(loading);
    EXPECT_EQ(file.GetLength(), file.GetPosition());
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

TEST(BaseArray, Changes) {
    IntArray other;
    Fill(other, {7, 8});
    const struct {
        const char* name;
        std::function<void(IntArray&)> apply;
        Numbers want;
    } changes[] = {
        {"add", [](IntArray& a) { EXPECT_EQ(3, a.Add(4)); }, {1, 2, 3, 4}},
        {"append", [&](IntArray& a) { EXPECT_EQ(3, a.Append(other)); }, {1, 2, 3, 7, 8}},
        {"append itself", [](IntArray& a) { a.Append(a); }, {1, 2, 3, 1, 2, 3}},
        {"copy", [&](IntArray& a) { a.Copy(other); }, {7, 8}},
        {"copy itself", [](IntArray& a) { a.Copy(a); }, {1, 2, 3}},
        {"set", [](IntArray& a) { a.SetAt(1, 9), a[2] = 8; }, {1, 9, 8}},
        {"set and grow", [](IntArray& a) { a.SetAtGrow(4, 5); }, {1, 2, 3, 0, 5}},
        {"insert", [](IntArray& a) { a.InsertAt(1, 9, 2); }, {1, 9, 9, 2, 3}},
        {"insert behind the end", [](IntArray& a) { a.InsertAt(4, 9); }, {1, 2, 3, 0, 9}},
        {"insert an array", [&](IntArray& a) { a.InsertAt(0, &other); }, {7, 8, 1, 2, 3}},
        {"remove", [](IntArray& a) { a.RemoveAt(0, 2); }, {3}},
        {"remove nothing", [](IntArray& a) { a.RemoveAt(3, 0); }, {1, 2, 3}},
        {"shrink and grow", [](IntArray& a) { a.SetSize(1), a.SetSize(3); }, {1, 0, 0}},
        {"remove and grow", [](IntArray& a) { a.RemoveAt(1), a.SetSize(3); }, {1, 3, 0}},
        {"free extra", [](IntArray& a) { a.SetSize(2, 100), a.Add(5), a.FreeExtra(); }, {1, 2, 5}},
        {"remove all", [](IntArray& a) { a.RemoveAll(); }, {}},
    };
    for (const auto& change : changes) {
        IntArray array;
        Fill(array, {1, 2, 3});
        change.apply(array);
        EXPECT_EQ(change.want, Content(array)) << change.name;
        EXPECT_EQ(array.GetSize() - 1, array.GetUpperBound());
    }
}

TEST(BaseArray, BadIndicesAndSizesThrow) {
    IntArray array;
    Fill(array, {1, 2, 3});
    const std::function<void()> mistakes[] = {
        [&] { array.GetAt(-1); },
        [&] { array.GetAt(3); },
        [&] { array[3] = 0; },
        [&] { array.SetAt(3, 0); },
        [&] { array.SetAtGrow(-1, 0); },
        [&] { array.RemoveAt(3); },
        [&] { array.RemoveAt(2, 2); },
        [&] { array.RemoveAt(-1); },
        [&] { array.InsertAt(-1, 0); },
        [&] { array.InsertAt(0, 0, 0); },
        [&] { array.SetSize(-1); },
        [&] { array.InsertAt(0, static_cast<IntArray*>(nullptr)); },
    };
    for (const auto& mistake : mistakes)
        EXPECT_TRUE(Throws<CInvalidArgException>(mistake));
    volatile INT_PTR tooMany = INTPTR_MAX; // so that the compiler does not foresee the overflow
    EXPECT_TRUE(Throws<CMemoryException>([&] { array.SetSize(tooMany); }));
    EXPECT_TRUE(Throws<CMemoryException>([&] { array.InsertAt(3, 0, tooMany - 3); }));
    EXPECT_TRUE(Throws<CMemoryException>([&] { array.InsertAt(3, 0, tooMany - 2); }));
    EXPECT_EQ((Numbers{1, 2, 3}), Content(array));
}

TEST(BaseArray, ElementsNeedOnlyAssignment) {
    {
        CArray<Assignable> array;
        for (int number = 0; number < 10; ++number)
            array.Add(number);
        array.Add(array[3]); // an element of its own, while it moves
        array.InsertAt(0, array[10]);
        array.SetAtGrow(30, array[11]);
        EXPECT_EQ(3, array[0].value);
        EXPECT_EQ(3, array[11].value);
        EXPECT_EQ(3, array[30].value);
        EXPECT_EQ(0, array[29].value);
        array.RemoveAt(0, 30);
        array.SetSize(0);
        array.SetSize(2); // removed elements have let go of what they held
        EXPECT_EQ(0, array[0].value);
    }
    EXPECT_EQ(0, Assignable::alive);
}

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
    EXPECT_EQ(33, list.GetAt(three));
    EXPECT_EQ(0, list.RemoveHead());
    EXPECT_EQ(5, list.RemoveTail());
    EXPECT_EQ(1, list.GetHead());
    EXPECT_EQ(4, list.GetTail());
    IntList ends;
    ends.AddTail(7);
    ends.AddTail(8);
    list.AddHead(&ends);
    list.AddTail(&ends);
    EXPECT_EQ((Numbers{7, 8, 1, 9, 33, 4, 7, 8}), Content(list));
    list.RemoveAll();
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(nullptr, list.GetHeadPosition());
}

TEST(BaseList, FindsElements) {
    CList<CString, LPCTSTR> list;
    const POSITION first = list.AddTail("a");
    list.AddTail("b");
    const POSITION second = list.AddTail("a");
    using Positions = std::vector<POSITION>;
    EXPECT_EQ(
        (Positions{first, second, nullptr, nullptr}),
        (Positions{list.Find("a"), list.Find("a", first), list.Find("a", second), list.Find("x")}));
    EXPECT_EQ(
        (Positions{first, second, nullptr, nullptr}),
        (Positions{list.FindIndex(0), list.FindIndex(2), list.FindIndex(3), list.FindIndex(-1)}));
}

TEST(BaseList, MissingElementsThrow) {
    IntList list;
    POSITION none = nullptr;
    const std::function<void()> mistakes[] = {
        [&] { list.GetHead(); },
        [&] { list.GetTail(); },
        [&] { list.RemoveHead(); },
        [&] { list.RemoveTail(); },
        [&] { list.GetAt(none); },
        [&] { list.GetNext(none); },
        [&] { list.GetPrev(none); },
        [&] { list.RemoveAt(none); },
        [&] { list.SetAt(none, 1); },
        [&] { list.AddTail(&list); },
        [&] { list.AddHead(static_cast<IntList*>(nullptr)); },
    };
    for (const auto& mistake : mistakes)
        EXPECT_TRUE(Throws<CInvalidArgException>(mistake));
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
    EXPECT_EQ(1, value);
    EXPECT_FALSE(map.Lookup("missing", value));
    EXPECT_EQ(1, value);
    EXPECT_EQ(22, map.PLookup("two")->value);
    EXPECT_EQ(nullptr, map.PLookup("missing"));
    EXPECT_TRUE(map.RemoveKey(map.PLookup("two")->key)); // the key is part of what goes
    EXPECT_FALSE(map.RemoveKey("two"));
    EXPECT_EQ(2, map.GetCount());
    map.RemoveAll();
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_EQ(nullptr, map.GetStartPosition());
    EXPECT_FALSE(map.RemoveKey("one"));
}

TEST(BaseMap, FewBucketsHoldManyPairs) {
    CMap<int, int, int, int> map;
    map.InitHashTable(3, FALSE);
    EXPECT_EQ(3u, map.GetHashTableSize());
    const int* const first = &map[0];
    for (int key = 0; key < 5000; ++key)
        map[key] = -key;
    EXPECT_EQ(first, &map[0]); // values stay where they are
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
    map.RemoveAll();
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { map.InitHashTable(0); }));
}

TEST(BaseMap, MissingPairsThrow) {
    const StringMap map;
    CString key;
    int value = 0;
    POSITION none = nullptr;
    POSITION start = BEFORE_START_POSITION;
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { map.GetNextAssoc(none, key, value); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { map.GetNextAssoc(start, key, value); }));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { map.PGetNextAssoc(nullptr); }));
    EXPECT_EQ(nullptr, map.PGetFirstAssoc());
}

TEST(BaseMap, StringsAreKeysByTheirCharacters) {
    const std::string literal("key");
    const CString text("key");
    EXPECT_EQ(HashKey<LPCSTR>(literal.c_str()), HashKey<LPCSTR>(text));
    EXPECT_EQ(HashKey<LPCSTR>("key"), HashKey<const CString&>(text));
    EXPECT_NE(HashKey<LPCSTR>("key"), HashKey<LPCSTR>("yek"));
    EXPECT_EQ(HashKey<LPCWSTR>(L"key"), HashKey<LPCSTR>("key"));
    EXPECT_EQ(1u, HashKey<int>(0x1F));
    EXPECT_EQ(2u, HashKey<void*>(reinterpret_cast<void*>(0x20)));
}

TEST(BaseCollectionArchive, CollectionsComeBackAsTheyWere) {
    IntArray array, loadedArray;
    array.SetSize(70000); // the count needs the longer form
    array[69999] = 5;
    loadedArray.Add(1);
    Pass(array, loadedArray);
    EXPECT_EQ(Content(array), Content(loadedArray));

    CList<CString, const CString&> list, loadedList;
    list.AddTail("first");
    list.AddTail("second");
    Pass(list, loadedList);
    ASSERT_EQ(2, loadedList.GetCount());
    EXPECT_STREQ("second", loadedList.GetTail());

    StringMap map, loadedMap;
    for (int number = 0; number < 100; ++number)
        map[CString(std::to_string(number).c_str())] = number;
    Pass(map, loadedMap);
    EXPECT_EQ(Content(map), Content(loadedMap));
    EXPECT_EQ(100u, loadedMap.GetHashTableSize()); // wide enough for what came

    CStringArray strings;
    CObArray objects, loadedObjects;
    strings.Add("one");
    strings.Add("two");
    objects.Add(&strings);
    objects.Add(nullptr);
    objects.Add(&strings);
    Pass(objects, loadedObjects);
    const std::unique_ptr<CObject> owner(loadedObjects[0]);
    EXPECT_EQ(loadedObjects[0], loadedObjects[2]);
    EXPECT_EQ(nullptr, loadedObjects[1]);
    EXPECT_STREQ("two", DYNAMIC_DOWNCAST(CStringArray, owner.get())->GetAt(1));
}

TEST(BaseCollectionArchive, CountsBeyondTheFileAreRefused) {
    const std::vector<BYTE> huge = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x7F, 1, 2, 3, 4};
    const std::vector<BYTE> enormous = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF,
                                        0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
    EXPECT_EQ(CArchiveException::endOfFile, Fault<IntArray>(huge));
    EXPECT_EQ(CArchiveException::endOfFile, Fault<IntArray>(enormous));
    EXPECT_EQ(CArchiveException::endOfFile, Fault<IntList>(huge));
    EXPECT_EQ(CArchiveException::endOfFile, Fault<StringMap>(huge));
    EXPECT_EQ(CArchiveException::endOfFile, Fault<CObArray>(huge));
    EXPECT_EQ(CArchiveException::endOfFile, Fault<CObList>(enormous));
    EXPECT_EQ(CArchiveException::endOfFile, Fault<CByteArray>({3, 0, 1, 2}));
    EXPECT_EQ(-1, Fault<CByteArray>({2, 0, 1, 2}));
    EXPECT_EQ(CArchiveException::endOfFile, Fault<IntArray>({2, 0, 1, 0, 0, 0, 2})); // cut off
}

TEST(BaseFixedCollections, ArraysGiveElementsBackByValue) {
    int first = 1;
    int second = 2;
    CPtrArray pointers, copy;
    pointers.Add(&first);
    pointers.InsertAt(0, &second);
    const CPtrArray& constant = pointers;
    EXPECT_TRUE(constant[0] == &second && constant.GetData()[0] == &second);
    copy.Copy(pointers);
    EXPECT_EQ(2, copy.Append(pointers));
    copy.InsertAt(1, &pointers);
    EXPECT_EQ(6, copy.GetSize());
    EXPECT_EQ(&first, copy[2]);
    copy.ElementAt(2) = nullptr;
    EXPECT_EQ(&first, pointers.GetAt(1));
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { pointers.GetAt(2); }));
    EXPECT_TRUE(!pointers.IsSerializable() && CStringArray().IsSerializable());
}

TEST(BaseFixedCollections, ListsAreWalkedAndSearched) {
    int first = 1;
    int second = 2;
    CPtrList list;
    list.AddTail(&first);
    list.AddHead(&second);
    const CPtrList& constant = list;
    POSITION position = constant.GetHeadPosition();
    EXPECT_EQ(&second, constant.GetNext(position));
    EXPECT_EQ(&first, constant.GetAt(position));
    EXPECT_EQ(position, list.Find(&first));
    list.RemoveAt(position);
    EXPECT_EQ(&second, list.RemoveTail());
    EXPECT_TRUE(Throws<CInvalidArgException>([&] { list.GetTail(); }));
    CStringList strings, twice;
    strings.AddTail("a");
    twice.AddTail(&strings);
    twice.AddTail(&strings);
    strings.GetHead() = "changed";
    EXPECT_EQ(2, twice.GetCount());
    EXPECT_STREQ("a", twice.GetHead());
}
