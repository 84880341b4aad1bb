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
    /// An archive that stores into a buffer of its own.
    static Archive storing();
    /// An archive that hands everything on to sink, which must outlive it: small fields collected, long blocks as they
    /// lie in the model. flush() when done.
    static Archive storing(ByteSink& sink);

    bool isLoading() const { return loading_; }
    bool isStoring() const { return !loading_; }
    /// Bytes read or written so far.
    std::size_t offset() const { return loading_ ? position_ : position_ + buffer_.size(); }
    /// Bytes not read yet; 0 while storing.
    std::size_t remaining() const { return loading_ ? input_.size() - position_ : 0; }

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
    std::uint16_t peekShort() const;
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
    Archive(bool loading, std::span<const std::byte> input) : loading_(loading), input_(input) {}
    void plain(void* bytes, std::size_t size);
    void collect(std::span<const std::byte> bytes);
    std::size_t checked(std::size_t count, std::size_t minimumBytes, std::size_t at) const;

    bool loading_;
    std::span<const std::byte> input_;
    std::size_t position_ = 0;  // bytes read, or handed on to the sink
    std::vector<std::byte> buffer_;
    ByteSink* sink_ = nullptr;
};

}  // namespace vorlan
