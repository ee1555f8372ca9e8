// What checking costs beside reading; instrumented code has times of its own.
#if !defined(_WIN32) && !defined(__SANITIZE_ADDRESS__)
#include "controls/buttons/new_rotate_btn_record.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "support/temp_file.h"
#include "tools/run_command.h"
#include <algorithm>
#include <sys/resource.h>

namespace {

constexpr int RecordsEach = 25000;

// 100,000 controls of four kinds in rows; each edit stands behind its label.
std::string largeFile()
{
    std::string file = std::string(VersionHeader) + "\n1.0\n" + DialogHeader
        + "\n0\n0 0\n60000 60000\n1\nT\n14 2 4\nNULL\n";
    int id = 3;
    const auto add = [&](const char* header, int place, const std::string& rest) {
        file += std::string(header) + "\n" + std::to_string(RecordsEach) + "\n0\n";
        for (int i = 0; i < RecordsEach; ++i) {
            const int number = 4 * i + place;
            file += std::to_string(number) + " " + std::to_string(id++) + " "
                + std::to_string(number % 400 * 100) + " " + std::to_string(number / 400 * 30) + " 80 24 "
                + rest + "\n";
        }
    };
    add(LabelHeader, 0, "1\ntext\n0 -1 0 0");
    add(SingleEditHeader, 1, "1 0 100 0 0 2 50\n0 1 255 255 255");
    add(CheckBoxHeader, 2, "0\ntext");
    add(GroupBoxHeader, 3, "\ntext");
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

// Of this process or of those that it waited for; other programs of the machine don't count.
double processorSeconds(int whose)
{
    rusage usage {};
    ::getrusage(whose, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

template <class FunctionTP> double secondsOf(int whose, FunctionTP&& run)
{
    const double begin = processorSeconds(whose);
    run();
    return processorSeconds(whose) - begin;
}

} // namespace

TEST(CheckTime, AtMostThreeTimesReading)
{
    const TempFile file(largeFile(), ".dlg");
    const std::string arguments = std::string("check --lang en \"") + file.path() + "\"";
    const CommandResultCL result = runCommand(arguments);
    EXPECT_EQ(result.output, "1 file: 0 errors, 0 warnings\n");
    double reading = 1e9;
    double checking = 1e9;
    for (int i = 0; i < 25; ++i) { // In turn: what slows the machine meets both, and the least of many none.
        reading = std::min(reading, secondsOf(RUSAGE_SELF, [&] { readAll(file.path()); }));
        checking = std::min(checking, secondsOf(RUSAGE_CHILDREN, [&] { runCommand(arguments); }));
    }
    std::printf("reading %.0f ms, checking %.0f ms\n", reading * 1000, checking * 1000);
    EXPECT_LE(checking, 3 * reading);
}

#endif
