#include "domain/RefCountManager.h"
#include "core/ColorParamXml.h"
#include "core/SafePointer.h"
#include "domain/DomainXmlNode.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace
{

constexpr int threadCount = 4;

template <class Work>
void onThreads(Work work)
{
    std::vector<std::thread> threads;
    for (int number = 0; number < threadCount; ++number)
        threads.emplace_back(work, number);
    for (std::thread& thread : threads)
        thread.join();
}

class Counted
{
public:
    explicit Counted(std::atomic<int>& alive) : alive_(alive) { ++alive_; }
    ~Counted() { --alive_; }

private:
    std::atomic<int>& alive_;
};

/// All objects of this class stand at one of two addresses, which the threads pass on to each other as soon as one is
/// free: the moment between an object's death and the return of its count is met all the time.
class Crowded
{
public:
    static void* operator new(std::size_t)
    {
        for (;;)
        {
            for (Place& place : places)
            {
                if (!place.taken.exchange(true)) return &place;
            }
            std::this_thread::yield();
        }
    }
    static void operator delete(void* object) { static_cast<Place*>(object)->taken = false; }

    int value = 0;

private:
    struct Place
    {
        int storage = 0;
        std::atomic<bool> taken{false};
    };
    static Place places[2];
};

Crowded::Place Crowded::places[2];

} // namespace

TEST(RefCountManager, IsOne)
{
    EXPECT_EQ(RefCountManager::getInstance(), RefCountManager::getInstance());
}

TEST(RefCountManager, IssuesOneRecordForAnObject)
{
    RefCountManager* manager = RefCountManager::getInstance();
    int object = 0;
    ref_count* first = manager->retrieveRefCount(&object, "int");
    ref_count* second = manager->retrieveRefCount(&object, "int");
    ref_count* other = manager->retrieveRefCount(&object, "long");
    EXPECT_EQ(first, second);
    EXPECT_NE(first, other);
    EXPECT_EQ(&object, first->getPointer());
    EXPECT_EQ(1, first->dec_reference());
    EXPECT_EQ(0, first->dec_reference());
    EXPECT_EQ(0, first->inc_reference());
    EXPECT_EQ(-1, first->dec_reference());
    manager->returnbackRefCount(first, "int");
    EXPECT_EQ(0, other->dec_reference());
    manager->returnbackRefCount(other, "long");
}

TEST(RefCountManager, TakesARecordAtZeroForGone)
{
    RefCountManager* manager = RefCountManager::getInstance();
    int object = 0;
    ref_count* dying = manager->retrieveRefCount(&object, "int");
    EXPECT_EQ(0, dying->dec_reference());
    ref_count* fresh = manager->retrieveRefCount(&object, "int");
    EXPECT_NE(dying, fresh);

    // Only the dying record leaves the table, and only once.
    manager->returnbackRefCount(dying, "int");
    manager->returnbackRefCount(dying, "int");
    EXPECT_EQ(fresh, manager->retrieveRefCount(&object, "int"));
    EXPECT_EQ(1, fresh->dec_reference());
    EXPECT_EQ(0, fresh->dec_reference());
    manager->returnbackRefCount(fresh, "int");
    manager->returnbackRefCount(nullptr, "int");
}

TEST(RefCountManager, ReportsASecondLockByOneThread)
{
    int object = 0;
    ref_count* record = RefCountManager::getInstance()->retrieveRefCount(&object, "int");
    EXPECT_EQ(0, record->lock());
    EXPECT_NE(0, record->lock());
    record->unLock();
    EXPECT_EQ(0, record->lock());
    record->unLock();
    EXPECT_EQ(0, record->dec_reference());
    RefCountManager::getInstance()->returnbackRefCount(record, "int");
}

