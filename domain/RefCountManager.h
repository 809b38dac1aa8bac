#pragma once

#include <atomic>
#include <pthread.h>

/// The count of one object that `SafePointer`s share.
///
/// The lock guards the count against the record's passing to another object; the counter is atomic besides, as the
/// table raises it without that lock. A second lock by the thread that has it is reported instead of waiting for ever.
class alignas(64) ref_count
{
public:
    ref_count(const ref_count&) = delete;
    ref_count& operator=(const ref_count&) = delete;
    ~ref_count() = delete; // Records are pooled and never freed: a late unLock still finds its lock.

    /// Takes the lock; 0 on success, else the record is not usable on this thread.
    int lock();
    /// Releases the lock.
    void unLock();
    /// Leaves the record locked until it is issued again: every lock from now on reports at once, on any thread.
    void abandon();
    /// The address of the object that the record was issued for.
    void* getPointer() const;
    /// Adds one; 0 if the object is gone, and then nothing is added.
    int inc_reference() const;
    /// Takes one off and gives what is left: 0 to whoever took the last, and -1 when there was nothing to take.
    int dec_reference();

private:
    friend class RefCountManager;

    ref_count();

    pthread_mutex_t mutex_;
    std::atomic<void*> object_{nullptr};
    mutable std::atomic<int> counter_{0};
    std::atomic<bool> abandoned_{false};
    const char* typeName_ = nullptr;
    ref_count* next_ = nullptr;
};

/// The process-wide table of counts, by address and type of the object. The only state of this library that threads
/// share; every operation may be called from any thread.
class RefCountManager
{
public:
    RefCountManager(const RefCountManager&) = delete;
    RefCountManager& operator=(const RefCountManager&) = delete;
    ~RefCountManager() = delete;

    /// The one instance. It is never destroyed, so that pointers with static storage may outlive `main`.
    static RefCountManager* getInstance();

    /// The count of @p object, with the caller's reference already in it: a new one, or that of the `SafePointer`s
    /// that hold the object already.
    /// @param typeName The run-time name of the object's type, `typeid(T).name()`.
    ref_count* retrieveRefCount(void* object, const char* typeName);

    /// Takes back a record whose counter has reached 0. Called with the record locked; the caller unlocks it
    /// afterwards.
    void returnbackRefCount(ref_count* record, const char* typeName);

private:
    struct Shard;

    RefCountManager();

    Shard* shards_;
};
