#pragma once
#include "support/shown_dialog.h"
#include <string>
#include <vector>

// Sections of buttons in a description, and what is checked in the dialog made of them.

inline std::string button(int index, int id, const char* caption, int flag)
{
    return std::to_string(index) + " " + std::to_string(id) + " 200 " + std::to_string(index * 20)
        + " 80 18\n" + caption + "\n" + std::to_string(flag) + "\n";
}
inline std::string radio(int index, int id, int group, int check)
{
    return std::to_string(index) + " " + std::to_string(id) + " 10 " + std::to_string(index * 20) + " 80 18 "
        + std::to_string(group) + " " + std::to_string(check) + "\n横向\n";
}
inline std::string check(int index, int id, int checked)
{
    return std::to_string(index) + " " + std::to_string(id) + " 100 " + std::to_string(index * 20) + " 80 18 "
        + std::to_string(checked) + "\n自动\n";
}
inline std::string section(const char* header, const std::vector<std::string>& records)
{
    std::string text = header + ("\n" + std::to_string(records.size())) + "\n0\n";
    for (const std::string& record : records) {
        text += record;
    }
    return text;
}
inline std::string buttons(const std::vector<std::string>& records)
{
    return section("[标准按钮]", records);
}
inline std::string radios(const std::vector<std::string>& records)
{
    return section("[单选按钮]", records);
}
inline std::string checks(const std::vector<std::string>& records)
{
    return section("[多选按钮]", records);
}

inline bool isChecked(HWND window)
{
    return ::SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

inline std::string checkedOf(const TestDialogCL& dialog, int first, int last)
{
    std::string text;
    for (int id = first; id <= last; ++id) {
        text += isChecked(dialog.ItemM(id)) ? "x" : "-";
    }
    return text;
}
