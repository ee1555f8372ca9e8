// A dialog of the largest example is built, shown, used and destroyed over and over: nothing of it stays. The
// environment says how often (scripts/soak): PANELKIT_SOAK_ROUNDS, PANELKIT_SOAK_EVERY.
#include "dialog/basic_dialog.h"
#include "form/panelkit_c.h"
#include "soak/soak_numbers.h"
#include "support/all.h"
#include "support/visual_styles.h"
#include <gtest/gtest.h>
#include <psapi.h>

using namespace testing_support;

namespace {

constexpr const char* LargestExample = PANELKIT_EXAMPLES "/workshop/machine.dlg";

std::size_t privateBytes()
{
    PROCESS_MEMORY_COUNTERS counters {};
    ::K32GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage;
}

// What the process has at one time.
struct HeldCL
{
    HeapUse heap { LiveHeapM() };
    std::size_t bytes { privateBytes() };
    int windows { LiveWindowsM() };
    int objects { LiveGdiObjectsM() };

    void PrintM(int round, std::size_t platforms) const
    {
        std::printf("%8d rounds: %7zu blocks, %9zu bytes in them, %7zu KiB private, %4d windows, %4d GDI "
                    "objects; plain windows leave %zu blocks\n",
            round, heap.blocks, heap.bytes, bytes / 1024, windows, objects, platforms);
        std::fflush(stdout);
    }
};

// As an application in C++ uses a dialog.
void useHost(int round)
{
    DuBasicDialogCL dialog;
    ASSERT_EQ(dialog.SetConfigFileM(LargestExample), 1);
    ASSERT_EQ(dialog.CreateM(), 1);
    dialog.ShowWindow(SW_SHOWNA);
    dialog.UpdateWindow();
    const auto all = dialog.ValuesM().AllM();
    ASSERT_FALSE(all.empty());
    ASSERT_TRUE(dialog.ValuesM().SetAllM(all).empty());
    for (const auto& [id, value] : all) {
        if ((dialog.ValuesM().PartsM(id) & NumberPart) != 0) {
            dialog.ValuesM().SetIntM(id, round % 10);
            dialog.ValuesM().IntM(id);
        }
    }
    PumpPending();
    if (round % 3 == 0) {
        dialog.DestroyM();
    }
    dialog.DestroyWindow();
}

// The same by the C interface.
void useForm(int round)
{
    panelkit_dialog* dialog = nullptr;
    ASSERT_EQ(panelkit_open(LargestExample, nullptr, &dialog), PANELKIT_OK);
    ASSERT_EQ(panelkit_show(dialog), PANELKIT_OK);
    char saved[4000];
    size_t refused = 1;
    ASSERT_EQ(panelkit_save_all(dialog, saved, sizeof saved, nullptr), PANELKIT_OK);
    ASSERT_EQ(panelkit_restore_all(dialog, saved, &refused), PANELKIT_OK);
    ASSERT_EQ(panelkit_process_pending(nullptr), PANELKIT_OK);
    if (round % 3 == 0) {
        panelkit_close(dialog, 1);
    }
    ASSERT_EQ(panelkit_destroy(dialog), PANELKIT_OK);
    PumpPending();
}

// What the window system itself leaves of as many multi-line edits with a text as the example has, and, with
// visual styles, of buttons: made, shown and destroyed by plain calls.
void usePlainWindows()
{
    PlainWindow parent;
    parent.AddM(L"Edit", L"text", WS_BORDER | ES_MULTILINE, { 0, 0, 90, 40 }, 1);
    parent.AddM(L"Button", L"text", BS_GROUPBOX, { 0, 50, 90, 90 }, 2);
    ::RedrawWindow(parent.HandleM(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

// Blocks a round.
double blocksOfPlainWindows(int rounds)
{
    const auto use = [](int times) {
        for (int i = 0; i < times; ++i) {
            usePlainWindows();
        }
    };
    use(5);
    const std::size_t before = LiveHeapM().blocks;
    use(rounds);
    const std::size_t after = LiveHeapM().blocks;
    return after > before ? static_cast<double>(after - before) / rounds : 0;
}

} // namespace

TEST(Soak, RoundsOfTheLargestExampleLeaveNothing)
{
    const int rounds = soakNumber("PANELKIT_SOAK_ROUNDS", 16);
    const int every = soakNumber("PANELKIT_SOAK_EVERY", rounds);
    const int first = std::min(rounds / 2, 100);
    const double plainEach = blocksOfPlainWindows(first);
    int round = 0;
    const auto run = [&round](int until) {
        for (; round < until && !testing::Test::HasFatalFailure(); ++round) {
            round % 2 == 0 ? useHost(round) : useForm(round);
        }
    };
    run(first);
    const HeldCL before;
    before.PrintM(round, 0);
    while (round < rounds && !HasFailure()) {
        run(std::min(rounds, round + every - round % every));
        const auto done = static_cast<std::size_t>(round - first);
        const auto plain = static_cast<std::size_t>(plainEach * static_cast<double>(done));
        const HeldCL now;
        now.PrintM(round, plain);
        EXPECT_EQ(now.windows, before.windows);
        EXPECT_EQ(now.objects, before.objects);
        // A leak in one round of ten is seen.
        EXPECT_LT(now.heap.blocks, before.heap.blocks + plain + done / 10 + 20);
        EXPECT_LT(now.heap.bytes, before.heap.bytes + plain * 50 + done * 20 + 20000);
        EXPECT_LT(now.bytes, before.bytes + plain * 64 + done * 50 + (4U << 20));
    }
}
