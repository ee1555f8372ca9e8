// Calls of the reader in any order, in both modes, over any bytes; each stores within what it was given. Run
// by scripts/fuzz with the corpus in fuzz/corpus/io. The first byte of an input says how many calls follow
// and the mode, the rest is the file.
#include "baselib/io.h"
#include "containers/int_arr.h"
#include "memory_file.h"
#include "pictures/bmp_record.h"
#include <algorithm>
#include <vector>

namespace {

void expect(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

void call(VrIOCL& io, unsigned what)
{
    const auto size = static_cast<int>(what / 16);
    int ints[4] = { 1, 2, 3, 4 };
    float reals[2] = {};
    std::vector<char> buffer(static_cast<std::size_t>(size)); // And not a byte more.
    char bytes[3] = {};
    CharArr text;
    std::string_view item;
    switch (what % 16) {
    case 0:
        io.InputDM(&ints[0], nullptr, &ints[1], &ints[2]);
        break;
    case 1:
        io.InputInt3DM(ints);
        break;
    case 2:
        io.InputInt2DM(ints);
        break;
    case 3:
        io.InputRM(&reals[0], &reals[1]);
        break;
    case 4:
        io.InputPoint2DM(reals);
        break;
    case 5:
        io.InputCM(&bytes[0], &bytes[1]);
        break;
    case 6:
        io.InputGetsM(buffer.data(), size);
        break;
    case 7:
        io.InputSM(buffer.data(), size, 1);
        break;
    case 8:
        io.InputTextM(&text);
        break;
    case 9:
        io.InputItemM(&item);
        expect(item.size() <= io.SizeM());
        break;
    case 10:
        io.SkipLineM();
        break;
    case 11:
        io.SkipSomeLinesM(size);
        break;
    case 12:
        io.SkipEndLineM();
        break;
    case 13: {
        DVrBmpArr pictures;
        IntArr map;
        pictures.FmInputScpFileM(&io, &map);
        break;
    }
    case 14: {
        DVrBmpCL picture;
        picture.FmInputEvrFileM(&io);
        break;
    }
    default:
        io.SearchStrM(size % 2 == 0 ? "[]" : "\xB1\xEA");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const std::size_t calls = std::min<std::size_t>(data[0] / 2, size - 1);
    const MemoryFileCL file(data + 1 + calls, size - 1 - calls);
    VrIOCL io;
    io.OpenM(file.PathM().c_str(), data[0] % 2 == 0 ? "r" : "rb");
    for (std::size_t i = 0; i < calls; ++i) {
        call(io, data[1 + i]);
        expect(io.PositionM() <= io.SizeM() && io.BytesLeftM() <= size);
    }
    return 0;
}
