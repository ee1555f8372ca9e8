// Memory runs out while files are edited, checked, formatted and converted, and while texts are replaced.
#include "baselib/gbk_texts.h"
#include "baselib/message_catalogue.h"
#include "baselib/message_texts.h"
#include "check.h"
#include "commands.h"
#include "editing/description_editor.h"
#include "support/catalogue_file.h"
#include "support/description_files.h"
#include "support/failing_memory.h"
#include "support/temp_file.h"

using namespace testing_support;

namespace {

const std::string& twoKinds()
{
    static const std::string bytes = wholeFile(PANELKIT_SAMPLES "/two_kinds.dlg");
    return bytes;
}

// Requests fail while an edit is made, and while it is taken back and made again.
void expectEditedOrNot(const std::string& bytes, const std::function<EditResult(DescriptionEditorCL&)>& edit)
{
    std::string edited;
    const std::size_t failed = EachRequestFailsM(
        [&](std::size_t number) {
            DescriptionEditorCL editor(bytes);
            EXPECT_EQ(editor.ReplaceM({ { { 0, 0 }, "\n" } }, false), EditResult::Done);
            const std::string before(editor.BytesM());
            EXPECT_TRUE(editor.UndoM()); // What can be done again is lost only by another edit.
            FailingRequestCL failing(number);
            const auto result = UnlessMemoryEndsM([&] { return edit(editor); });
            bool hasFailed = failing.EndM();
            if (result) {
                EXPECT_EQ(*result, EditResult::Done);
                edited = edited.empty() ? std::string(editor.BytesM()) : edited;
            } else {
                EXPECT_EQ(editor.BytesM(), bytes);
                EXPECT_TRUE(editor.RedoM());
                EXPECT_EQ(editor.BytesM(), before);
                EXPECT_TRUE(editor.UndoM());
                EXPECT_EQ(edit(editor), EditResult::Done);
            }
            EXPECT_EQ(editor.BytesM(), edited);
            for (const bool isUndone : { true, false }) {
                const std::string now(editor.BytesM());
                const auto go = [&] { return isUndone ? editor.UndoM() : editor.RedoM(); };
                FailingRequestCL failingAgain(number);
                const auto done = UnlessMemoryEndsM(go);
                hasFailed = failingAgain.EndM() || hasFailed;
                EXPECT_TRUE(done ? *done : editor.BytesM() == now && go());
                EXPECT_EQ(editor.BytesM(), isUndone ? bytes : edited);
            }
            return hasFailed;
        },
        1 + bytes.size() / 300);
    EXPECT_GT(failed, 5U);
}

} // namespace

TEST(FilesWithoutMemory, AnEditIsMadeOrTheFileIsAsItWas)
{
    const std::string everyKind = wholeFile(PANELKIT_SAMPLES "/every_kind.dlg");
    expectEditedOrNot(everyKind, [](DescriptionEditorCL& editor) {
        return editor.SetM({ { LabelHeader, 0 }, "position", 1 }, "17");
    });
    expectEditedOrNot(everyKind, [](DescriptionEditorCL& editor) {
        return editor.InsertM({ LabelHeader, 1 });
    });
    expectEditedOrNot(everyKind, [](DescriptionEditorCL& editor) {
        return editor.DeleteM({ ComboBoxHeader, 0 });
    });
    expectEditedOrNot(everyKind, [](DescriptionEditorCL& editor) {
        return editor.DuplicateM({ TreeHeader, 0 }, 4711);
    });
    expectEditedOrNot(everyKind, [](DescriptionEditorCL& editor) {
        return editor.RenameM({ ComboBoxHeader, 0 }, 4711);
    });
}

