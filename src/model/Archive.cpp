#include "model/Archive.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "model/Index.h"

namespace vorlan {

namespace {
constexpr std::size_t kBlock = 64 * 1024;
}

static_assert(std::endian::native == std::endian::little, "the archive moves values as they lie in memory");

Archive Archive::loading(std::span<const std::byte> bytes) {
    return Archive(true, bytes);
}

Archive Archive::loading(ByteSource& source) {
    Archive archive(true, {});
    archive.source_ = &source;
    archive.total_ = source.size();
    return archive;
}

Archive Archive::storing() {
    return Archive(false, {});
}

Archive Archive::storing(ByteSink& sink) {
    Archive archive(false, {});
    archive.sink_ = &sink;
    return archive;
}

void Archive::requireLoading() const {
    if (!loading_) {
        throw WrongModeError(offset());
    }
}

void Archive::requireStoring() const {
    if (loading_) {
        throw WrongModeError(offset());
    }
}

void Archive::plain(void* bytes, std::size_t size) {
    if (!loading_) {
        collect({static_cast<const std::byte*>(bytes), size});
        return;
    }
    if (remaining() < size) {
        throw EndOfFileError(offset());
    }
    auto* first = static_cast<std::byte*>(bytes);
    if (const std::size_t held = input_.size() - position_; held < size) {
        take({first, held});
        take({first + held, size - held});
    } else {
        take({first, size});
    }
}

// All of bytes from the window, or all of it from the source behind the empty window.
void Archive::take(std::span<std::byte> bytes) {
    if (bytes.empty()) {
        return;
    }
    if (position_ == input_.size()) {
        if (bytes.size() >= kBlock) {
            base_ += position_;
            input_ = {};
            position_ = 0;
            if (source_->read(bytes) < bytes.size()) {
                throw EndOfFileError(base_);
            }
            base_ += bytes.size();
            return;
        }
        refill();
        if (input_.size() < bytes.size()) {
            throw EndOfFileError(offset());
        }
    }
    std::memcpy(bytes.data(), input_.data() + position_, bytes.size());
    position_ += bytes.size();
}

// Moves the window on: it keeps what is not taken yet.
void Archive::refill() {
    const std::size_t kept = input_.size() - position_;
    buffer_.resize(kBlock);
    if (kept > 0) {
        std::memmove(buffer_.data(), input_.data() + position_, kept);
    }
    base_ += position_;
    position_ = 0;
    const std::size_t wanted = std::min(kBlock, total_ - base_) - kept;
    input_ = std::span(buffer_).first(kept + source_->read(std::span(buffer_).subspan(kept, wanted)));
}

void Archive::collect(std::span<const std::byte> bytes) {
    if (sink_ != nullptr && buffer_.size() + bytes.size() > kBlock) {
        flush();
        if (bytes.size() > kBlock) {
            sink_->write(bytes);
            base_ += bytes.size();
            return;
        }
    }
    buffer_.insert(buffer_.end(), bytes.begin(), bytes.end());
}

void Archive::flush() {
    if (sink_ != nullptr && !buffer_.empty()) {
        sink_->write(buffer_);
        base_ += buffer_.size();
        buffer_.clear();
    }
}

std::uint16_t Archive::peekShort() {
    requireLoading();
    std::uint16_t word = 0;
    if (remaining() >= sizeof word) {
        if (input_.size() - position_ < sizeof word) {
            refill();
        }
        if (input_.size() - position_ < sizeof word) {
            return 0;  // the source is shorter than it said
        }
        std::memcpy(&word, input_.data() + position_, sizeof word);
    }
    return word;
}

void Archive::value(std::string& text) {
    const std::size_t at = offset();
    std::uint8_t length8 = static_cast<std::uint8_t>(text.size() < 0xFF ? text.size() : 0xFF);
    value(length8);
    std::size_t length = length8;
    if (length8 == 0xFF) {
        std::uint16_t length16 = static_cast<std::uint16_t>(text.size() < 0xFFFE ? text.size() : 0xFFFF);
        value(length16);
        length = length16;
        if (length16 == 0xFFFE) {
            throw FormatError("Invalid text length", at);
        }
        if (length16 == 0xFFFF) {
            std::uint32_t length32 = static_cast<std::uint32_t>(text.size());
            value(length32);
            length = length32;
        }
    }
    if (loading_) {
        text.resize(checked(length, 1, at));
    }
    plain(text.data(), text.size());
}

void Archive::code(std::uint32_t& v, std::uint32_t last) {
    std::uint32_t word = v;
    value(word);
    if (word <= last) {
        v = word;
    }
}

std::size_t Archive::checked(std::size_t count, std::size_t minimumBytes, std::size_t at) const {
    if (count > remaining() / minimumBytes) {
        throw EndOfFileError(at);
    }
    return count;
}

std::size_t Archive::count(std::size_t size, std::size_t minimumBytes) {
    const std::size_t at = offset();
    std::int32_t word = static_cast<std::int32_t>(size);
    value(word);
    if (!loading_) {
        return size;
    }
    return word < 1 ? 0 : checked(asSize(word), minimumBytes, at);
}

std::size_t Archive::shortCount(std::size_t size, std::size_t minimumBytes) {
    const std::size_t at = offset();
    std::uint16_t word16 = static_cast<std::uint16_t>(size < 0xFFFF ? size : 0xFFFF);
    value(word16);
    std::uint32_t word = word16;
    if (word16 == 0xFFFF) {
        word = static_cast<std::uint32_t>(size);
        value(word);
    }
    return loading_ ? checked(word, minimumBytes, at) : size;
}

std::vector<std::byte> Archive::takeRest() {
    requireLoading();
    std::vector<std::byte> rest(remaining());
    plain(rest.data(), rest.size());
    return rest;
}

void Archive::append(std::span<const std::byte> bytes) {
    requireStoring();
    collect(bytes);
}

}  // namespace vorlan
