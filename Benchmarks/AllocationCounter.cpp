#include "AllocationCounter.h"

#include <atomic>

#include <cerrno>
#include <cstdlib>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define UITOOLKIT_FOREIGN_HEAP
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || !defined(__GLIBC__)
#define UITOOLKIT_FOREIGN_HEAP
#endif

namespace {

std::atomic<bool> counting = false;
std::atomic<std::ptrdiff_t> live = 0;

} // namespace

void AllocationCounter::start()
{
    live = 0;
    counting = true;
}

void AllocationCounter::stop()
{
    counting = false;
}

std::ptrdiff_t AllocationCounter::liveBytes()
{
    return live;
}

#ifdef UITOOLKIT_FOREIGN_HEAP

bool AllocationCounter::isAvailable()
{
    return false;
}

#else

#include <malloc.h>

bool AllocationCounter::isAvailable()
{
    return true;
}

extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *block, size_t size);
void *__libc_memalign(size_t alignment, size_t size);
void __libc_free(void *block);
}

namespace {

// What the heap keeps in front of each block.
constexpr size_t headerSize = sizeof(size_t);

inline std::ptrdiff_t heldBytes(void *block)
{
    return block ? std::ptrdiff_t(malloc_usable_size(block) + headerSize) : 0;
}

inline void *added(void *block)
{
    if (counting.load(std::memory_order_relaxed))
        live.fetch_add(heldBytes(block), std::memory_order_relaxed);
    return block;
}

inline void removing(void *block)
{
    if (counting.load(std::memory_order_relaxed))
        live.fetch_sub(heldBytes(block), std::memory_order_relaxed);
}

} // namespace

// The program's own definitions come before the C library's for every library of the process.
#define UITOOLKIT_STANDS_IN extern "C" __attribute__((visibility("default")))

UITOOLKIT_STANDS_IN void *malloc(size_t size) noexcept
{
    return added(__libc_malloc(size));
}

UITOOLKIT_STANDS_IN void *calloc(size_t count, size_t size) noexcept
{
    return added(__libc_calloc(count, size));
}

UITOOLKIT_STANDS_IN void *realloc(void *block, size_t size) noexcept
{
    const std::ptrdiff_t before = heldBytes(block);
    void *const moved = __libc_realloc(block, size);
    // A failed call leaves the old block as it was.
    if ((moved || size == 0) && counting.load(std::memory_order_relaxed))
        live.fetch_add(heldBytes(moved) - before, std::memory_order_relaxed);
    return moved;
}

UITOOLKIT_STANDS_IN void *memalign(size_t alignment, size_t size) noexcept
{
    return added(__libc_memalign(alignment, size));
}

UITOOLKIT_STANDS_IN void *aligned_alloc(size_t alignment, size_t size) noexcept
{
    return added(__libc_memalign(alignment, size));
}

UITOOLKIT_STANDS_IN int posix_memalign(void **result, size_t alignment, size_t size) noexcept
{
    if (alignment % sizeof(void *) != 0 || (alignment & (alignment - 1)) != 0 || alignment == 0)
        return EINVAL;
    void *const block = added(__libc_memalign(alignment, size));
    if (!block)
        return ENOMEM;
    *result = block;
    return 0;
}

UITOOLKIT_STANDS_IN void free(void *block) noexcept
{
    removing(block);
    __libc_free(block);
}

#endif
