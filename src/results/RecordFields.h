#pragma once

#include <array>
#include <complex>
#include <cstddef>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

/// Reading, writing and sizes of binary records, all three derived from the list of fields that describes a record. A
/// source has read(number&) for signed integers and floats, a sink has write(number): DataFileReader and
/// DataFileWriter, or classes with the same functions.
namespace quarn::records {

template <class T>
inline constexpr bool isComplex = false;
template <>
inline constexpr bool isComplex<std::complex<float>> = true;

template <class T>
inline constexpr bool isSequence = false;
template <class T, std::size_t size>
inline constexpr bool isSequence<std::array<T, size>> = true;
template <class T>
inline constexpr bool isSequence<std::vector<T>> = true;

/// Real part first. A value whose imaginary part is missing stays as it was.
template <class Source>
bool readComplex(Source& source, std::complex<float>& value) {
    float real = 0.0F;
    float imaginary = 0.0F;
    if (!source.read(real) || !source.read(imaginary)) return false;
    value = {real, imaginary};
    return true;
}

/// Reads a number, or as many numbers as a sequence has elements.
template <class Source, class T>
bool readField(Source& source, T& value) {
    if constexpr (isSequence<T>) {
        for (auto& item : value) {
            if (!readField(source, item)) return false;
        }
        return true;
    } else if constexpr (isComplex<T>) {
        return readComplex(source, value);
    } else if constexpr (std::is_unsigned_v<T>) {
        return source.read(reinterpret_cast<std::make_signed_t<T>&>(value));
    } else {
        return source.read(value);
    }
}

template <class Sink, class T>
bool writeField(Sink& sink, const T& value) {
    if constexpr (isSequence<T>) {
        for (const auto& item : value) {
            if (!writeField(sink, item)) return false;
        }
        return true;
    } else if constexpr (isComplex<T>) {
        return sink.write(value.real()) && sink.write(value.imag());
    } else if constexpr (std::is_unsigned_v<T>) {
        return sink.write(reinterpret_cast<const std::make_signed_t<T>&>(value));
    } else {
        return sink.write(value);
    }
}

/// Stops at the first field that cannot be read; those before it have been read.
template <class Source, class... Fields>
bool readFields(Source& source, const std::tuple<Fields&...>& fields) {
    return std::apply([&](auto&... field) { return (readField(source, field) && ...); }, fields);
}

template <class Sink, class... Fields>
bool writeFields(Sink& sink, const std::tuple<Fields&...>& fields) {
    return std::apply([&](const auto&... field) { return (writeField(sink, field) && ...); }, fields);
}

template <class... Fields>
constexpr std::size_t sizeOf(const std::tuple<Fields&...>*) {
    return (sizeof(Fields) + ...);
}

/// Bytes in a file of a record whose fields are numbers.
template <class Record>
inline constexpr std::size_t fileSize =
    sizeOf(static_cast<decltype(Record::fields(std::declval<Record&>()))*>(nullptr));

/// Whether these characters follow in the source; reads up to the first that differs.
template <class Source>
bool readMagic(Source& source, std::string_view magic) {
    for (const char expected : magic) {
        signed char found = 0;
        if (!source.read(found) || found != static_cast<signed char>(expected)) return false;
    }
    return true;
}

template <class Sink>
bool writeMagic(Sink& sink, std::string_view magic) {
    for (const char c : magic) {
        if (!sink.write(static_cast<signed char>(c))) return false;
    }
    return true;
}

}  // namespace quarn::records
