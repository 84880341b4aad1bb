#pragma once

#include "analysis/Progress.h"

namespace vorlan {

/// The progress of a calculation that is a part of another one: from and to are shares of that one, 0..1.
class ProgressPart : public Progress {
  public:
    ProgressPart(Progress& whole, double from, double to) : whole_(whole), from_(from), to_(to) {}

    void status(const std::string& text) override { whole_.status(text); }
    void position(int percent) override { whole_.position(percent); }
    void done(double share) override { whole_.done(from_ + (to_ - from_) * share); }
    void pump() override { whole_.pump(); }

  private:
    Progress& whole_;
    double from_;
    double to_;
};

}  // namespace vorlan
