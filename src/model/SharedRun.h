#pragma once

#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

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

template <class T>
using RunStorage = std::vector<T, UninitialisedAllocator<T>>;

/// Elements that copies share until one of them is written: a record of a million samples is copied at the cost of a
/// few pointers, and only the columns that a command changes are copied in earnest.
///
/// A value like any other to one thread. A span or iterator for writing is good until the run is copied.
template <class T>
class SharedRun {
  public:
    const RunStorage<T>& read() const {
        static const RunStorage<T> kNone;
        return run_ ? *run_ : kNone;
    }
    RunStorage<T>& write() {
        if (!run_) {
            run_ = std::make_shared<RunStorage<T>>();
        } else if (run_.use_count() > 1) {
            run_ = std::make_shared<RunStorage<T>>(*run_);
        }
        return *run_;
    }
    /// For writing every element anew: what was there may be gone.
    RunStorage<T>& replace() {
        if (run_ && run_.use_count() > 1) {
            run_.reset();
        }
        return write();
    }

    void clear() {
        if (run_.use_count() > 1) {
            run_.reset();
        } else if (run_) {
            run_->clear();
        }
    }

    friend bool operator==(const SharedRun& a, const SharedRun& b) { return a.run_ == b.run_ || a.read() == b.read(); }

  private:
    std::shared_ptr<RunStorage<T>> run_;
};

/// Elements of one owner.
template <class T>
class OwnRun {
  public:
    const RunStorage<T>& read() const { return run_; }
    RunStorage<T>& write() { return run_; }
    void clear() { run_.clear(); }

    friend bool operator==(const OwnRun& a, const OwnRun& b) { return a.run_ == b.run_; }

  private:
    RunStorage<T> run_;
};

}  // namespace vorlan
