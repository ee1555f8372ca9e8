// read_bench [MILLISECONDS]: reads one large description file of all kinds of values, kind by kind as
// building a dialog does, again and again for that time, and prints the milliseconds of one reading. Native;
// run by scripts/compare_reading.
#include "baselib/io.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "timing.h"
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

constexpr int Records = 600;

std::string repeated(const char* header, int count, const std::string& what)
{
    std::string text = std::string(header) + "\n" + std::to_string(count) + "\n1\ncomment\n";
    for (int i = 0; i < count; ++i) {
        text += what;
    }
    return text;
}

std::string description()
{
    const std::string head = "3 1001 20 30 120 200 ";
    return std::string(VersionHeader) + "\n1.0\n" + DialogHeader + "\n0\n1 2\n3 4\n1\ntitle\n12 2 4\nNULL\n"
        + repeated(LabelHeader, Records, head + "1\na label\n1 255 255 0\n")
        + repeated(SingleEditHeader, Records, head + "2\n-1.5 1200.25\n2 0 2 17.5 0 1 255 255 255\n")
        + repeated(MultiEditHeader, Records, head + "1 200\nseveral words of a text\n0 1 255 255 255\n")
        + repeated(SpinEditHeader, Records, head + "1\n0 100\n0 5 2 10 4 1002 16\n")
        + repeated(TextListBoxHeader, Records, head + "16 1 1 255 255 255 0\n")
        + repeated(TextListBoxItemHeader, 5 * Records, "1001 a line of a list box\n")
        + repeated(ListCtrlHeader, Records, head + "3 1\n")
        + repeated(ListCtrlTitleHeader, Records, "1001 0 120 a heading\n")
        + repeated(ListCtrlItemHeader, 5 * Records, "1001 4 2 a cell of a table\n")
        + repeated(BmpButtonHeader, Records, head + "\na.bmp\nb.bmp\nc.bmp\nd.bmp\nNULL\n")
        + repeated(RotateBtnHeader, Records,
            head + "\n1 2\n20 20\n1 -1\n5 -5\n1.5\n1\n180 -180\n12.5\n7\na.bmp\nb.bmp\nNULL\n")
        + repeated(TreeHeader, Records, head + "\n")
        + repeated(TreeDataHeader, 5 * Records, "1001 0 7 12345 an item\nclosed.bmp\nopen.bmp\n");
}

// One reading of all; the number of records read.
int readAll(const char* path)
{
    int all = 0;
    {
        VrIOCL io;
        io.OpenM(path, "r");
        DialogHeaderCL header;
        all += slReadDialogHeader(io, header);
    }
    slEachKindAsBuilt([&](auto row) {
        VrIOCL io;
        io.OpenM(path, "r");
        typename decltype(row)::Records records;
        int count = 0;
        slReadSection(io, records, &count);
        all += records.GetAvailableNumM();
    });
    return all;
}

} // namespace

int main(int argc, char** argv)
{
    const double seconds = (argc > 1 ? std::atoi(argv[1]) : 1000) / 1000.0;
    const char* const path = "read_bench.dlg";
    const std::string bytes = description();
    FILE* const file = std::fopen(path, "wb");
    if (file == nullptr || std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size()) {
        return 1;
    }
    std::fclose(file);
    std::vector<double> times;
    const auto start = std::chrono::steady_clock::now();
    while (secondsSince(start) < seconds || times.empty()) {
        const auto begin = std::chrono::steady_clock::now();
        if (readAll(path) != 9 * Records + 1) {
            std::fprintf(stderr, "not all of the file was read\n");
            return 1;
        }
        times.push_back(secondsSince(begin));
    }
    std::remove(path);
    std::printf("%.4f\n", *std::min_element(times.begin(), times.end()) * 1000);
    return 0;
}
