// SPDX-License-Identifier: MIT
#include "HandleMap.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace {

using Handle = const int*;

/// The least that a wrapper has: two copies of the handle, and Detach().
struct Wrapper {
    Handle handle = nullptr;
    Handle alias = nullptr;

    Wrapper() { ++alive; }
    Wrapper(const Wrapper&) = delete;
    Wrapper& operator=(const Wrapper&) = delete;
    ~Wrapper();

    void Attach(Handle value);
    Handle Detach();

    static std::atomic<int> alive;
    static std::atomic<int> destroyedWithHandle;
    static bool lookUpOnDestruction;
};

std::atomic<int> Wrapper::alive{0};
std::atomic<int> Wrapper::destroyedWithHandle{0};
bool Wrapper::lookUpOnDestruction = false;

afx::HandleMap<Handle, Wrapper>& Map() {
    return afx::ThreadHandleMap<Handle, Wrapper>(&Wrapper::handle, &Wrapper::alias);
}

const int things[3] = {};
const Handle first = &things[0];
const Handle second = &things[1];

Wrapper::~Wrapper() {
    --alive;
    if (handle != nullptr || alias != nullptr)
        ++destroyedWithHandle;
    if (lookUpOnDestruction) {
        EXPECT_EQ(nullptr, Map().Find(first));
    }
}

void Wrapper::Attach(Handle value) {
    Map().SetPermanent(value, this);
    handle = alias = value;
}

Handle Wrapper::Detach() {
    Map().RemovePermanent(handle, this);
    alias = nullptr;
    return std::exchange(handle, nullptr);
}

/// Leaves the thread's map without temporary objects.
class HandleMapTest : public testing::Test {
protected:
    void TearDown() override {
        Map().DeleteTemp();
        Wrapper::lookUpOnDestruction = false;
        EXPECT_EQ(0, Wrapper::alive);
        EXPECT_EQ(0, Wrapper::destroyedWithHandle.exchange(0));
    }
};

TEST_F(HandleMapTest, UnknownHandleGetsOneTemporaryObjectAndNullNone) {
    EXPECT_EQ(nullptr, Map().Find(first));
    Wrapper* const temporary = Map().FromHandle(first);
    ASSERT_NE(nullptr, temporary);
    EXPECT_TRUE(temporary->handle == first && temporary->alias == first);
    EXPECT_EQ(temporary, Map().FromHandle(first));
    EXPECT_EQ(temporary, Map().Find(first));
    EXPECT_EQ(nullptr, Map().FindPermanent(first));
    EXPECT_NE(temporary, Map().FromHandle(second));
    Wrapper wrapper;
    Map().SetPermanent(nullptr, &wrapper);
    EXPECT_EQ(nullptr, Map().FindPermanent(nullptr));
    EXPECT_EQ(nullptr, Map().FromHandle(nullptr));
}

TEST_F(HandleMapTest, AttachedObjectIsPreferredAndNotOwned) {
    Wrapper* const temporary = Map().FromHandle(first);
    {
        Wrapper attached;
        attached.Attach(first);
        EXPECT_EQ(&attached, Map().FindPermanent(first));
        EXPECT_EQ(&attached, Map().FromHandle(first));
        EXPECT_EQ(first, temporary->handle) << "the older pointer stays usable";
        Map().DeleteTemp();
        EXPECT_EQ(&attached, Map().FromHandle(first)) << "and its end does not evict the other";
        attached.Detach();
    }
    EXPECT_EQ(nullptr, Map().Find(first));
}

TEST_F(HandleMapTest, OnlyTheObjectItselfIsForgotten) {
    Wrapper stale;
    stale.Attach(first);
    Wrapper current; // the value was given out again while `stale` still thinks it has it
    current.Attach(first);
    stale.Detach();
    EXPECT_EQ(&current, Map().FindPermanent(first));
    current.Detach();
    EXPECT_EQ(nullptr, Map().FindPermanent(first));
}

TEST_F(HandleMapTest, TemporaryThatLostItsHandleIsAimedAnew) {
    Wrapper* const temporary = Map().FromHandle(first);
    temporary->Detach();
    EXPECT_EQ(nullptr, Map().Find(first));
    EXPECT_EQ(temporary, Map().FromHandle(first));
    EXPECT_EQ(first, temporary->handle);
    EXPECT_EQ(first, temporary->alias);
}

TEST_F(HandleMapTest, TemporaryThatWasAttachedElsewhereLeavesNoTrace) {
    Wrapper* const temporary = Map().FromHandle(first);
    temporary->Detach();
    temporary->Attach(second);
    EXPECT_EQ(temporary, Map().FindPermanent(second));

    EXPECT_EQ(temporary, Map().FromHandle(first));
    EXPECT_EQ(nullptr, Map().FindPermanent(second)) << "aimed anew";

    temporary->Detach();
    temporary->Attach(second);
    Map().DeleteTemp();
    EXPECT_EQ(nullptr, Map().FindPermanent(second)) << "destroyed";
}

TEST_F(HandleMapTest, DestructorsMayUseTheMap) {
    Wrapper::lookUpOnDestruction = true;
    Map().FromHandle(first);
    Map().FromHandle(second);
    Map().DeleteTemp();
    EXPECT_EQ(0, Wrapper::alive);
}

TEST_F(HandleMapTest, EachThreadHasItsOwn) {
    Wrapper attached;
    attached.Attach(first);
    Wrapper* const temporary = Map().FromHandle(second);
    std::thread([temporary] {
        EXPECT_EQ(nullptr, Map().Find(first));
        EXPECT_EQ(nullptr, Map().Find(second));
        EXPECT_NE(temporary, Map().FromHandle(second));
        EXPECT_EQ(3, Wrapper::alive);
    }).join();
    EXPECT_EQ(&attached, Map().Find(first));
    attached.Detach();
}

TEST_F(HandleMapTest, TemporaryObjectsEndWithTheirThread) {
    int aliveInThread = 0;
    std::thread([&aliveInThread] {
        Map().FromHandle(first);
        Map().FromHandle(second)->Attach(first);
        aliveInThread = Wrapper::alive;
    }).join();
    EXPECT_EQ(2, aliveInThread);
    EXPECT_EQ(0, Wrapper::alive);
}

} // namespace
