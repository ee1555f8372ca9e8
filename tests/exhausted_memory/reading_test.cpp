// Memory runs out while description files are read: all is read, or nothing and std::bad_alloc comes out.
// What was there before is there still, and the next reading reads all.
#include "controls/buttons/new_rotate_btn_record.h"
#include "dialog/binding.h"
#include "dialog/reading_diagnostics.h"
#include "editing/seen_sections.h"
#include "support/description_files.h"
#include "support/failing_memory.h"
#include "support/kind_types.h"
#include "support/read_model.h"

using namespace testing_support;

namespace {

std::shared_ptr<const FileTextCL> everyKind()
{
    return std::make_shared<const FileTextCL>(wholeFile(PANELKIT_SAMPLES "/every_kind.dlg"));
}

template <class RecordsTP> std::string textOf(RecordsTP& records)
{
    std::vector<ShownControlCL> controls;
    addShown(records, "", controls);
    std::string all = std::to_string(records.GetAvailableNumM()) + "\n";
    for (const ShownControlCL& control : controls) {
        all += control.text + "\n";
    }
    return all;
}

// read: reads the records of a file, behind those that there are.
template <class RecordsTP, class ReadTP> void expectAllOrNothing(ReadTP&& read)
{
    std::string before;
    std::string after;
    EachRequestFailsM([&](std::size_t number) {
        RecordsTP records;
        const auto file = everyKind();
        read(file, records);
        before = textOf(records);
        FailingRequestCL failing(number);
        const bool isRead = UnlessMemoryEndsM([&] { return read(file, records); }).has_value();
        const bool hasFailed = failing.EndM();
        if (!isRead) {
            EXPECT_EQ(textOf(records), before);
            read(file, records);
        }
        after = after.empty() ? textOf(records) : after;
        EXPECT_EQ(textOf(records), after);
        return hasFailed;
    });
    EXPECT_NE(before, after);
}

template <class RowTP> class ReadingWithoutMemoryTest : public testing::Test
{
};

} // namespace

TYPED_TEST_SUITE(ReadingWithoutMemoryTest, EveryRowTP, KindNamesCL);

TYPED_TEST(ReadingWithoutMemoryTest, AllRecordsAreReadOrNone)
{
    using RecordsTP = typename TypeParam::Records;
    expectAllOrNothing<RecordsTP>([](const std::shared_ptr<const FileTextCL>& file, RecordsTP& records) {
        VrIOCL io;
        io.OpenM(file);
        int count = 0;
        return slReadSection(io, records, &count);
    });
}

TEST(ReadingWithoutMemory, AllNewRotateButtonsAreReadOrNone)
{
    expectAllOrNothing<DVrNewRotateBtnArr>(
        [](const std::shared_ptr<const FileTextCL>& file, DVrNewRotateBtnArr& records) {
            VrIOCL io;
            io.OpenM(file);
            return records.FmReadInterfaceM(&io);
        });
}

namespace {

// All that an application is given of a file.
std::string shownBy(VrIOCL& io)
{
    DialogHeaderCL header;
    FieldTextCL dialog;
    slReadDialogHeader(io, header);
    header.EachFieldM(dialog);
    std::string all = dialog.text + "\n";
    const ShownDialogCL shown = shownOf(io);
    for (const ShownControlCL& control : shown.controls) {
        all += control.section + control.text + "\n";
    }
    for (const std::string& relation : shown.relations) {
        all += relation + "\n";
    }
    slReadBindings(io, [&all](BindingCL& binding) {
        FieldTextCL text;
        binding.EachFieldM(text);
        all += text.text + "\n";
        return 1;
    });
    return all;
}

std::string shownText(const std::shared_ptr<const FileTextCL>& file)
{
    VrIOCL io;
    io.OpenM(file);
    return shownBy(io);
}

std::string seenText(const std::shared_ptr<const FileTextCL>& file)
{
    const SeenSectionsCL seen = slReadSections(file);
    std::string all;
    for (std::size_t i = 0; i < slGrammars().size(); ++i) {
        const SeenSectionCL& section = seen.AtM(static_cast<int>(i));
        all += std::to_string(section.regionEnd) + ":";
        for (const SeenValueCL& value : section.values) {
            const PlaceCL place = file->PlaceM(value.begin);
            all += std::to_string(place.line) + "." + std::to_string(place.column) + value.field + " ";
        }
    }
    return all;
}

std::string toldText(const std::shared_ptr<const FileTextCL>& file)
{
    std::string told;
    ReadingDiagnosticsCL diagnostics(
        [](const DiagnosticCL& one, void* to) {
            *static_cast<std::string*>(to) += std::to_string(one.line) + one.message + "\n";
        },
        &told, false);
    VrIOCL io;
    io.OpenM(file);
    diagnostics.BeginBuildM();
    diagnostics.WatchM("file.dlg", io);
    shownBy(io);
    io.SetObserverM(nullptr);
    return told;
}

} // namespace

// The text of a file remembers where its sections and lines begin: one object through failure and success.
TEST(ReadingWithoutMemory, FilesReadTheSameAfterwards)
{
    std::vector<std::string> files = descriptionFiles(PANELKIT_EXAMPLES);
    for (const std::string& sample : descriptionFiles(PANELKIT_SAMPLES)) {
        files.push_back(sample);
    }
    std::size_t failed = 0;
    for (const std::string& path : files) {
        SCOPED_TRACE(path);
        const std::string bytes = wholeFile(path);
        for (const auto look : { &shownText, &seenText, &toldText }) {
            const std::string whole = look(std::make_shared<const FileTextCL>(bytes));
            failed += EachRequestFailsM(
                [&](std::size_t number) {
                    const auto file = std::make_shared<const FileTextCL>(bytes);
                    FailingRequestCL failing(number);
                    const auto first = UnlessMemoryEndsM([&] { return look(file); });
                    const bool hasFailed = failing.EndM();
                    EXPECT_EQ(first ? *first : look(file), whole);
                    return hasFailed;
                },
                1 + bytes.size() / 200);
        }
    }
    EXPECT_GT(failed, 1000U);
}
