#pragma once
// A cursor over untrusted bytes. Every read checks the remaining length first and fails
// (returns false / nullopt) at the end of the data; nothing ever reads past it.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace iw {

// True when [offset, offset + size) lies inside a buffer of `total` bytes, without overflow.
constexpr bool RangeFits(std::uint64_t offset, std::uint64_t size, std::uint64_t total) {
    return offset <= total && size <= total - offset;
}

inline std::uint16_t LoadLE16(const std::uint8_t* p) {
    return static_cast<std::uint16_t>(p[0] | (p[1] << 8));
}
inline std::uint32_t LoadLE32(const std::uint8_t* p) {
    return static_cast<std::uint32_t>(p[0]) | (static_cast<std::uint32_t>(p[1]) << 8) |
           (static_cast<std::uint32_t>(p[2]) << 16) | (static_cast<std::uint32_t>(p[3]) << 24);
}
inline std::uint32_t LoadBE32(const std::uint8_t* p) {
    return (static_cast<std::uint32_t>(p[0]) << 24) | (static_cast<std::uint32_t>(p[1]) << 16) |
           (static_cast<std::uint32_t>(p[2]) << 8) | static_cast<std::uint32_t>(p[3]);
}

class ByteReader {
  public:
    explicit ByteReader(std::span<const std::uint8_t> data) : data_(data) {}

    std::size_t Position() const { return pos_; }
    std::size_t Size() const { return data_.size(); }
    std::size_t Remaining() const { return data_.size() - pos_; }
    bool AtEnd() const { return pos_ >= data_.size(); }

    bool Seek(std::size_t position) {
        if (position > data_.size()) return false;
        pos_ = position;
        return true;
    }
    bool Skip(std::size_t count) {
        if (count > Remaining()) return false;
        pos_ += count;
        return true;
    }

    std::optional<std::uint8_t> U8() {
        if (Remaining() < 1) return std::nullopt;
        return data_[pos_++];
    }
    std::optional<std::uint16_t> U16LE() {
        if (Remaining() < 2) return std::nullopt;
        auto v = LoadLE16(data_.data() + pos_);
        pos_ += 2;
        return v;
    }
    std::optional<std::uint32_t> U32LE() {
        if (Remaining() < 4) return std::nullopt;
        auto v = LoadLE32(data_.data() + pos_);
        pos_ += 4;
        return v;
    }
    std::optional<std::uint32_t> U32BE() {
        if (Remaining() < 4) return std::nullopt;
        auto v = LoadBE32(data_.data() + pos_);
        pos_ += 4;
        return v;
    }
    // The next `count` bytes, or an empty optional when fewer remain.
    std::optional<std::span<const std::uint8_t>> Bytes(std::size_t count) {
        if (count > Remaining()) return std::nullopt;
        auto view = data_.subspan(pos_, count);
        pos_ += count;
        return view;
    }

  private:
    std::span<const std::uint8_t> data_;
    std::size_t pos_ = 0;
};

}  // namespace iw
