// What threads wait for.
#include "toolkit/toolkit.h"
#include <gtest/gtest.h>
#include <thread>

namespace {

constexpr DWORD AtOnce = 0;

// Whether another thread gets hold of the object without waiting.
template <class ObjectTP> BOOL lockedElsewhere(ObjectTP& object)
{
    BOOL locked = FALSE;
    std::thread([&] {
        locked = object.Lock(AtOnce);
        if (locked) {
            object.Unlock();
        }
    }).join();
    return locked;
}

} // namespace

TEST(Event, OfItsOwnAccordItIsResetByWhoWaited)
{
    CEvent event;
    EXPECT_FALSE(event.Lock(AtOnce));
    EXPECT_TRUE(event.SetEvent());
    EXPECT_TRUE(event.Lock(AtOnce));
    EXPECT_FALSE(event.Lock(AtOnce));
}

TEST(Event, ManualOneStaysSet)
{
    CEvent event(TRUE, TRUE);
    EXPECT_TRUE(event.Lock(AtOnce));
    EXPECT_TRUE(event.Lock(AtOnce));
    EXPECT_TRUE(event.ResetEvent());
    EXPECT_FALSE(event.Lock(AtOnce));
    EXPECT_EQ(::WaitForSingleObject(event, AtOnce), static_cast<DWORD>(WAIT_TIMEOUT));
}

TEST(Event, NameMakesOneOfTwo)
{
    CEvent one(FALSE, TRUE, "panelkit\xD6\xD0");
    CEvent two(FALSE, TRUE, "panelkit\xD6\xD0");
    one.SetEvent();
    EXPECT_TRUE(two.Lock(AtOnce));
}

TEST(Event, WakesAThreadThatWaits)
{
    CEvent start;
    CEvent done;
    std::thread thread([&] {
        if (start.Lock()) {
            done.SetEvent();
        }
    });
    start.SetEvent();
    EXPECT_TRUE(done.Lock(10000));
    thread.join();
}

TEST(Mutex, BelongsToOneThread)
{
    CMutex mutex;
    CSingleLock held(&mutex, TRUE);
    EXPECT_TRUE(held.IsLocked());
    EXPECT_FALSE(lockedElsewhere(mutex));
    EXPECT_TRUE(held.Unlock());
    EXPECT_FALSE(held.IsLocked());
    EXPECT_TRUE(lockedElsewhere(mutex));
}

TEST(Mutex, SingleLockGivesItBackAtItsEnd)
{
    CMutex mutex;
    {
        const CSingleLock held(&mutex, TRUE);
        EXPECT_FALSE(lockedElsewhere(mutex));
    }
    EXPECT_TRUE(lockedElsewhere(mutex));
}

TEST(Semaphore, LetsSoManyIn)
{
    CSemaphore semaphore(2, 2);
    EXPECT_TRUE(semaphore.Lock(AtOnce));
    EXPECT_TRUE(semaphore.Lock(AtOnce));
    EXPECT_FALSE(semaphore.Lock(AtOnce));
    LONG before = -1;
    EXPECT_TRUE(semaphore.Unlock(2, &before));
    EXPECT_EQ(before, 0);
    EXPECT_FALSE(semaphore.Unlock()); // More than there may be.
}

TEST(CriticalSection, KeepsOthersOut)
{
    CCriticalSection section;
    ASSERT_TRUE(section.Lock());
    BOOL entered = TRUE;
    std::thread([&] { entered = ::TryEnterCriticalSection(section); }).join();
    EXPECT_FALSE(entered);
    EXPECT_TRUE(section.Unlock());
    EXPECT_TRUE(lockedElsewhere(section));
}
