#pragma once

#include <sanitizer/allocator_interface.h>

#include <cstddef>
#include <cstdlib>

namespace fuzz {

/// Aborts when more memory is allocated than an input of this size may need, as long as the object lives. The fixed
/// part is what overlapping index boxes may use before they are refused.
class MemoryBound {
public:
    explicit MemoryBound(std::size_t inputSize) {
        static const int installed = __sanitizer_install_malloc_and_free_hooks(onAllocation, onRelease);
        static_cast<void>(installed);
        taken() = 0;
        limit() = fixedPart + perByte * inputSize;
    }
    ~MemoryBound() { limit() = unlimited; }
    MemoryBound(const MemoryBound&) = delete;
    MemoryBound& operator=(const MemoryBound&) = delete;

private:
    static constexpr std::ptrdiff_t fixedPart = 32 << 20;
    static constexpr std::ptrdiff_t perByte = 300;
    static constexpr std::ptrdiff_t unlimited = PTRDIFF_MAX;

    static std::ptrdiff_t& taken() {
        static std::ptrdiff_t bytes = 0;
        return bytes;
    }
    static std::ptrdiff_t& limit() {
        static std::ptrdiff_t bytes = unlimited;
        return bytes;
    }
    static void onAllocation(const volatile void*, std::size_t size) {
        taken() += static_cast<std::ptrdiff_t>(size);
        if (taken() > limit()) std::abort();
    }
    static void onRelease(const volatile void* block) {
        if (block) taken() -= static_cast<std::ptrdiff_t>(__sanitizer_get_allocated_size(const_cast<void*>(block)));
    }
};

}  // namespace fuzz
