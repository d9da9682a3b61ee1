#pragma once

#include <cstdio>
#include <utility>

/// Operations that readers and writers of binary files share on the stream they own; null stands for a file that is not
/// open.
namespace quarn::stream {

inline bool seek(std::FILE* file, long offset, int origin) { return file && std::fseek(file, offset, origin) == 0; }

/// Closes the stream and sets it to null, even when closing fails.
inline bool close(std::FILE*& file) {
    std::FILE* const closing = std::exchange(file, nullptr);
    return closing && std::fclose(closing) == 0;
}

}  // namespace quarn::stream
