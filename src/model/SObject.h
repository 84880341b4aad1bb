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
};

}  // namespace vorlan