TEST(RefCountManager, ReportsTheLockOfAnAbandonedRecordUntilItIsIssuedAgain)
{
    RefCountManager* manager = RefCountManager::getInstance();
    int object = 0;
    ref_count* record = manager->retrieveRefCount(&object, "int");
    EXPECT_EQ(0, record->lock());
    record->abandon();
    EXPECT_NE(0, record->lock());
    std::thread([&] { EXPECT_NE(0, record->lock()); }).join();
    EXPECT_EQ(0, record->dec_reference());
    manager->returnbackRefCount(record, "int");

    ASSERT_EQ(record, manager->retrieveRefCount(&object, "int"));
    EXPECT_EQ(0, record->lock());
    record->unLock();
    EXPECT_EQ(0, record->dec_reference());
    manager->returnbackRefCount(record, "int");
}

TEST(RefCountManager, KeepsARecordUsableForTheUnlockAfterItsReturn)
{
    RefCountManager* manager = RefCountManager::getInstance();
    int object = 0;
    ref_count* record = manager->retrieveRefCount(&object, "int");
    ASSERT_EQ(0, record->lock());
    ASSERT_EQ(0, record->dec_reference());
    manager->returnbackRefCount(record, "int");
    ref_count* again = manager->retrieveRefCount(&object, "int");
    ASSERT_EQ(record, again);

    // It is still locked by this thread, and the new owner waits for the unlock.
    EXPECT_NE(0, again->lock());
    std::thread owner(
        [&]
        {
            EXPECT_EQ(0, again->lock());
            again->unLock();
        });
    record->unLock();
    owner.join();
    EXPECT_EQ(0, again->dec_reference());
    manager->returnbackRefCount(again, "int");
}

TEST(RefCountManager, CountsShortLivedObjectsOfSeveralThreads)
{
    std::atomic<int> alive(0);
    onThreads(
        [&](int)
        {
            for (int round = 0; round < 100000; ++round)
            {
                const SafePointer<Counted> pointer(new Counted(alive));
                const SafePointer<Counted> copy(pointer);
            }
        });
    EXPECT_EQ(0, alive);
}

TEST(RefCountManager, CountsObjectsThatReuseAnAddressAtOnce)
{
    onThreads(
        [](int number)
        {
            for (int round = 0; round < 25000; ++round)
            {
                SafePointer<Crowded> pointer(new Crowded);
                pointer->value = number;
                const SafePointer<Crowded> copy(pointer);
                // A count mixed up with that of the dead would let another thread have the object now.
                EXPECT_EQ(number, copy->value);
            }
        });
}

TEST(RefCountManager, CountsTheReferencesOfSeveralThreadsToOneObject)
{
    std::atomic<int> alive(0);
    {
        const SafePointer<Counted> shared(new Counted(alive));
        onThreads(
            [&](int)
            {
                for (int round = 0; round < 20000; ++round)
                {
                    const SafePointer<Counted> copy(shared);
                    SafePointer<Counted> assigned;
                    assigned = copy;
                }
            });
        EXPECT_EQ(1, alive);
    }
    EXPECT_EQ(0, alive);
}

TEST(RefCountManager, HoldsManyObjectsAtATime)
{
    std::atomic<int> alive(0);
    onThreads(
        [&](int)
        {
            std::vector<SafePointer<Counted>> pointers;
            pointers.reserve(25000);
            while (pointers.size() < 25000)
                pointers.emplace_back(new Counted(alive));
        });
    EXPECT_EQ(0, alive);
}

TEST(NodeForm, RunsOnSeveralThreads)
{
    onThreads(
        [](int number)
        {
            ColorParam color;
            color.setRed(static_cast<std::uint32_t>(number));
            for (int round = 0; round < 2000; ++round)
            {
                std::string text;
                ColorParam read;
                ASSERT_TRUE(ColorParamXml().createXmlString(color, text));
                ASSERT_TRUE(ColorParamXml().parseXmlString(text, read));
                ASSERT_EQ(color.getRed(), read.getRed());
            }
        });
}
