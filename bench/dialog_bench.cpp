// How building, stacking and fonts grow with the number of controls: twice as many should take about twice
// the time, where a look-up by id in each step would make it four times.
#include "dialog/basic_dialog.h"
#include "support/test_dialog.h"
#include "timing.h"
#include <cstdio>
#include <string>

namespace {

constexpr int Rounds = 3;

std::string description(int count)
{
    std::string text = HeaderSections + ("[标题]\n" + std::to_string(count) + "\n0\n");
    for (int i = 0; i < count; ++i) {
        // Stacked quite otherwise than created.
        text += std::to_string((i * 7919) % count) + " " + std::to_string(1000 + i)
            + " 20 30 120 20 1\nx\n0 -1 0 0\n";
    }
    return text;
}

// The median time of a build in mode 1, and whether the smallest window index came to the top.
double buildTime(int count, bool* isStacked)
{
    TestDialogCL dialog(description(count));
    std::vector<double> times;
    for (int round = 0; round < Rounds; ++round) {
        dialog.DestroyM();
        const auto begin = std::chrono::steady_clock::now();
        dialog.InitDlgM(&dialog, 1);
        times.push_back(secondsSince(begin));
    }
    *isStacked = ::GetDlgCtrlID(::GetWindow(dialog.m_hWnd, GW_CHILD)) == 1000;
    return median(times);
}

} // namespace

int main()
{
    bool isHalfStacked = false;
    bool isWholeStacked = false;
    const double half = buildTime(2000, &isHalfStacked);
    const double whole = buildTime(4000, &isWholeStacked);
    if (!isHalfStacked || !isWholeStacked) {
        std::fprintf(stderr, "the controls are not stacked by window index\n");
        return 1;
    }
    std::fprintf(stderr, "2,000 labels %.1f ms, 4,000 labels %.1f ms\n", half * 1000, whole * 1000);
    std::printf("{\"name\":\"dialog_4000_over_2000\",\"value\":%.3f,\"unit\":\"x\",\"better\":\"lower\"}\n",
        whole / half);
    return 0;
}
