#pragma once
#include "baselib/call_ref.h"
#include "pictures/rotation.h"
#include <cstdint>

// The key of a picture without transparent pixels.
constexpr std::int64_t NoKey = -1;

// Fills a block with the picture at the block's size: smaller by the average of what each pixel covers,
// larger by a cubic curve through the pixels, each direction on its own. key: 0xRRGGBB, the colour of the
// pixels that let the background through, or NoKey. Their colour mixes into no other: each pixel of the
// result is wholly the key, where less than half of it is covered, or a mixture of the others, and never the
// key by chance. A block without pixels: nothing happens; an empty picture gives black, or the key.
PANELKIT_API void slResample(const PixelBlockCL& picture, const PixelBlockCL& onto, std::int64_t key = NoKey);

// The same of a picture (width by height) that is never whole in memory: rowAt gives each of its rows, asked
// for once and from the first one on; it need last no longer than until the next.
void slResampleRows(int width, int height, CallRefCL<const std::uint32_t*(int y)> rowAt,
    const PixelBlockCL& onto, std::int64_t key);
