#pragma once

#include <cstddef>

/*!
    Counts the bytes that the whole process holds on the heap, by standing in for the C library's allocation functions.
    That is exact and the same from run to run, which the library's own statistics are not.

    Counting costs time, so it is off but for the passes that ask for it; only differences between two readings within
    one pass mean anything.
*/
namespace AllocationCounter {

//! False where another tool has taken the allocation functions over (a sanitiser) or the C library is not GNU's.
bool isAvailable();

void start();
void stop();

//! Bytes allocated less bytes freed since start(), bookkeeping of the heap included. May be negative.
std::ptrdiff_t liveBytes();

} // namespace AllocationCounter
