#pragma once

#include <cstddef>
#include <span>
#include <type_traits>
#include <utility>

#include "model/Errors.h"
#include "model/Index.h"
#include "model/SObject.h"
#include "model/SharedRun.h"

namespace vorlan {

/// The growable array behind every container of the model. Indexes count from 0; reading outside raises
/// InvalidArgument, setting at or beyond the end grows the array with zero or default elements. Copies are independent;
/// plain elements are shared until one of the copies is written.
template <class T>
class GrowArray : public SObject {
  public:
    using Storage = RunStorage<T>;

    int GetSize() const { return asInt(items().size()); }
    bool IsEmpty() const { return items().empty(); }

    const T& GetAt(int index) const {
        check(index);
        return items()[asSize(index)];
    }
    T& ElementAt(int index) {
        check(index);
        return items()[asSize(index)];
    }
    /// The element at index, after growing the array so that there is one.
    T& GrowTo(int index) {
        if (index < 0) {
            throw InvalidArgument();
        }
        Storage& held = items();
        if (asSize(index) >= held.size()) {
            held.resize(asSize(index) + 1, T());
        }
        return held[asSize(index)];
    }
    void SetAt(int index, const T& value) {
        T copy = value;
        GrowTo(index) = std::move(copy);
    }
    void Add(T value) { items().push_back(std::move(value)); }
    void InsertAt(int index, T value) {
        if (index < 0 || index > GetSize()) {
            throw InvalidArgument();
        }
        items().insert(items().begin() + index, std::move(value));
    }
    void RemoveAt(int index) {
        check(index);
        items().erase(items().begin() + index);
    }
    void RemoveAll() { items_.clear(); }
    /// Exactly size elements; new ones are zero or default-constructed.
    void SetSize(int size) {
        if (size < 0) {
            throw InvalidArgument();
        }
        items().resize(asSize(size), T());
    }

    /// The elements in one run, for loops that check their bounds once.
    std::span<const T> view() const { return items(); }
    std::span<T> view() { return items(); }
    auto begin() const { return items().begin(); }
    auto end() const { return items().end(); }
    auto begin() { return items().begin(); }
    auto end() { return items().end(); }

    friend bool operator==(const GrowArray& a, const GrowArray& b) { return a.items_ == b.items_; }

  protected:
    Storage& items() { return items_.write(); }
    const Storage& items() const { return items_.read(); }
    /// size elements, all of them for the caller to write.
    Storage& freshItems(std::size_t size) {
        Storage& fresh = items_.replace();
        fresh.resize(size);
        return fresh;
    }
    /// The elements behind their count, which the archive gives or takes in the list's own width. Loading appends.
    template <class Archive>
    void serializeItems(Archive& archive, std::size_t count) {
        if (archive.isStoring()) {
            for (T& item : items()) {
                item.Serialize(archive);
            }
            return;
        }
        items().reserve(items().size() + count);
        for (std::size_t i = 0; i < count; ++i) {
            items().emplace_back().Serialize(archive);
        }
    }
    /// Plain elements: their count, then all of them as one block. Loading appends.
    template <class Archive>
    void serializeBlock(Archive& archive) {
        const std::span<const T> held = std::as_const(*this).view();
        const std::size_t count = archive.count(held.size(), sizeof(T));
        if (archive.isStoring()) {
            archive.append(std::as_bytes(held));
        } else {
            Storage& grown = items();
            grown.resize(held.size() + count);
            archive.raw(grown.data() + grown.size() - count, count * sizeof(T));
        }
    }

  private:
    void check(int index) const {
        if (index < 0 || asSize(index) >= items().size()) {
            throw InvalidArgument();
        }
    }

    std::conditional_t<std::is_trivially_copyable_v<T>, SharedRun<T>, OwnRun<T>> items_;
};

}  // namespace vorlan
