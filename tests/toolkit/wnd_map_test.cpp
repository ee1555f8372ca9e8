// Which object has a window: any handles, in any order, many of them in one another's way.
#include "toolkit/wnd.h"
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <random>

TEST(WndMap, FindsTheObjectOfEachWindowWhateverComesAndGoes)
{
    std::mt19937 random(5); // NOLINT: the same handles each time.
    std::map<HWND, std::unique_ptr<CWnd>> attached;
    const auto handle = [&random] {
        // No windows: nobody sends them anything. Lower halves that recur, upper ones that differ.
        const auto low = static_cast<unsigned>(random() % 400) * (random() % 2 == 0 ? 2U : 64U);
        return reinterpret_cast<HWND>(static_cast<UINT_PTR>(0x10000U * (0x4000 + random() % 3) + low));
    };
    for (int step = 0; step < 20000; ++step) {
        const HWND window = handle();
        const auto place = attached.find(window);
        ASSERT_EQ(CWnd::FromHandlePermanent(window), place == attached.end() ? nullptr : place->second.get());
        if (place == attached.end() && (step / 2000) % 2 == 0) {
            attached[window] = std::make_unique<CWnd>();
            ASSERT_TRUE(attached[window]->Attach(window));
        } else if (place != attached.end() && random() % 4 != 0) {
            ASSERT_EQ(place->second->Detach(), window);
            attached.erase(place);
        }
        if (step % 1000 == 0) {
            for (const auto& [known, object] : attached) {
                ASSERT_EQ(CWnd::FromHandlePermanent(known), object.get());
            }
        }
    }
    EXPECT_EQ(CWnd::FromHandlePermanent(nullptr), nullptr);
    for (const auto& [window, object] : attached) {
        object->Detach();
        EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr);
    }
}
