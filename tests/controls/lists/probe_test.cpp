#include "support/shown_dialog.h"
#include "support/faults.h"
using namespace testing_support;
TEST(Probe, Space)
{
    FaultsCL faults;
    for (DWORD style : { 0x8ul, 0x800ul, 0x808ul, 0x0ul, 0x4000ul }) // MULTIPLESEL EXTENDEDSEL both none NOSEL
        for (DWORD more : { 0ul, 0x2ul, 0x10ul, 0x20ul, 0x200ul, 0x40ul | 0x10ul, 0x2010ul })
            for (int how = 0; how < 4; ++how) {
                PlainWindow window;
                if (how == 3 && (more & 0x30) == 0) continue;
                HWND list = window.AddM(L"ListBox", L"", 0x1 | WS_VSCROLL | style | more, { 10, 10, 110, 90 }, 7);
                if (how == 1) { SendMessageW(list, LB_ADDSTRING, 0, (LPARAM)L"a"); SendMessageW(list, LB_RESETCONTENT, 0, 0); }
                if (how == 2) { SendMessageW(list, LB_ADDSTRING, 0, (LPARAM)L"a"); SendMessageW(list, LB_DELETESTRING, 0, 0); }
                ActivateM(window.HandleM()); FocusM(list);
                size_t before = faults.SeenM().size();
                for (const WORD key : { VK_SPACE, VK_HOME, VK_SPACE, VK_DOWN, VK_SPACE, VK_END, VK_SPACE, VK_PRIOR, VK_SPACE, VK_NEXT, VK_SPACE })
                { KeyM(key); PumpPending(); }
                ChordM(VK_SHIFT, VK_SPACE); ChordM(VK_SHIFT, VK_DOWN); ChordM(VK_CONTROL, VK_SPACE);
                ClickM(list, 20, 20); KeyM(VK_SPACE); PumpPending();
                for (size_t i = before; i < faults.SeenM().size(); ++i)
                    fprintf(stderr, "style %lx more %lx how %d: %s\n", style, more, how, faults.SeenM()[i].c_str());
            }
    fprintf(stderr, "in all %zu\n", faults.SeenM().size());
}
