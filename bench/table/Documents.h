#pragma once

#include "app/CVorl_ADVDoc.h"
#include "table/Folder.h"

namespace bench {

/// A port that counts its calls. Done stages are not repeated.
class BreathPort : public vorlan::SilentPort {
  public:
    bool confirm(vorlan::Question) override { return false; }
    void pump() override { ++breaths_; }

    void forget() { breaths_ = 0; }
    int breaths() const { return breaths_; }

  private:
    int breaths_ = 0;
};

/// A document with one selected probe of so many samples: velocities, scores, compass and pressure.
void openRecord(vorlan::CVorl_ADVDoc& document, std::size_t samples);

// What the commands are given in all rows.
vorlan::EditingSettings allCriteria();
vorlan::RotationSettings threeAngles();
/// Of a record of a million samples.
vorlan::SpectralSettings tenThousandLags();

/// A workspace with a record of a million samples.
struct MillionFile {
    Folder folder;
    std::filesystem::path path = folder.path() / "million.avp";

    MillionFile();
};

}  // namespace bench
