#pragma once

#include <malloc.h>

#include <cstddef>

namespace Tamrivo::Bench
{

/// Bytes of the heap that are in use.
inline std::size_t HeapBytes()
{
    const struct mallinfo2 heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

} // namespace Tamrivo::Bench
