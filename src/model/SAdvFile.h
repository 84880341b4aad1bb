#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "model/GrowArray.h"
#include "model/SAdvProbe.h"
#include "model/SArray.h"

namespace vorlan {

/// One channel record of a data file's header; bytes after a text's terminating zero are kept.
struct ChannelRecord {
    std::array<char, 254> textA{};
    std::array<char, 18> textB{};
    std::array<char, 26> textC{};
    std::uint8_t flag = 0;
    float valueA = 0.0F;
    float valueB = 0.0F;
    float valueC = 0.0F;

    friend bool operator==(const ChannelRecord&, const ChannelRecord&) = default;
};

/// One data file: its header, which no analysis interprets and every save keeps byte for byte, and its probes.
class SAdvFile : public SObject {
  public:
    static constexpr std::size_t kChannels = 8;

    const char* ClassName() const override { return "SAdvFile"; }
    void Serialize(Archive& archive) override;

    std::string fileName;
    std::uint32_t channelCount = 0;
    std::array<char, 300> headerBlock{};
    std::array<ChannelRecord, kChannels> channels{};  ///< all eight are stored, whatever channelCount says
    std::array<std::uint32_t, kChannels> channelWords{};
    std::array<float, 4> headerPairs{};
    float headerFloatA = 0.0F;
    float headerFloatB = 0.0F;
    std::uint32_t headerIntA = 0;
    std::uint32_t headerIntB = 0;
    double headerDoubleA = 0.0;  ///< the generator: sampling interval, s
    double headerDoubleB = 0.0;  ///< the generator: length, s
    std::uint32_t headerIntC = 0;
    double headerDoubleC = 0.0;
    std::uint32_t headerIntD = 0;
    std::string comment;
    SMultiArray fileTable;
    SAdvProbesArray probes;

    friend bool operator==(const SAdvFile&, const SAdvFile&) = default;
};

class SAdvFilesArray : public GrowArray<SAdvFile> {
  public:
    const char* ClassName() const override { return "SAdvFilesArray"; }
    void Serialize(Archive& archive) override;
};

}  // namespace vorlan
