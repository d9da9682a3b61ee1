#include "quarn/BinaryFile.h"

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <thread>

#include "foundation/LongPathText.h"
#include "foundation/ScalarCodec.h"
#include "quarn/LongPathUtil.h"

namespace quarn {

using scalar::fileByteOrder;
using scalar::readScalar;
using scalar::writeScalar;

static_assert(sizeof(short) == 2 && sizeof(int) == 4 && sizeof(long long) == 8);
static_assert(sizeof(float) == 4 && sizeof(double) == 8);

namespace {

// The size of the fixed buffer for the mode on systems with a path-length limit, without its final zero.
constexpr int modeLimit = 23;

// ENAMETOOLONG on the system where the limits originate; errno.h of this system may use another number.
constexpr int nameTooLong = 38;

std::FILE* openStream(const QString& path, const QString& mode) {
#ifdef Q_OS_WIN
    return _wfopen(path.toStdWString().c_str(), mode.toStdWString().c_str());
#else
    return std::fopen(QFile::encodeName(path).constData(), mode.toLatin1().constData());
#endif
}

}  // namespace

bool fread_int8(signed char& value, std::FILE* file) { return readScalar(value, file); }
bool fread_int16(short& value, std::FILE* file) { return readScalar<fileByteOrder>(value, file); }
bool fread_int32(int& value, std::FILE* file) { return readScalar<fileByteOrder>(value, file); }
bool fread_int64(long long& value, std::FILE* file) { return readScalar<fileByteOrder>(value, file); }
bool fread_float(float& value, std::FILE* file) { return readScalar(value, file); }
bool fread_double(double& value, std::FILE* file) { return readScalar(value, file); }

bool fread_complex_float(std::complex<float>& value, std::FILE* file) {
    float real = 0.0F;
    float imaginary = 0.0F;
    if (!fread_float(real, file) || !fread_float(imaginary, file)) return false;
    value = {real, imaginary};
    return true;
}

bool fwrite_int8(const signed char& value, std::FILE* file) { return writeScalar(value, file); }
bool fwrite_int16(const short& value, std::FILE* file) { return writeScalar<fileByteOrder>(value, file); }
bool fwrite_int32(const int& value, std::FILE* file) { return writeScalar<fileByteOrder>(value, file); }
bool fwrite_int64(const long long& value, std::FILE* file) { return writeScalar<fileByteOrder>(value, file); }
bool fwrite_float(const float& value, std::FILE* file) { return writeScalar(value, file); }
bool fwrite_double(const double& value, std::FILE* file) { return writeScalar(value, file); }

bool fwrite_complex_float(const std::complex<float>& value, std::FILE* file) {
    return fwrite_float(value.real(), file) && fwrite_float(value.imag(), file);
}

std::FILE* openFile(const QString& path, const QString& mode) {
    if (supportsLongPaths()) return openStream(resolveLongPath(path, true), mode);
    if (!isPathTooLong(path) && mode.size() < modeLimit) return openStream(path, mode);
    errno = nameTooLong;
    return nullptr;
}

std::FILE* openFileWithRetries(const QString& path, const QString& mode, const int& maximumWait, int* waited) {
    const int limit = maximumWait;  // both numbers may be one variable of the caller
    int total = 0;
    std::FILE* file = openFile(path, mode);
    while (!file && total < limit) {
        const int delay = std::min(total + 1, limit - total);  // 1 + 2 + 4 + ... is one less than the next delay
        std::this_thread::sleep_for(std::chrono::milliseconds(delay));
        total += delay;
        file = openFile(path, mode);
    }
    if (waited) *waited = total;
    return file;
}

}  // namespace quarn
