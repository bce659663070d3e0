#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// What the fuzz targets share. A target is one function that takes any bytes; a broken promise aborts.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace velmora::fuzz
{

inline void require(bool kept, const char *promise)
{
    if (kept) return;
    std::fprintf(stderr, "broken: %s\n", promise);
    std::abort();
}

/// Bytes as a text: UTF-8, what is none being replaced.
inline QString textOf(const std::uint8_t *data, std::size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
}

} // namespace velmora::fuzz
