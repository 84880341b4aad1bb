#include "model/SAdvFile.h"

#include "model/Archive.h"

namespace vorlan {

namespace {
constexpr std::size_t kSmallestFile = 300 + SAdvFile::kChannels * (254 + 18 + 26 + 1 + 12);
}

void SAdvFile::Serialize(Archive& archive) {
    archive.value(fileName);
    archive.value(channelCount);
    archive.raw(headerBlock.data(), headerBlock.size());
    for (ChannelRecord& channel : channels) {
        archive.raw(channel.textA.data(), channel.textA.size());
        archive.raw(channel.textB.data(), channel.textB.size());
        archive.raw(channel.textC.data(), channel.textC.size());
        archive.value(channel.flag);
        archive.value(channel.valueA);
        archive.value(channel.valueB);
        archive.value(channel.valueC);
    }
    for (std::uint32_t& word : channelWords) {
        archive.value(word);
    }
    for (float& v : headerPairs) {
        archive.value(v);
    }
    archive.value(headerFloatA);
    archive.value(headerFloatB);
    archive.value(headerIntA);
    archive.value(headerIntB);
    archive.value(headerDoubleA);
    archive.value(headerDoubleB);
    archive.value(headerIntC);
    archive.value(headerDoubleC);
    archive.value(headerIntD);
    archive.value(comment);
    fileTable.Serialize(archive);
    probes.Serialize(archive);
}

void SAdvFilesArray::Serialize(Archive& archive) {
    serializeItems(archive, archive.count(items().size(), kSmallestFile));
}

}  // namespace vorlan
