#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace vorlan {

/// Something wrong with the bytes of an archive; offset() is where, counted from the archive's first byte.
class ArchiveError : public std::runtime_error {
  public:
    ArchiveError(const std::string& reason, std::size_t offset) : std::runtime_error(reason), offset_(offset) {}
    std::size_t offset() const { return offset_; }

  private:
    std::size_t offset_;
};

/// The archive ends before the field (or before the elements that a count announces).
class EndOfFileError : public ArchiveError {
  public:
    explicit EndOfFileError(std::size_t offset) : ArchiveError("Unexpected end of file", offset) {}
};

/// A load from a storing archive or a store into a loading one.
class WrongModeError : public ArchiveError {
  public:
    explicit WrongModeError(std::size_t offset) : ArchiveError("Archive is opened in the wrong mode", offset) {}
};

/// Bytes that no workspace holds.
class FormatError : public ArchiveError {
  public:
    FormatError(const std::string& reason, std::size_t offset) : ArchiveError(reason, offset) {}
};

/// Where a loading archive takes its bytes from, from the first to the last.
class ByteSource {
  public:
    virtual ~ByteSource() = default;
    /// Bytes in all.
    virtual std::size_t size() const = 0;
    /// Fills bytes with the next ones and returns their number, which is smaller only at the end.
    virtual std::size_t read(std::span<std::byte> bytes) = 0;
};

/// Where a storing archive hands its bytes on.
class ByteSink {
  public:
    virtual ~ByteSink() = default;
    virtual void write(std::span<const std::byte> bytes) = 0;
};

/// Bytes in memory that Serialize operations run on: little-endian, no padding, no alignment.
///
/// value(x) reads into x while loading and appends x while storing. Every count is checked against the bytes that
/// are left before anything is allocated for it, so a damaged count costs no memory.
class Archive {
  public:
    /// An archive that loads from bytes; they must outlive it.
    static Archive loading(std::span<const std::byte> bytes);
    /// An archive that loads from source, which must outlive it: small fields by way of a buffer, long blocks straight
    /// into the model.
    static Archive loading(ByteSource& source);
    /// An archive that stores into a buffer of its own.
    static Archive storing();
    /// An archive that hands everything on to sink, which must outlive it: small fields collected, long blocks as they
    /// lie in the model. flush() when done.
    static Archive storing(ByteSink& sink);

    Archive(Archive&&) = default;
    Archive& operator=(Archive&&) = default;
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;

    bool isLoading() const { return loading_; }
    bool isStoring() const { return !loading_; }
    /// Bytes read or written so far.
    std::size_t offset() const { return loading_ ? base_ + position_ : base_ + buffer_.size(); }
    /// Bytes not read yet; 0 while storing.
    std::size_t remaining() const { return loading_ ? total_ - offset() : 0; }

    void value(std::int32_t& v) { plain(&v, sizeof v); }
    void value(std::uint32_t& v) { plain(&v, sizeof v); }
    void value(std::uint16_t& v) { plain(&v, sizeof v); }
    void value(std::uint8_t& v) { plain(&v, sizeof v); }
    void value(double& v) { plain(&v, sizeof v); }
    void value(float& v) { plain(&v, sizeof v); }
    /// Length-prefixed bytes: one byte below 255, else 0xFF and 16 bits below 0xFFFE, else 0xFF, 0xFFFF and 32 bits.
    void value(std::string& text);
    /// A four-byte code of which only 0..last are taken while loading; another value leaves v as it was.
    void code(std::uint32_t& v, std::uint32_t last);

    /// Exactly size bytes, verbatim.
    void raw(void* bytes, std::size_t size) { plain(bytes, size); }
    template <class T, std::size_t N>
    void values(T (&array)[N]) {
        for (T& v : array) {
            value(v);
        }
    }

    /// A 32-bit element count: stores size; while loading returns the count read, 0 for a negative one.
    /// Throws EndOfFileError when count elements of at least minimumBytes each cannot follow.
    std::size_t count(std::size_t size, std::size_t minimumBytes);
    /// The generic array's count: 16 bits below 0xFFFF, else 0xFFFF and 32 bits. Checked as count().
    std::size_t shortCount(std::size_t size, std::size_t minimumBytes);

    /// The next 16 bits of a loading archive without taking them; 0 when there are none.
    std::uint16_t peekShort();
    /// The rest of a loading archive; the archive is at its end afterwards.
    std::vector<std::byte> takeRest();
    /// Appends bytes verbatim to a storing archive.
    void append(std::span<const std::byte> bytes);

    /// Hands on what is collected, when there is a sink.
    void flush();

    /// What a storing archive without a sink holds.
    const std::vector<std::byte>& bytes() const { return buffer_; }
    std::vector<std::byte> takeBytes() { return std::move(buffer_); }
    /// Room for a storing archive, to save it from growing.
    void reserve(std::size_t bytes) { buffer_.reserve(bytes); }

    void requireLoading() const;
    void requireStoring() const;

  private:
    Archive(bool loading, std::span<const std::byte> input) : loading_(loading), input_(input), total_(input.size()) {}
    void plain(void* bytes, std::size_t size);
    void take(std::span<std::byte> bytes);
    void refill();
    void collect(std::span<const std::byte> bytes);
    std::size_t checked(std::size_t count, std::size_t minimumBytes, std::size_t at) const;

    bool loading_;
    std::span<const std::byte> input_;  // all bytes to load, or those that buffer_ holds of a source
    std::size_t position_ = 0;          // of the next byte to load in input_
    std::size_t base_ = 0;              // offset of input_, or bytes handed on to the sink
    std::size_t total_ = 0;             // bytes to load in all
    std::vector<std::byte> buffer_;
    ByteSource* source_ = nullptr;
    ByteSink* sink_ = nullptr;
};

}  // namespace vorlan
