// How much faster regions of pictures are made than in plain steps: the pixel-exact one of a noisy picture
// than run by run, the one traced along a long boundary than as one polygon.
#include "measures.h"
#include "pictures/region_functions.h"
#include "support/plain_region.h"

namespace {

constexpr int Rounds = 9;
constexpr int NoisySize = 512;
constexpr int Specks = 3000;
constexpr int SpiralSize = 256;
const Colour White { 255, 255, 255 };

// In turns, so that whatever else the machine does meets both. Whether both give the same region.
template <class PlainTP, class FastTP> bool measure(const char* name, PlainTP&& makePlain, FastTP&& makeFast)
{
    CRgn plain;
    CRgn fast;
    std::vector<double> plainTimes;
    std::vector<double> fastTimes;
    for (int i = 0; i <= Rounds; ++i) {
        plain.DeleteObject();
        const double plainTime = secondsOf([&] { plain.Attach(makePlain()); });
        const double fastTime = secondsOf([&] { makeFast(&fast); });
        if (i > 0) {
            plainTimes.push_back(plainTime);
            fastTimes.push_back(fastTime);
        }
    }
    if (!plain.EqualRgn(&fast)) {
        std::fprintf(stderr, "%s: the regions differ\n", name);
        return false;
    }
    tellSpeedup(name, plainTimes, fastTimes);
    return true;
}

} // namespace

int main()
{
    const Pixels noisy = noisyPicture(NoisySize, Specks);
    const Pixels winding = spiral(SpiralSize);
    const bool isExact = measure(
        "region_pixel_exact_speedup", [&] { return plainPixelRegion(noisy, White); },
        [&](CRgn* rgn) { slCreatRgnByPixel(noisy.w, noisy.h, noisy.bytes.data(), White.data(), rgn); });
    const bool isTraced = measure(
        "region_trace_speedup", [&] { return plainTracedRegion(winding); },
        [&](CRgn* rgn) { slCreateRgnAny(winding.w, winding.h, winding.bytes.data(), White.data(), rgn); });
    return isExact && isTraced ? 0 : 1;
}
