#include "domain/RefCountManager.h"

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <mutex>
#include <vector>

ref_count::ref_count()
{
    pthread_mutexattr_t attributes;
    pthread_mutexattr_init(&attributes);
    pthread_mutexattr_settype(&attributes, PTHREAD_MUTEX_ERRORCHECK);
    pthread_mutex_init(&mutex_, &attributes);
    pthread_mutexattr_destroy(&attributes);
}

int ref_count::lock()
{
    const int error = pthread_mutex_lock(&mutex_);
    if (error != 0 || !abandoned_) return error;
    unLock();
    return EOWNERDEAD;
}

void ref_count::unLock()
{
    pthread_mutex_unlock(&mutex_);
}

void ref_count::abandon()
{
    abandoned_ = true;
    unLock();
}

void* ref_count::getPointer() const
{
    return object_;
}

// A counter that has reached 0 stays there. retrieveRefCount raises it without the record's lock, so every change is
// one atomic step, and whoever takes the last reference is the only one to see 0.

int ref_count::inc_reference() const
{
    int counter = counter_;
    do
    {
        if (counter <= 0) return 0;
    } while (!counter_.compare_exchange_weak(counter, counter + 1));
    return counter + 1;
}

int ref_count::dec_reference()
{
    int counter = counter_;
    do
    {
        if (counter <= 0) return -1;
    } while (!counter_.compare_exchange_weak(counter, counter - 1));
    return counter - 1;
}

namespace
{

constexpr unsigned shardBits = 6; // two threads at work at a time seldom meet in one of 64

std::uint64_t hashOf(const void* object)
{
    // Fibonacci hashing: the low bits of addresses are alike in every heap, so all of them go into the high ones.
    return static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(object)) * 0x9E3779B97F4A7C15U;
}

} // namespace

/// One part of the table, with a lock of its own. Records of one bucket are chained; those given back form the pool.
///
/// The lock of a shard may be taken under that of a record, never the other way round.
struct alignas(64) RefCountManager::Shard
{
    ref_count*& bucketOf(const void* object)
    {
        const std::uint64_t hash = hashOf(object) << shardBits >> 32;
        return buckets[static_cast<std::size_t>(hash) & (buckets.size() - 1)];
    }

    void grow()
    {
        std::vector<ref_count*> old(buckets.empty() ? 16 : buckets.size() * 2);
        old.swap(buckets);
        for (ref_count* record : old)
        {
            while (record != nullptr)
            {
                ref_count* next = record->next_;
                chain(record);
                record = next;
            }
        }
    }

    void chain(ref_count* record)
    {
        ref_count*& bucket = bucketOf(record->object_);
        record->next_ = bucket;
        bucket = record;
    }

    std::mutex mutex;
    std::vector<ref_count*> buckets; // their number is a power of two
    std::size_t records = 0;
    ref_count* pool = nullptr;
};

RefCountManager::RefCountManager() : shards_(new Shard[std::size_t{1} << shardBits])
{
}

RefCountManager* RefCountManager::getInstance()
{
    static RefCountManager* const instance = new RefCountManager;
    return instance;
}

ref_count* RefCountManager::retrieveRefCount(void* object, const char* typeName)
{
    Shard& shard = shards_[hashOf(object) >> (64 - shardBits)];
    const std::lock_guard<std::mutex> guard(shard.mutex);

    if (shard.records >= shard.buckets.size()) shard.grow();
    for (ref_count* record = shard.bucketOf(object); record != nullptr; record = record->next_)
    {
        // A record at 0 is that of an object which has just been deleted, and whose address the new one has got.
        if (record->object_ == object && std::strcmp(record->typeName_, typeName) == 0 && record->inc_reference() != 0)
            return record;
    }

    ref_count* record = shard.pool;
    if (record != nullptr)
        shard.pool = record->next_;
    else
        record = new ref_count;

    record->object_ = object;
    record->typeName_ = typeName;
    record->counter_ = 1;
    record->abandoned_ = false;
    shard.chain(record);
    ++shard.records;
    return record;
}

void RefCountManager::returnbackRefCount(ref_count* record, const char* /*typeName*/)
{
    if (record == nullptr) return;

    Shard& shard = shards_[hashOf(record->object_) >> (64 - shardBits)];
    const std::lock_guard<std::mutex> guard(shard.mutex);
    if (shard.buckets.empty()) return;

    // This very record, not another one of the same address.
    ref_count** link = &shard.bucketOf(record->object_);
    while (*link != nullptr && *link != record)
        link = &(*link)->next_;
    if (*link == nullptr) return;

    *link = record->next_;
    --shard.records;
    // It keeps its object's address, by which a pointer that dangles is told, until it is issued again.
    record->next_ = shard.pool;
    shard.pool = record;
}