TEST(FilesWithoutMemory, CheckFindsTheSameAfterwards)
{
    // The standard library's listing of a folder ends the program where it finds no memory.
    const char* const Nowhere = "/nowhere";
    const std::string bytes = wholeFile(PANELKIT_SAMPLES "/mistakes.dlg");
    const auto find = [&] {
        return checkText("mistakes.dlg", Nowhere, std::make_shared<const FileTextCL>(bytes))
            .TextM(Language::English, true);
    };
    const std::string all = find();
    const std::size_t failed = EachRequestFailsM(
        [&](std::size_t number) {
            FailingRequestCL failing(number);
            const auto found = UnlessMemoryEndsM(find);
            const bool hasFailed = failing.EndM();
            EXPECT_EQ(found ? *found : find(), all);
            return hasFailed;
        },
        5);
    EXPECT_GT(failed, 50U);
}

// A file is as it was or as it was to become, never a part of that.
TEST(FilesWithoutMemory, AFileIsFormattedOrAsItWas)
{
    TempFile file("", ".dlg");
    TempFile other("", ".dlg");
    const auto write = [](const char* path, const std::string& bytes) {
        FILE* const out = std::fopen(path, "wb");
        std::fwrite(bytes.data(), 1, bytes.size(), out);
        std::fclose(out);
    };
    for (const bool isConverted : { false, true }) {
        std::string wanted;
        const std::size_t failed = EachRequestFailsM(
            [&](std::size_t number) {
                write(file.path(), twoKinds());
                write(other.path(), "other");
                testing::internal::CaptureStdout();
                testing::internal::CaptureStderr();
                FailingRequestCL failing(number);
                UnlessMemoryEndsM([&] {
                    return isConverted ? convertCommand(file.path(), other.path(), true)
                                       : formatCommand(file.path(), false);
                });
                const bool hasFailed = failing.EndM();
                testing::internal::GetCapturedStdout();
                testing::internal::GetCapturedStderr();
                const std::string now = isConverted ? other.bytes() : file.bytes();
                if (!hasFailed) {
                    wanted = now;
                }
                EXPECT_TRUE(now == wanted || now == (isConverted ? "other" : twoKinds())) << now;
                EXPECT_TRUE(!isConverted || file.bytes() == twoKinds());
                return hasFailed;
            },
            2);
        EXPECT_GT(failed, 8U);
    }
}

TEST(FilesWithoutMemory, ACatalogueIsReadOrEmpty)
{
    TextsTP texts;
    for (int i = 0; i < 20; ++i) {
        texts.push_back({ "text " + std::to_string(i), "translation " + std::to_string(i) });
    }
    const std::string bytes = CatalogueFileCL().BytesM(texts);
    MessageCatalogueCL catalogue;
    EachRequestFailsM([&](std::size_t number) {
        std::string given = bytes;
        FailingRequestCL failing(number);
        const bool isRead = UnlessMemoryEndsM([&] { return catalogue.ReadM(std::move(given)); }).has_value();
        const bool hasFailed = failing.EndM();
        EXPECT_EQ(catalogue.EmptyM(), !isRead);
        EXPECT_EQ(catalogue.FindM("text 7") != nullptr, isRead);
        catalogue.ReadM("");
        return hasFailed;
    });
}

TEST(FilesWithoutMemory, AMessageHasItsOldOrItsNewText)
{
    const std::u16string text = u"a text that no string holds in itself";
    EachRequestFailsM([&](std::size_t number) {
        const std::u16string own = slMessageTemplate(0);
        FailingRequestCL failing(number);
        const auto isSet = UnlessMemoryEndsM([&] { return slSetMessageTemplate(0, &text); });
        UnlessMemoryEndsM([] {
            slSetMessageLanguage("en", nullptr);
            return 0;
        });
        const bool hasFailed = failing.EndM();
        EXPECT_TRUE(slMessageTemplate(0) == text || (!isSet && !slMessageTemplate(0).empty()));
        slSetMessageTemplate(0, nullptr);
        slSetMessageLanguage("zh", nullptr);
        EXPECT_EQ(slMessageTemplate(0), own);
        return hasFailed;
    });
}
