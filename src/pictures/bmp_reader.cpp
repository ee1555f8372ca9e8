#include "pictures/bmp_reader.h"
#include "baselib/helpers.h"
#include "pictures/bmp_rows.h"
#include <memory>

int slDecodeBmp(const void* data, std::size_t size, int* w, int* h, unsigned char** pixels)
{
    if (w == nullptr || h == nullptr || pixels == nullptr) {
        return 0;
    }
    *w = 0;
    *h = 0;
    *pixels = nullptr;
    const BmpBytes file { static_cast<const unsigned char*>(data), data != nullptr ? size : 0 };
    const BmpRowsCL rows(file);
    if (!rows.IsGoodM()) {
        return 0;
    }
    const std::size_t rowSize = static_cast<std::size_t>(rows.WidthM()) * 3;
    auto* const buffer
        = static_cast<unsigned char*>(slMalloc(rowSize * static_cast<std::size_t>(rows.HeightM())));
    if (buffer == nullptr) {
        return 0;
    }
    for (int y = 0; y < rows.HeightM(); ++y) {
        rows.ReadRowM(y, buffer + static_cast<std::size_t>(y) * rowSize);
    }
    *w = rows.WidthM();
    *h = rows.HeightM();
    *pixels = buffer;
    return 1;
}

int slLoadBmpTexture(const char* file, int* w, int* h, unsigned char** pixels)
{
    std::size_t size = 0;
    const std::unique_ptr<char[]> bytes = slReadBmpFile(file, &size);
    return slDecodeBmp(bytes.get(), size, w, h, pixels);
}

int slLoadBmpPicture3D(const char* file, int* w, int* h, unsigned char** pixels)
{
    return slLoadBmpTexture(file, w, h, pixels);
}

namespace {

int judged(const void* data, std::size_t held, std::size_t size, int (*judge)(const BmpBytes&, std::size_t))
{
    static_assert(BmpBeginning == BmpHeadersSize, "more is not looked at");
    if (data == nullptr) {
        return 0;
    }
    if (held < size && held < BmpBeginning) {
        return -1;
    }
    return judge({ static_cast<const unsigned char*>(data), size }, held);
}

} // namespace

int slIsBmp(const void* data, std::size_t held, std::size_t size)
{
    return judged(data, held, size, &slJudgeBmp);
}

int slIsShownBmp(const void* data, std::size_t held, std::size_t size)
{
    return judged(data, held, size, &slJudgeShownBmp);
}
