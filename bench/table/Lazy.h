#pragma once

#include <memory>
#include <optional>

namespace bench {

/// What the benchmarks of a group share, made when the first of them asks: those that are not chosen cost nothing.
/// Copies share one T.
template <class T>
class Lazy {
  public:
    T& operator()() const {
        if (!value_->has_value()) {
            value_->emplace();
        }
        return **value_;
    }

  private:
    std::shared_ptr<std::optional<T>> value_ = std::make_shared<std::optional<T>>();
};

}  // namespace bench
