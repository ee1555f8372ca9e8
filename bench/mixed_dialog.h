#pragma once
#include "baselib/gbk.h"
#include "dialog/basic_dialog.h"
#include "support/description.h"
#include <stdexcept>
#include <string>
#include <vector>

// A dialog of many controls as a description file and as plain calls: of each twenty, eight labels, six
// edits, two push buttons, two check boxes, a combo box and a list box of five lines. The file has them kind
// by kind, the windows stand in reading order.
namespace mixed {

constexpr int Lines = 5;
constexpr int FirstId = 1000;
constexpr int ItemHeight = 18;
constexpr int FontOption = 14;
constexpr DWORD ChildStyle = WS_CHILD | WS_VISIBLE;

enum Kind
{
    Label,
    Edit,
    ListBox,
    ComboBox,
    CheckBox,
    PushButton,
    KindCount // In the order of building.
};

struct PartCL
{
    Kind kind;
    int place; // In reading order.
    RECT rect; // Left, top, width and height.

    int IdM() const { return FirstId + place; }
    std::string TextM() const
    {
        static const char* const words[] = { "label ", "text ", nullptr, nullptr, "check ", "button " };
        return words[kind] != nullptr ? words[kind] + std::to_string(place) : "";
    }
};

inline Kind kindAt(int place)
{
    static const char pattern[] = "LELELELPLECLELKLEBCP";
    switch (pattern[place % 20]) {
    case 'L':
        return Label;
    case 'E':
        return Edit;
    case 'P':
        return PushButton;
    case 'C':
        return CheckBox;
    case 'K':
        return ComboBox;
    default:
        return ListBox;
    }
}

inline std::string lineText(int line)
{
    return "line " + std::to_string(line);
}

// All parts, kind by kind.
inline std::vector<PartCL> parts(int count)
{
    std::vector<PartCL> all;
    for (int kind = 0; kind < KindCount; ++kind) {
        for (int place = 0; place < count; ++place) {
            if (kindAt(place) == kind) {
                const LONG height = kind == ComboBox ? 120 : kind == ListBox ? 60 : 20;
                all.push_back({ kindAt(place), place,
                    { 10 + place % 8 * 110, 10 + place / 8 % 40 * 24, 100, height } });
            }
        }
    }
    return all;
}

inline std::string description(int count)
{
    static const char* const headers[]
        = { "[标题]", "[单行文本]", "[文本列表框]", "[下拉列表框]", "[多选按钮]", "[标准按钮]" };
    static const char* const tails[]
        = { " 1\n", " 3 0 200 0 0 1\n", " 18 1 1 255 255 255 0\n", " 0\n", " 0\n", "\n" };
    static const char* const lineHeaders[] = { "", "", "[文本列表框初始值]", "[下拉列表框初始值]", "", "" };
    std::string records[KindCount];
    std::string lines[KindCount];
    int counts[KindCount] = {};
    for (const PartCL& part : parts(count)) {
        std::string& to = records[part.kind];
        ++counts[part.kind];
        to += std::to_string(part.place) + " " + std::to_string(part.IdM()) + " "
            + std::to_string(part.rect.left) + " " + std::to_string(part.rect.top) + " "
            + std::to_string(part.rect.right) + " " + std::to_string(part.rect.bottom) + tails[part.kind];
        if (part.kind == Label || part.kind == Edit) {
            to += part.TextM() + (part.kind == Label ? "\n0 -1 0 0\n" : "\n0 1 255 255 255\n");
        } else if (part.kind == CheckBox) {
            to += part.TextM() + "\n";
        } else if (part.kind == PushButton) {
            to += part.TextM() + "\n0\n";
        } else {
            for (int line = 0; line < Lines; ++line) {
                lines[part.kind] += std::to_string(part.IdM()) + " " + lineText(line) + "\n";
            }
        }
    }
    std::string text = HeaderSections;
    for (int kind = 0; kind < KindCount; ++kind) {
        text += std::string(headers[kind]) + "\n" + std::to_string(counts[kind]) + "\n0\n" + records[kind];
        if (!lines[kind].empty()) {
            text += std::string(lineHeaders[kind]) + "\n" + std::to_string(counts[kind] * Lines) + "\n0\n"
                + lines[kind];
        }
    }
    return text;
}

} // namespace mixed
