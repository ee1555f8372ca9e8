// Calls of the public interface by chance, with ids that exist and that don't. The environment says how many
// (scripts/soak): PANELKIT_SOAK_OPERATIONS, from which seed on: PANELKIT_SOAK_SEED. Each 1,000 begin anew
// with the next seed: what fails is told with that and its step, and can be had again with that seed and
// 1,000 operations.
#include "dialog/every_kind_sections.h"
#include "dialog/valued_dialog.h"
#include "soak/random_operations.h"
#include "soak/soak_numbers.h"
#include "soak/told_step.h"
#include "support/all.h"
#include <gtest/gtest.h>

using namespace testing_support;

TEST(Soak, OperationsByChanceBreakNothing)
{
    constexpr int Steps = 1000;
    const int operations = soakNumber("PANELKIT_SOAK_OPERATIONS", 2000);
    const auto first = static_cast<unsigned>(soakNumber("PANELKIT_SOAK_SEED", 1));
    const SmallPictureCL picture(0x0000FF, 12, 12);
    const std::string sections = sectionsOfEveryKind(picture.path(), "text")
        + "[随窗口变化]\n3\n0\n16 0 0 1 1\n24 1 0 1 1\n15 0 0 1 0\n";
    const std::string others = valuedSections(picture.path());
    const MessageBoxWatcher watcher;
    const ToldStepCL telling;
    const int windows = LiveWindowsM();
    HeapUse heapOnce {};
    int objectsOnce = 0;
    int blockOnce = 0;
    for (int done = 0; done < operations && !HasFailure(); done += Steps) {
        const unsigned seed = first + static_cast<unsigned>(done / Steps);
        {
            RandomOperationsCL world(seed, sections, others);
            for (int step = 0; step < Steps && !HasFailure(); ++step) {
                const auto& operation = world.ChooseM();
                ToldStepCL::NoteM(seed, step, "", operation.name);
                operation.run(world);
                EXPECT_TRUE(world.PickM().IsRoomKeptM()) << ToldStepCL::TextM();
                if (step % 200 == 0) {
                    PumpPending();
                }
            }
        }
        PumpPending();
        EXPECT_EQ(LiveWindowsM(), windows) << "seed " << seed;
        const int block = done / Steps + 1;
        if (block % 50 == 0) {
            const HeapUse heap = LiveHeapM();
            const int objects = LiveGdiObjectsM();
            std::printf("%8d operations: %7zu blocks, %9zu bytes in them, %d GDI objects\n", done + Steps,
                heap.blocks, heap.bytes, objects);
            std::fflush(stdout);
            if (heapOnce.blocks == 0) { // By now the system has what it keeps.
                heapOnce = heap;
                objectsOnce = objects;
                blockOnce = block;
            }
            EXPECT_LE(objects, objectsOnce + 20) << "seed " << seed;
            // The system keeps a block for each multi-line edit, and other fonts make it keep more.
            const auto blocks = static_cast<std::size_t>(block - blockOnce);
            EXPECT_LE(heap.blocks, heapOnce.blocks + blocks * 15 + 100) << "seed " << seed;
        }
    }
}
