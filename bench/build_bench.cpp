// What building and destroying a mixed dialog cost over plain calls that make the same windows.
// build_bench [short|requests]: short: few rounds of few sizes, for a test; requests: no times, but the parts
// named in the trace of the window system's server, for scripts/bench to count there.
#include "measures.h"
#include "raw_dialog.h"
#include "seen_windows.h"
#include "support/pump.h"
#include <functional>

using namespace mixed;

namespace {

struct TimesCL
{
    std::vector<double> built;
    std::vector<double> raw;
    std::vector<double> rawInOrder;
    std::vector<double> destroyed;
    std::vector<double> rawDestroyed;
};

bool areAlike(HWND one, HWND other)
{
    auto mine = seenChildren(one);
    auto theirs = seenChildren(other);
    mine.push_back(seenWindow(one));
    theirs.push_back(seenWindow(other));
    for (size_t i = 0; i < mine.size() && i < theirs.size(); ++i) {
        if (mine[i] != theirs[i]) {
            std::fprintf(stderr, "window %u differs:\n%s\n%s\n", static_cast<unsigned>(i), mine[i].c_str(),
                theirs[i].c_str());
            return false;
        }
    }
    if (mine.size() != theirs.size() || mine.empty()) {
        std::fprintf(stderr, "%u windows, by plain calls %u\n", static_cast<unsigned>(mine.size()),
            static_cast<unsigned>(theirs.size()));
    }
    return mine.size() == theirs.size() && !mine.empty();
}

// Forth and back: of two rounds, each has another one before it in one and behind it in the other. What the
// display has to tell is dealt with before each, so that none pays for the one before.
void inTurn(int round, const std::vector<std::function<void()>>& runs)
{
    for (std::size_t i = 0; i < runs.size(); ++i) {
        testing_support::PumpPending();
        runs[round % 2 == 0 ? i : runs.size() - 1 - i]();
    }
}

// Builds in turn by the library and by plain calls, once more than it takes times.
bool measure(int count, int rounds, bool withOrder, TimesCL* times)
{
    const DescriptionFileCL file(description(count));
    for (int round = 0; round <= rounds; ++round) {
        HostCL host(file.path());
        RawDialogCL raw(count);
        RawDialogCL ordered(withOrder ? count : 0, true);
        double built = 0;
        double rawBuilt = 0;
        double inOrder = 0;
        inTurn(round,
            { [&] { built = secondsOf([&host] { host.BuildM(); }); },
                [&] { rawBuilt = secondsOf([&raw] { raw.BuildM(); }); },
                [&] { inOrder = secondsOf([&ordered] { ordered.BuildM(); }); } });
        if (round == 0
            && !(areAlike(host.m_hWnd, raw.HandleM())
                && (!withOrder || areAlike(host.m_hWnd, ordered.HandleM())))) {
            return false;
        }
        double destroyed = 0;
        double rawDestroyed = 0;
        inTurn(round,
            { [&] { destroyed = secondsOf([&host] { host.DestroyWindow(); }); },
                [&] { rawDestroyed = secondsOf([&raw] { raw.DestroyM(); }); } });
        if (round > 0) {
            times->built.push_back(built);
            times->raw.push_back(rawBuilt);
            times->rawInOrder.push_back(inOrder);
            times->destroyed.push_back(destroyed);
            times->rawDestroyed.push_back(rawDestroyed);
        }
    }
    return true;
}

// How much longer a window takes that is built into again and again than a new one.
void measureRebuilding(int count, int rounds)
{
    const DescriptionFileCL file(description(count));
    std::vector<double> again;
    std::vector<double> once;
    HostCL kept(file.path());
    kept.BuildM();
    for (int round = 0; round < rounds; ++round) {
        kept.DestroyM();
        HostCL fresh(file.path());
        inTurn(round,
            { [&] { again.push_back(secondsOf([&kept] { kept.BuildM(); })); },
                [&] { once.push_back(secondsOf([&fresh] { fresh.BuildM(); })); } });
    }
    tellRatio("rebuild_1000_over_build", again, once);
}

int markRequests()
{
    for (const int count : { 200, 1000 }) {
        const DescriptionFileCL file(description(count));
        for (int round = 0; round < 2; ++round) { // The first one loads what stays.
            HostCL host(file.path());
            RawDialogCL raw(count);
            RawDialogCL ordered(count, true);
            const std::string name = std::to_string(count) + (round == 0 ? "_first" : "");
            const auto mark = [&name](const char* part, auto&& run) {
                testing_support::PumpPending();
                markTrace(part + name, run);
            };
            // One after another: windows share a store of device contexts, which some would have to give up.
            mark("build_", [&host] { host.BuildM(); });
            mark("destroy_", [&host] { host.DestroyWindow(); });
            mark("build_raw_", [&raw] { raw.BuildM(); });
            mark("destroy_raw_", [&raw] { raw.DestroyM(); });
            mark("build_raw_in_order_", [&ordered] { ordered.BuildM(); });
            HostCL kept(file.path());
            kept.BuildM();
            kept.DestroyM();
            mark("rebuild_", [&kept] { kept.BuildM(); });
        }
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const std::string how = argc > 1 ? argv[1] : "";
    if (how == "requests") {
        return markRequests();
    }
    const bool isShort = how == "short";
    double built1000 = 0;
    double raw1000 = 0;
    for (const int count : { 100, 1000, 4000 }) {
        if (isShort && count > 1000) {
            continue;
        }
        TimesCL times;
        const int rounds = isShort ? 2 : count == 100 ? 22 : count == 1000 ? 12 : 8;
        if (!measure(count, rounds, count == 1000, &times)) {
            return 1;
        }
        const std::string name = "build_" + std::to_string(count);
        tellRatio(name + "_over_raw", times.built, times.raw);
        if (count == 1000) {
            tellRatio("build_1000_over_raw_in_order", times.built, times.rawInOrder);
            tellRatio("destroy_1000_over_raw", times.destroyed, times.rawDestroyed);
            built1000 = median(times.built);
            raw1000 = median(times.raw);
        } else if (count == 4000) {
            tell("build_4000_over_4_times_1000", median(times.built) / (4 * built1000), "x");
            tell("build_raw_4000_over_4_times_1000", median(times.raw) / (4 * raw1000), "x");
        }
    }
    measureRebuilding(1000, isShort ? 2 : 16);
    return 0;
}
