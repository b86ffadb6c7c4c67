// SPDX-License-Identifier: MIT
#include "HandleMap.h"

#include <gtest/gtest.h>

#include <atomic>
#include <new>
#include <thread>

namespace {

using Handle = const int*;

/// The least that a wrapper has: two copies of the handle, and Detach().
struct Wrapper {
    Handle handle = nullptr;
    Handle alias = nullptr;

    Wrapper() {
        if (std::exchange(refused, false))
            throw std::bad_alloc();
        ++alive;
    }
    Wrapper(const Wrapper&) = delete;
    Wrapper& operator=(const Wrapper&) = delete;
    ~Wrapper();

    void Attach(Handle value);
    Handle Detach();

    static bool refused; // by the next construction
    static std::atomic<int> alive;
    static std::atomic<int> destroyedWithHandle;
};

bool Wrapper::refused = false;
std::atomic<int> Wrapper::alive{0};
std::atomic<int> Wrapper::destroyedWithHandle{0};

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
    Map().Find(first); // destructors may use the map
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
        EXPECT_EQ(0, Wrapper::alive);
        EXPECT_EQ(0, Wrapper::destroyedWithHandle.exchange(0));
    }
};

TEST_F(HandleMapTest, LackOfMemoryLeavesNothingBehind) {
    Wrapper::refused = true;
    EXPECT_THROW(Map().FromHandle(first), std::bad_alloc);
    EXPECT_EQ(nullptr, Map().Find(first));
    EXPECT_NE(nullptr, Map().FromHandle(first));
}

TEST_F(HandleMapTest, UnknownHandleGetsOneTemporaryObjectAndNullNone) {
    EXPECT_EQ(nullptr, Map().Find(first));
    Wrapper* const temporary = Map().FromHandle(first);
    ASSERT_NE(nullptr, temporary);
    EXPECT_TRUE(temporary->handle == first && temporary->alias == first);
    EXPECT_EQ(temporary, Map().FromHandle(first));
    EXPECT_EQ(temporary, Map().Find(first));
    EXPECT_EQ(nullptr, Map().FindPermanent(first));
    EXPECT_NE(temporary, Map().FromHandle(second));
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
}

TEST_F(HandleMapTest, TemporaryObjectsEndWithTheirThread) {
    Wrapper attached;
    attached.Attach(second);
    int aliveInThread = 0;
    std::thread([&aliveInThread] {
        Map().FromHandle(first);
        EXPECT_EQ(nullptr, Map().Find(second)) << "each thread has its own map";
        Map().FromHandle(second)->Attach(first);
        aliveInThread = Wrapper::alive;
    }).join();
    EXPECT_EQ(3, aliveInThread);
    EXPECT_EQ(1, Wrapper::alive);
    attached.Detach();
}

} // namespace
