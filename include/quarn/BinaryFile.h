#pragma once

#include <QString>
#include <complex>
#include <cstdio>

#include "quarn/Export.h"

namespace quarn {

/// @name Numbers in binary files
/// Each function moves one number between a value and a stream, in the byte order of the machine, and returns whether
/// all of its bytes were moved. A value that could not be read stays as it was; without a stream nothing is moved.
/// Calls cost little more than a copy out of the stream's buffer because they do not lock the stream: a stream belongs
/// to one thread at a time.
/// @{
QUARN_EXPORT bool fread_int8(signed char& value, std::FILE* file);
QUARN_EXPORT bool fread_int16(short& value, std::FILE* file);
QUARN_EXPORT bool fread_int32(int& value, std::FILE* file);
QUARN_EXPORT bool fread_int64(long long& value, std::FILE* file);
QUARN_EXPORT bool fread_float(float& value, std::FILE* file);
QUARN_EXPORT bool fread_double(double& value, std::FILE* file);

/// Real part first. A value whose imaginary part is missing stays as it was.
QUARN_EXPORT bool fread_complex_float(std::complex<float>& value, std::FILE* file);

QUARN_EXPORT bool fwrite_int8(const signed char& value, std::FILE* file);
QUARN_EXPORT bool fwrite_int16(const short& value, std::FILE* file);
QUARN_EXPORT bool fwrite_int32(const int& value, std::FILE* file);
QUARN_EXPORT bool fwrite_int64(const long long& value, std::FILE* file);
QUARN_EXPORT bool fwrite_float(const float& value, std::FILE* file);
QUARN_EXPORT bool fwrite_double(const double& value, std::FILE* file);
QUARN_EXPORT bool fwrite_complex_float(const std::complex<float>& value, std::FILE* file);
/// @}

/// Opens a file in a mode of C stdio, such as "rb". While the environment variable KIVEN_LONGPATHSUPPORT is set, the
/// path is resolved (quarn/LongPathUtil.h); while it is not, a path of 259 or more characters or a mode of 23 or more
/// is refused with errno 38. Returns null and sets errno on failure; the caller closes the stream.
QUARN_EXPORT std::FILE* openFile(const QString& path, const QString& mode);

/// Like openFile, but tries again after any failure, for files that another process holds for a moment: after 1, 2, 4,
/// ... milliseconds, until `maximumWait` milliseconds were waited in all. With a maximum of 0 or less there is one try.
/// `waited`, if given, receives the milliseconds waited.
QUARN_EXPORT std::FILE* openFileWithRetries(const QString& path, const QString& mode, const int& maximumWait,
                                            int* waited = nullptr);

}  // namespace quarn
