#pragma once

#include <cstdio>
#include <utility>

/// What readers and writers of binary files do alike with the stream they own; null stands for a file that is not open.
namespace quarn::stream {

inline bool seek(std::FILE* file, long offset, int origin) { return file && std::fseek(file, offset, origin) == 0; }

/// Forgets the stream, whatever becomes of it.
inline bool close(std::FILE*& file) {
    std::FILE* const closing = std::exchange(file, nullptr);
    return closing && std::fclose(closing) == 0;
}

}  // namespace quarn::stream
