#pragma once

#include <concepts>

namespace vorlan {

class Archive;

/// Base of every class that is stored in a workspace. Serialize stores and loads in one operation, so that both
/// directions cannot drift apart.
class SObject {
  public:
    virtual ~SObject() = default;
    virtual const char* ClassName() const = 0;
    virtual void Serialize(Archive& archive) = 0;

    /// No state of its own, so that derived classes can default their comparison. For this very class only: two
    /// objects of a class without a comparison must not be taken for equal.
    template <std::same_as<SObject> T>
    friend constexpr bool operator==(const T&, const T&) {
        return true;
    }

  protected:
    SObject() = default;
    SObject(const SObject&) = default;
    SObject(SObject&&) = default;
    SObject& operator=(const SObject&) = default;
    SObject& operator=(SObject&&) = default;
};

}  // namespace vorlan
