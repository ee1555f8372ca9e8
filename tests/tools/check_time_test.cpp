// What checking costs beside reading.
#include "controls/buttons/new_rotate_btn_record.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "support/temp_file.h"
#include "tools/run_command.h"
#include <algorithm>
#include <chrono>

namespace {

constexpr int RecordsEach = 25000;

// 100,000 controls of four kinds, in rows and columns.
std::string largeFile()
{
    std::string file = "[\xB0\xE6\xB1\xBE\xBA\xC5]\n1.0\n[\xB6\xD4\xBB\xB0\xBF\xF2]\n0\n0 0\n60000 "
                       "60000\n1\nT\n14 2 4\nNULL\n";
    int index = 0;
    const auto add = [&](const char* header, const std::string& rest) {
        file += std::string(header) + "\n" + std::to_string(RecordsEach) + "\n0\n";
        for (int i = 0; i < RecordsEach; ++i, ++index) {
            file += std::to_string(index + 3) + " " + std::to_string(index + 3) + " "
                + std::to_string(index % 300 * 100) + " " + std::to_string(index / 300 * 30) + " 80 24 "
                + rest + "\n";
        }
    };
    add(LabelHeader, "1\ntext\n0 -1 0 0");
    add(SingleEditHeader, "1 0 100 0 0 2 50\n0 1 255 255 255");
    add(CheckBoxHeader, "0\ntext");
    add(GroupBoxHeader, "\ntext");
    return file;
}

void readAll(const char* path)
{
    VrIOCL io;
    io.OpenM(path, "r");
    DialogHeaderCL header;
    slReadDialogHeader(io, header);
    int records = 0;
    slEachKindAsBuilt([&](auto row) {
        typename decltype(row)::Records array;
        int count = 0;
        slReadSection(io, array, &count);
        records += count;
    });
    EXPECT_EQ(records, 4 * RecordsEach);
}

template <class FunctionTP> double fastest(FunctionTP&& run)
{
    double least = 1e9;
    for (int i = 0; i < 5; ++i) {
        const auto begin = std::chrono::steady_clock::now();
        run();
        least = std::min(
            least, std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
    }
    return least;
}

} // namespace

TEST(CheckTime, AtMostThreeTimesReading)
{
    const TempFile file(largeFile(), ".dlg");
    const std::string arguments = std::string("check --lang en \"") + file.path() + "\"";
    const CommandResultCL result = runCommand(arguments);
    EXPECT_EQ(countOf(result.output, "[no-label]"), RecordsEach); // Their labels all come first.
    const double reading = fastest([&] { readAll(file.path()); });
    const double checking = fastest([&] { runCommand(arguments); });
    std::printf("reading %.0f ms, checking %.0f ms\n", reading * 1000, checking * 1000);
    EXPECT_LE(checking, 3 * reading);
}
