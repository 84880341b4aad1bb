#pragma once

namespace vorlan {

class Archive;

/// Base of every class that is stored in a workspace. Serialize stores and loads in one operation, so that both
/// directions cannot drift apart.
class SObject {
  public:
    virtual ~SObject() = default;
    virtual const char* ClassName() const = 0;
    virtual void Serialize(Archive& archive) = 0;

  protected:
    SObject() = default;
    SObject(const SObject&) = default;
    SObject(SObject&&) = default;
    SObject& operator=(const SObject&) = default;
    SObject& operator=(SObject&&) = default;
    /// No state of its own: lets derived classes default their comparison. Protected, so that two objects without a
    /// comparison of their own are never taken for equal.
    bool operator==(const SObject&) const { return true; }
};

}  // namespace vorlan
