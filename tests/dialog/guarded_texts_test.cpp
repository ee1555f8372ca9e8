// No function touches a byte outside of the text buffers that it is given: of 260 bytes, of 128, of 50, and
// of a size that is said. In front of the buffers or behind them lies memory whose use ends the program.
#include "baselib/helpers.h"
#include "baselib/io.h"
#include "baselib/path.h"
#include "baselib/string.h"
#include "controls/text/text_box.h"
#include "dialog/valued_dialog.h"
#include "pictures/bmp_record.h"
#include "support/guarded_text.h"

using namespace testing_support;

namespace {

constexpr GuardedBufferCL::Side Sides[] = { GuardedBufferCL::GuardBehind, GuardedBufferCL::GuardBefore };
constexpr int Sizes[] = { 50, 128, 260 };

// What the function writes into a buffer of that size.
template <class FunctionTP> std::string filled(int size, FunctionTP&& fill)
{
    std::string texts[2];
    for (const auto side : Sides) {
        const GuardedBufferCL buffer(static_cast<size_t>(size), side);
        fill(buffer.DataM());
        texts[side] = std::string(buffer.DataM(), strnlen(buffer.DataM(), buffer.SizeM()));
        EXPECT_LT(texts[side].size(), static_cast<size_t>(size)) << "no zero at its end";
    }
    EXPECT_EQ(texts[0], texts[1]);
    return texts[0];
}

// Has the function use the text where not a byte around it may be touched.
template <class FunctionTP> void given(const std::string& text, FunctionTP&& use)
{
    for (const auto side : Sides) {
        use(const_cast<const char*>(GuardedBufferCL(text, side).DataM()));
    }
}

std::string cut(const std::string& text, int size)
{
    return text.substr(0, slGbkCutLength(text.data(), text.size(), static_cast<size_t>(size) - 1));
}

} // namespace

TEST(GuardedTexts, Copies)
{
    for (const int size : Sizes) {
        for (const std::string& text : textsAround(static_cast<size_t>(size))) {
            SCOPED_TRACE(text.size());
            given(text, [&](const char* from) {
                EXPECT_EQ(filled(size, [&](char* to) { slCopyText(to, size, from); }), cut(text, size));
                EXPECT_EQ(filled(size,
                              [&](char* to) { slCopyText(to, size, std::string_view(from, text.size())); }),
                    cut(text, size));
                VrStringCL string;
                string.AddStringM(from);
                EXPECT_EQ(filled(size, [&](char* to) { string.GetStringM(to, size); }), cut(text, size));
                EXPECT_EQ(filled(260, [&](char* to) { string.GetStringM(to); }), cut(text, 260));
                EXPECT_EQ(filled(size, [&](char* to) { string.ValueM().GetM(to, size); }), cut(text, size));
                const ValueTextCL value { from };
                EXPECT_EQ(filled(size, [&](char* to) { value.GbkM(to, size); }), cut(text, size));
                EXPECT_LE(filled(size, [&](char* to) { value.Utf8M(to, size); }).size(), size_t(size));
            });
            for (const auto side : Sides) {
                const GuardedBufferCL buffer(text, side);
                slCutText(buffer.DataM(), size - 1);
                EXPECT_EQ(buffer.DataM(), cut(text, size));
            }
        }
    }
}

TEST(GuardedTexts, PathsAndNamesOfLists)
{
    for (const std::string& text : textsAround(260)) {
        SCOPED_TRACE(text.size());
        given(text, [&](const char* from) {
            EXPECT_EQ(filled(260, [&](char* to) { slGetFileExtension(("a." + text).c_str(), to); }),
                cut(text, 260));
            EXPECT_EQ(filled(260, [&](char* to) { slCatFileNameWithPath(from, "", to); }).size() > 0,
                !text.empty());
            EXPECT_EQ(filled(260, [&](char* to) { slCatFileNameWithPath("", from, to); }), cut(text, 260));
            EXPECT_FALSE(filled(260, [&](char* to) { slCatFileNameWithPath(from, from, to); }).size() > 259);
            EXPECT_FALSE(filled(260, [&](char* to) { slGetArrBeginStr(to, from); }).empty());
            EXPECT_FALSE(filled(260, [&](char* to) { slGetArrIndexStr(to, from); }).empty());
            EXPECT_FALSE(filled(260, [&](char* to) { slGetArrEndStr(to, from); }).empty());
            slGetFileName(from);
            DVrBmpCL picture;
            picture.SetBmpNameM(from);
            EXPECT_EQ(filled(260, [&](char* to) { picture.GetBmpNameM(to); }), cut(text, 260));
            DVrBmpArr pictures;
            EXPECT_EQ(filled(260, [&](char* to) { pictures.GetBmpNameM(0, to); }), "");
        });
    }
}

