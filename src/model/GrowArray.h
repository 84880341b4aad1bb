#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

#include "model/Errors.h"
#include "model/SObject.h"

namespace vorlan {

/// Leaves plain elements uninitialised on resize: a column that is filled from a block at once is not written twice.
template <class T>
struct UninitialisedAllocator : std::allocator<T> {
    template <class U>
    struct rebind {
        using other = UninitialisedAllocator<U>;
    };
    template <class U, class... Args>
    void construct(U* p, Args&&... args) {
        if constexpr (sizeof...(Args) == 0 && std::is_trivially_default_constructible_v<U>) {
            ::new (static_cast<void*>(p)) U;
        } else {
            ::new (static_cast<void*>(p)) U(std::forward<Args>(args)...);
        }
    }
};

/// The growable array behind every container of the model. Indexes count from 0; reading outside raises
/// InvalidArgument, setting at or beyond the end grows the array with zero or default elements.
template <class T>
class GrowArray : public SObject {
  public:
    using Storage = std::vector<T, UninitialisedAllocator<T>>;

    int GetSize() const { return static_cast<int>(items_.size()); }
    bool IsEmpty() const { return items_.empty(); }

    const T& GetAt(int index) const {
        check(index);
        return items_[static_cast<std::size_t>(index)];
    }
    T& ElementAt(int index) {
        check(index);
        return items_[static_cast<std::size_t>(index)];
    }
    /// The element at index, after growing the array so that there is one.
    T& GrowTo(int index) {
        if (index < 0) {
            throw InvalidArgument();
        }
        if (static_cast<std::size_t>(index) >= items_.size()) {
            items_.resize(static_cast<std::size_t>(index) + 1, T());
        }
        return items_[static_cast<std::size_t>(index)];
    }
    void SetAt(int index, const T& value) {
        T copy = value;
        GrowTo(index) = std::move(copy);
    }
    void Add(T value) { items_.push_back(std::move(value)); }
    void InsertAt(int index, T value) {
        if (index < 0 || index > GetSize()) {
            throw InvalidArgument();
        }
        items_.insert(items_.begin() + index, std::move(value));
    }
    void RemoveAt(int index) {
        check(index);
        items_.erase(items_.begin() + index);
    }
    void RemoveAll() { items_.clear(); }
    /// Exactly size elements; new ones are zero or default-constructed.
    void SetSize(int size) {
        if (size < 0) {
            throw InvalidArgument();
        }
        items_.resize(static_cast<std::size_t>(size), T());
    }

    /// The elements in one run, for loops that check their bounds once.
    std::span<const T> view() const { return items_; }
    std::span<T> view() { return items_; }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }
    auto begin() { return items_.begin(); }
    auto end() { return items_.end(); }

    friend bool operator==(const GrowArray& a, const GrowArray& b) { return a.items_ == b.items_; }

  protected:
    Storage& items() { return items_; }
    const Storage& items() const { return items_; }

  private:
    void check(int index) const {
        if (index < 0 || static_cast<std::size_t>(index) >= items_.size()) {
            throw InvalidArgument();
        }
    }

    Storage items_;
};

}  // namespace vorlan
