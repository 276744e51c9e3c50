#pragma once
// The error that the codec's classes raise: a number on top of the object-error base, a
// description and the name of the class that raised it. Readers and writers catch it and
// turn it into their true/false result; it never leaves their entry points.

#include <cstdint>
#include <stdexcept>
#include <string>

namespace iw {

inline constexpr std::uint32_t kObjectErrorBase = 0x80040000u;

class ObjectError : public std::runtime_error {
  public:
    ObjectError(std::uint32_t number, std::string description, std::string source)
        : std::runtime_error(description),
          number_(number),
          description_(std::move(description)),
          source_(std::move(source)) {}

    // The full number, base included (for example 0x80040002).
    std::uint32_t Number() const { return number_; }
    const std::string& Description() const { return description_; }
    const std::string& Source() const { return source_; }

  private:
    std::uint32_t number_;
    std::string description_;
    std::string source_;
};

}  // namespace iw
