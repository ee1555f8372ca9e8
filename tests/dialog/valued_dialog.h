#pragma once
#include "support/shown_dialog.h"
#include "support/small_picture.h"

// One of every kind that has a value, and more where a kind has several sorts of it.
inline std::string valuedSections(const std::string& picture)
{
    return HeaderSections
        + std::string(
            "[单行文本]\n3\n0\n"
            "1 11 10 10 80 20 1 -5 100 0 0 1 5 0 1 255 255 255\n"
            "2 12 10 35 80 20 2 0 9.5 2 0 1 1.5 0 1 255 255 255\n"
            "3 13 10 60 80 20 3 0 6 0 0 1\nabc\n0 1 255 255 255\n"
            "[带spin的文本]\n2\n0\n"
            "4 14 10 90 80 22 1 0 10 0 2 1 4 4 1014 16\n"
            "5 15 10 115 80 22 2 0 1 3 0.125 1 0.5 5 1015 16\n"
            "[多行文本]\n1\n0\n6 16 100 10 90 50 1 20\nfirst\n0 1 255 255 255\n"
            "[文本列表框]\n4\n0\n"
            "7 17 100 65 70 60 14 1 1 255 255 255 0\n"
            "8 18 180 65 70 60 14 2 1 255 255 255 0\n"
            "9 19 100 130 70 60 14 4 1 255 255 255 0\n"
            "10 20 180 130 70 60 14 3 1 255 255 255 0\n"
            "[文本列表框初始值]\n12\n0\n17 a\n17 b\n17 c\n18 a\n18 b\n18 c\n19 a\n19 b\n19 c\n20 a\n20 b\n"
            "20 c\n"
            "[图片列表框]\n1\n0\n11 21 260 10 60 60 2 1 2 1\n[图片列表框位图]\n2\n0\n21 ")
        + picture + "\n21 " + picture
        + "\n[下拉列表框]\n2\n0\n12 22 260 80 70 90 0\n13 23 260 105 70 90 1\n"
          "[下拉列表框初始值]\n6\n0\n22 red\n22 green\n22 blue\n23 red\n23 green\n23 blue\n"
          "[列表控件]\n2\n0\n14 24 10 150 80 80 1 1\n15 25 260 130 70 80 1 0\n"
          "[列表控件列标题]\n2\n0\n24 0 60 x\n25 0 60 x\n"
          "[列表控件初始值]\n6\n0\n24 0 0 p\n24 1 0 q\n24 2 0 r\n25 0 0 p\n25 1 0 q\n25 2 0 r\n"
          "[单选按钮]\n5\n0\n16 31 340 10 70 20 1 1\none\n17 32 340 30 70 20 1 0\ntwo\n"
          "18 33 340 50 70 20 1 0\nthree\n19 34 340 75 70 20 2 0\nfour\n20 35 340 95 70 20 2 0\nfive\n"
          "[多选按钮]\n2\n0\n21 41 340 115 70 20 1\nyes\n22 42 340 135 70 20 0\nno\n"
          "[标准按钮]\n1\n0\n23 43 340 155 70 20\npress\n0\n"
          "[多态按钮]\n1\n0\n24 44 340 180 20 20 7\nNULL\n[多态按钮数据]\n2\n0\n44 7 "
        + picture + "\n44 9 " + picture
        + "\n[旋转按钮]\n1\n0\n25 45 370 180 40 40 0 0 10 10 1 -1 10 -10 7.5 1 90 -90 22.5 3\n" + picture
        + "\n" + picture
        + "\nNULL\n[树形控件]\n1\n0\n26 46 100 195 150 60\n[树形控件数据]\n5\n0\n46 0 1 501 top\n" + picture
        + "\n" + picture + "\n46 1 2 502 a/b\n" + picture + "\n" + picture + "\n46 1 3 503 same\n" + picture
        + "\n" + picture + "\n46 1 4 504 same\n" + picture + "\n" + picture + "\n46 4 5 505 leaf\n" + picture
        + "\n" + picture + "\n";
}

// The dialog with those, shown.
class ValuedDialogCL : public ShownDialogCL
{
public:
    ValuedDialogCL()
        : ValuedDialogCL(SmallPictureCL(0x0000FF, 20, 20))
    {
    }
    // What a control with that id is.
    template <class ControlTP> ControlTP& ControlM(int id)
    {
        int kind = 0;
        return static_cast<ControlTP&>(*GetContrlPtrM(id, &kind));
    }

    static constexpr int ButtonId = 43; // A control without a value.
    static constexpr int UnknownId = 999;

private:
    explicit ValuedDialogCL(const SmallPictureCL& picture)
        : ShownDialogCL(valuedSections(picture.path()))
    {
    }
};
