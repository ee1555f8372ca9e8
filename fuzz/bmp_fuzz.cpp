// Feeds broken .bmp files to the reader; run by scripts/fuzz or by hand with the corpus in fuzz/corpus/bmp.
#include "baselib/helpers.h"
#include "pictures/bmp_header.h"
#include "pictures/bmp_reader.h"
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    int w = 0;
    int h = 0;
    unsigned char* pixels = nullptr;
    const int result = slDecodeBmp(data, size, &w, &h, &pixels);
    const bool whole = w > 0 && h > 0 && pixels != nullptr;
    const bool empty = w == 0 && h == 0 && pixels == nullptr;
    if (result == 1 ? !whole : !empty) {
        std::abort();
    }
    if (whole) {
        // Every byte of the result must be there.
        volatile unsigned char last
            = pixels[static_cast<std::size_t>(w) * static_cast<std::size_t>(h) * 3 - 1];
        static_cast<void>(last);
    }
    slFree(pixels);
    slCanPlatformLoadBmp(BmpBytes { data, size });
    return 0;
}
