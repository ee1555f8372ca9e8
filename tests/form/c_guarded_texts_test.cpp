// The C interface touches no byte outside of the texts and buffers that it is given (support/guarded_text.h).
#include "form/opened_dialog.h"
#include "support/guarded_text.h"

using namespace testing_support;

namespace {

// Has the function fill buffers of all sizes around a limit; what it says of each is as the buffer is.
template <class FunctionTP> void fillAll(FunctionTP&& fill)
{
    for (const auto side : { GuardedBufferCL::GuardBehind, GuardedBufferCL::GuardBefore }) {
        for (const size_t size : { 1, 2, 3, 49, 50, 51, 127, 128, 129, 258, 259, 260, 261, 1000 }) {
            const GuardedBufferCL buffer(size, side);
            size_t needed = 0;
            const panelkit_status status = fill(buffer.DataM(), size, &needed);
            if (status == PANELKIT_OK || status == PANELKIT_ERROR_BUFFER) {
                EXPECT_EQ(status == PANELKIT_OK, needed <= size) << needed << " " << size;
                EXPECT_LT(strnlen(buffer.DataM(), size), std::min(needed, size));
            }
        }
    }
}

} // namespace

TEST(CGuardedTexts, AllThatTakesOrFillsATextKeepsToIt)
{
    OpenedDialogCL opened;
    panelkit_dialog* const dialog = opened.dialog;
    for (const size_t limit : { 50, 128, 260 }) {
        for (const std::string& gbk : textsAround(limit)) {
            SCOPED_TRACE(gbk.size());
            const std::string utf8 = slGbkToUtf8(gbk.c_str());
            for (const auto side : { GuardedBufferCL::GuardBehind, GuardedBufferCL::GuardBefore }) {
                const GuardedBufferCL text(utf8, side);
                const char* const from = text.DataM();
                panelkit_dialog* none = nullptr;
                EXPECT_NE(panelkit_open(from, nullptr, &none), PANELKIT_OK);
                EXPECT_EQ(panelkit_set_title(dialog, from), PANELKIT_OK);
                panelkit_set_text(dialog, 13, from);
                panelkit_set_text(dialog, 16, from);
                panelkit_set_text(dialog, 23, from);
                panelkit_set_caption(dialog, 41, from);
                panelkit_set_path(dialog, 46, from);
                panelkit_restore(dialog, 13, from);
                size_t refused = 0;
                panelkit_restore_all(dialog, from, &refused);
                EXPECT_EQ(panelkit_set_message_text(PANELKIT_MESSAGE_INT_TOO_SMALL, from), PANELKIT_OK);
                panelkit_add_line(dialog, 17, from, 1);
            }
            fillAll([&](char* to, size_t size, size_t* needed) {
                return panelkit_get_title(dialog, to, size, needed);
            });
            fillAll([&](char* to, size_t size, size_t* needed) {
                return panelkit_save_all(dialog, to, size, needed);
            });
            for (const int id : { 13, 16, 23, 41, 46 }) {
                for (const auto get :
                    { &panelkit_get_text, &panelkit_get_caption, &panelkit_get_path, &panelkit_save }) {
                    fillAll([&](char* to, size_t size, size_t* needed) {
                        return get(dialog, id, to, size, needed);
                    });
                }
            }
            fillAll([](char* to, size_t size, size_t* needed) {
                return panelkit_get_message_text(PANELKIT_MESSAGE_INT_TOO_SMALL, to, size, needed);
            });
            fillAll([&](char* to, size_t size, size_t* needed) {
                return panelkit_get_line(dialog, 17, 3, to, size, needed);
            });
        }
    }
    panelkit_set_message_text(PANELKIT_MESSAGE_INT_TOO_SMALL, nullptr);
}
