#pragma once
#include "baselib/gbk_texts.h"
#include <string>
#include <vector>

// A section of a large description file, and what one of its records holds, in order: d an int, f a real, s a
// text to the end of its line.
struct BenchSectionCL
{
    const char* header;
    int perControl; // Entries for each control of its kind; 0: it holds the controls.
    const char* tokens;
    const char*
        values; // Behind window index, id, position and size of a control, or behind the id of an entry.
};

// Nine kinds with all types of values, and entries for three of them.
inline constexpr BenchSectionCL BenchSections[] = {
    { LabelHeader, 0, "dddddddsdddd", "1\na label\n1 255 255 0\n" },
    { SingleEditHeader, 0, "dddddddffdddfddddd", "2\n-1.5 1200.25\n2 0 2 17.5 0 1 255 255 255\n" },
    { MultiEditHeader, 0, "ddddddddsddddd", "1 200\nseveral words of a text\n0 1 255 255 255\n" },
    { TextListBoxHeader, 0,
        "dddddddddddd"
        "d",
        "16 1 1 255 255 255 0\n" },
    { TextListBoxItemHeader, 2, "ds", "a line of a list box\n" },
    { ListCtrlHeader, 0, "dddddddd", "3 1\n" },
    { ListCtrlTitleHeader, 1, "ddds", "0 120 a heading\n" },
    { ListCtrlItemHeader, 1, "ddds", "0 0 a cell of a table\n" },
    { CheckBoxHeader, 0,
        "dddddd"
        "ds",
        "1\na choice\n" },
    { BmpButtonHeader, 0, "ddddddsssss", "\na.bmp\nb.bmp\nc.bmp\nd.bmp\nNULL\n" },
    { RotateBtnHeader, 0, "ddddddddddddddfdfffdsss",
        "\n1 2\n20 20\n1 -1\n5 -5\n1.5\n1\n180 -180\n12.5\n7\na.bmp\nb.bmp\nNULL\n" },
    { TreeHeader, 0, "dddddd", "\n" },
    { TreeDataHeader, 2, "ddddsss", "0 7 12345 an item\nclosed.bmp\nopen.bmp\n" },
};
constexpr int BenchKinds = 9;

inline int benchCount(const BenchSectionCL& section, int records)
{
    return records / BenchKinds * (section.perControl > 0 ? section.perControl : 1);
}

// So many records in all, without the entries.
inline std::string benchDescription(int records)
{
    std::string text = std::string(VersionHeader) + "\n1.0\n" + DialogHeader
        + "\n0\n1 2\n30000 30000\n1\na title\n12 1 2\nNULL\n";
    int controls = 0;
    for (const BenchSectionCL& section : BenchSections) {
        const int count = benchCount(section, records);
        text += std::string(section.header) + "\n" + std::to_string(count) + "\n1\ncomment\n";
        controls += section.perControl == 0 ? count : 0;
        for (int i = 0; i < count; ++i) {
            if (section.perControl > 0) {
                text += std::to_string(1000 + controls - records / BenchKinds + i / section.perControl) + ' ';
            } else {
                const int number = controls - count + i;
                text += std::to_string(number % 30) + ' ' + std::to_string(1000 + number) + ' '
                    + std::to_string(number % 290 * 100) + ' ' + std::to_string(number / 290 * 30)
                    + " 90 20 ";
            }
            text += section.values;
        }
    }
    return text;
}
