#pragma once

#include "core/ZTRuntimeError.h"
#include "domain/RefCountManager.h"

#include <cstddef>
#include <cstdio>
#include <string>
#include <typeinfo>
#include <utility>

/// Common base of all `SafePointer` classes.
class BaseSafePointer
{
public:
    // The destructor of a SafePointer may raise, and so this one has to allow it. It is not defaulted: older compilers
    // refuse to default one that may raise where the implicit one may not.
    virtual ~BaseSafePointer() noexcept(false) {} // NOLINT(modernize-use-equals-default)
};

/// Shared ownership of an object made by plain `new`.
///
/// The count stands in a record that `RefCountManager` keeps by the object's address, so two `SafePointer` made from
/// one raw pointer share it, and the object is deleted once, with the last of both.
///
/// An empty `SafePointer` comes from the default constructor only: copying or assigning one that is empty raises, and
/// nothing but `dec_reference` empties a full one. Test with `if (pointer)`, `!pointer` or a comparison with `nullptr`,
/// which never raise.
///
/// @par Errors
/// Every misuse raises `ZTRuntimeError`; most of them print their text to standard output first.
///
/// @par Threads
/// One `SafePointer` belongs to one thread at a time. Several that share an object may live on several threads.
template <class T>
class SafePointer : public BaseSafePointer
{
public:
    /// Holds nothing.
    SafePointer() = default;
    /// Takes ownership of @p pointer; raises on null.
    explicit SafePointer(T* pointer);
    /// Shares the object of @p other; raises if that is empty.
    SafePointer(const SafePointer& other);
    /// Releases its own object and shares that of @p other. Raises if @p other is empty, and then changes nothing, or
    /// if its object is gone, and then the own one has been released all the same.
    SafePointer& operator=(const SafePointer& other);
    /// The same without a change of counts: @p other, a temporary as a rule, is left with what this one held.
    SafePointer& operator=(SafePointer&& other); // NOLINT(performance-noexcept-move-constructor): it may raise
    /// Releases the object; raises if the count has become another object's.
    ~SafePointer() noexcept(false) override { dec_reference(); }

    /// The object; raises on null.
    /// @{
    T* operator->() const { return object(); }
    T* operator->() { return object(); }
    /// @}

    /// Whether there is an object.
    explicit operator bool() const { return pointer_ != nullptr; }

    /// Adds a reference, to be dropped by `dec_reference`; raises if the object is gone.
    void inc_reference() const;
    /// Drops a reference; with the last one the object is deleted and this pointer is empty. Does nothing when empty.
    void dec_reference();

    /// Prints "SafePointer Report:", the name of `T` and @p message, and raises that text.
    /// @{
    [[noreturn]] void ThrowNullPointerException(const char* message) const { report(message); }
    [[noreturn]] void ThrowNullPointerException(const char* message) { report(message); }
    /// @}

private:
    T* object() const
    {
        if (pointer_ == nullptr) report("Use NULL pointer ->");
        return pointer_;
    }

    enum class Refusal
    {
        none,
        noCount,
        countLocked,
        countOfAnother,
        objectGone,
    };

    // Adds a reference, or tells why not.
    Refusal tryReference() const;
    static void raise(Refusal refusal);
    [[noreturn]] static void report(const char* message);

    T* pointer_ = nullptr;
    ref_count* count_ = nullptr;
};

template <class T>
bool operator==(const SafePointer<T>& pointer, std::nullptr_t)
{
    return !pointer;
}

template <class T>
bool operator==(std::nullptr_t, const SafePointer<T>& pointer)
{
    return !pointer;
}

template <class T>
bool operator!=(const SafePointer<T>& pointer, std::nullptr_t)
{
    return static_cast<bool>(pointer);
}

template <class T>
bool operator!=(std::nullptr_t, const SafePointer<T>& pointer)
{
    return static_cast<bool>(pointer);
}

template <class T>
SafePointer<T>::SafePointer(T* pointer) : pointer_(pointer)
{
    if (pointer_ == nullptr) report("Construct from NULL original pointer");
    count_ = RefCountManager::getInstance()->retrieveRefCount(pointer_, typeid(T).name());
}

template <class T>
SafePointer<T>::SafePointer(const SafePointer& other) : BaseSafePointer(other)
{
    if (other.pointer_ == nullptr) report("Construct from NULL <T>pointer");
    other.inc_reference();
    pointer_ = other.pointer_;
    count_ = other.count_;
}

template <class T>
SafePointer<T>& SafePointer<T>::operator=(const SafePointer& other)
{
    if (this == &other) return *this;
    if (other.pointer_ == nullptr) report("Assigned NULL <T>pointer");

    // The new object is secured first, as the old one may own it; but a refusal is raised after the release only.
    const Refusal refusal = other.tryReference();
    SafePointer source;
    source.count_ = other.count_;
    if (refusal == Refusal::none) source.pointer_ = other.pointer_;

    dec_reference();
    pointer_ = nullptr; // others may hold the old object, but this one has dropped it
    raise(refusal);
    pointer_ = source.pointer_;
    count_ = source.count_;
    source.pointer_ = nullptr;
    return *this;
}

template <class T>
SafePointer<T>& SafePointer<T>::operator=(SafePointer&& other) // NOLINT(performance-noexcept-move-constructor)
{
    if (this == &other) return *this;
    if (other.pointer_ == nullptr) report("Assigned NULL <T>pointer");
    std::swap(pointer_, other.pointer_);
    std::swap(count_, other.count_);
    return *this;
}

template <class T>
void SafePointer<T>::inc_reference() const
{
    raise(tryReference());
}

template <class T>
typename SafePointer<T>::Refusal SafePointer<T>::tryReference() const
{
    if (pointer_ == nullptr || count_ == nullptr) return Refusal::noCount;
    if (count_->lock() != 0) return Refusal::countLocked;
    if (count_->getPointer() != pointer_)
    {
        // This pointer dangles, and the record counts another object now. It stays locked.
        count_->abandon();
        return Refusal::countOfAnother;
    }
    const bool shared = count_->inc_reference() != 0;
    count_->unLock();
    return shared ? Refusal::none : Refusal::objectGone;
}

template <class T>
void SafePointer<T>::raise(Refusal refusal)
{
    switch (refusal)
    {
    case Refusal::none:
        return;
    case Refusal::noCount:
        report("Already destructed 1");
    case Refusal::countLocked:
        report("Already destructed 2");
    case Refusal::countOfAnother:
        throw ZTRuntimeError("not valid pointer in inc_reference ");
    case Refusal::objectGone:
        report("Already destructed 3");
    }
}

template <class T>
void SafePointer<T>::dec_reference()
{
    if (pointer_ == nullptr) return;

    count_->lock();
    if (count_->getPointer() != pointer_)
    {
        count_->abandon();
        throw ZTRuntimeError("not valid pointer in dec_reference");
    }
    if (count_->dec_reference() != 0)
    {
        count_->unLock();
        return;
    }
    delete pointer_;
    pointer_ = nullptr;
    RefCountManager::getInstance()->returnbackRefCount(count_, typeid(T).name());
    count_->unLock();
}

template <class T>
void SafePointer<T>::report(const char* message)
{
    const std::string text = std::string("SafePointer Report:") + typeid(T).name() + " " + message;
    std::puts(text.c_str());
    throw ZTRuntimeError(text.c_str());
}