TEST(GuardedTexts, LinesOfFiles)
{
    for (const int size : Sizes) {
        for (const std::string& text : textsAround(static_cast<size_t>(size))) {
            SCOPED_TRACE(text.size());
            const TempFile file(text + "\n");
            VrIOCL io;
            const auto open = [&] { io.OpenM(file.path(), "r"); };
            const std::string line = filled(size, [&](char* to) {
                open();
                io.InputGetsM(to, size);
            });
            EXPECT_LE(line.size(), std::min(text.size(), static_cast<size_t>(size) - 1));
            EXPECT_EQ(filled(size,
                          [&](char* to) {
                              open();
                              io.InputSM(to, size, 0);
                          }),
                line);
            filled(260, [&](char* to) {
                open();
                io.InputSM(to, -1, 0);
            });
            EXPECT_FALSE(filled(260, [&](char* to) { io.GetFilePathM(to); }).empty());
        }
    }
    for (const std::string& text : textsAround(260)) {
        VrIOCL io; // Where a text is from may be a long path.
        given(text + "/a", [&](const char* path) {
            io.OpenM(std::make_shared<const FileTextCL>("1"), path);
            EXPECT_EQ(filled(260, [&](char* to) { io.GetFilePathM(to); }), cut(text + "/", 260));
        });
    }
}

TEST(GuardedTexts, ValuesOfControls)
{
    ValuedDialogCL dialog;
    auto& edit = dialog.ControlM<DuSingleEditCL>(13);
    auto& combo = dialog.ControlM<DuComboBoxCL>(23);
    auto& values = dialog.ValuesM();
    for (const std::string& text : textsAround(260)) {
        SCOPED_TRACE(text.size());
        simpleValD range {};
        range.numbers[1] = 20000;
        edit.SetRangeM(range);
        given(text, [&](const char* from) {
            dialog.SetSingleEditValM(13, from);
            edit.SetValueM(from);
            EXPECT_EQ(filled(260, [&](char* to) { EXPECT_EQ(edit.GetValueM(to), 1); }), cut(text, 260));
            EXPECT_EQ(filled(260, [&](char* to) { EXPECT_EQ(dialog.GetSingleEditValM(13, to), 1); }),
                cut(text, 260));
            for (const int size : Sizes) {
                EXPECT_EQ(
                    filled(size, [&](char* to) { values.TextM(13, to, size); }), cut(cut(text, 260), size));
                EXPECT_LE(
                    filled(size, [&](char* to) { values.Utf8TextM(13, to, size); }).size(), size_t(size));
            }
            combo.ResetContent();
            combo.AddItemM(0, from);
            combo.SetSelM(0);
            int index = 0;
            int data = 0;
            EXPECT_EQ(filled(260,
                          [&](char* to) {
                              to[0] = '\0'; // For an empty text nothing is written.
                              combo.GetCurItemM(&index, &data, to);
                          }),
                cut(text, 260));
            edit.SetDescriptM(from);
            EXPECT_EQ(edit.GetDescriptM(), cut(text, 128));
            dialog.AddItemM(17, 1, from);
            dialog.SetAccessibleNameM(13, ValueTextCL(from));
            dialog.SetLanguageM(from);
            DuBasicDialogCL other;
            other.SetConfigFileM(from);
        });
        for (const auto side : Sides) {
            const GuardedBufferCL buffer(sizeof(simpleValD), side); // Without a zero anywhere.
            auto& value = *reinterpret_cast<simpleValD*>(buffer.DataM());
            EXPECT_EQ(dialog.SetSingleEditValM(13, value), 1);
            EXPECT_EQ(dialog.GetSingleEditValM(13, &value), ValidValue);
            EXPECT_EQ(std::string(value.text), std::string(259, '#'));
        }
    }
}

TEST(GuardedTexts, OfDescriptionsAndTextBoxes)
{
    PlainWindowCL parent;
    DuTextBox box;
    box.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(0, 0, 200, 30), &parent, 5);
    DuSingleEditCL control;
    for (const int size : { 50, 128 }) {
        for (const std::string& text : textsAround(static_cast<size_t>(size))) {
            SCOPED_TRACE(text.size());
            given(text, [&](const char* from) {
                box.SetStringM(from, "%s");
                EXPECT_EQ(filled(50, [&](char* to) { box.GetStringM(to); }), cut(text, 50));
                given(text + "%d", [&](const char* format) { box.SetIntM(1, format); });
                control.SetDescriptM(from);
                EXPECT_EQ(control.GetDescriptM(), cut(text, 128));
                box.SetWindowText(from);
                EXPECT_EQ(filled(50, [&](char* to) { box.GetStringM(to); }), cut(text, 50));
                EXPECT_LE(filled(size, [&](char* to) { box.GetWindowText(to, size); }).size(), size_t(size));
            });
        }
    }
}
