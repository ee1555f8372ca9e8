#pragma once
#include "support/description.h"
#include <string>

// A dialog of one control of every kind, some of two sorts. The texts are the text, the pictures the picture.
inline std::string sectionsOfEveryKind(const std::string& picture, const std::string& text)
{
    return HeaderSections
        + ("[标题]\n2\n0\n1 11 10 10 90 20 1\n" + text + "\n0 -1 0 0\n1 12 10 40 90 20 1\n" + text)
        + "\n0 0 0 128\n[单行文本]\n2\n0\n1 13 10 70 90 22 3 0 20 0 0 2\n" + text
        + "\n0 1 255 255 255\n1 14 10 100 90 22 3 0 20 0 0 2\n" + text
        + "\n1 1 255 255 255\n[带spin的文本]\n1\n0\n1 15 10 130 90 24 1 0 100 0 1 2 88 12 1015 16\n"
          "[多行文本]\n1\n0\n1 16 10 160 90 40 1 200\n"
        + text + "\n0 1 255 255 255\n[文本列表框]\n1\n0\n1 17 110 10 90 40 14 1 1 255 255 255 0\n"
        + "[文本列表框初始值]\n1\n0\n17 " + text
        + "\n[下拉列表框]\n2\n0\n1 18 110 60 90 90 0\n1 19 110 90 90 90 1\n[下拉列表框初始值]\n4\n0\n18 "
        + text + "\n18 " + text + "\n19 " + text + "\n19 " + text
        + "\n[列表控件]\n1\n0\n1 20 110 120 90 60 1 1\n[列表控件列标题]\n1\n0\n20 0 80 "
          "x\n[列表控件初始值]\n1\n0\n"
          "20 0 0 "
        + text + "\n[单选按钮]\n1\n0\n1 21 210 10 90 20 1 0\n" + text
        + "\n[多选按钮]\n1\n0\n1 22 210 40 90 20 0\n" + text + "\n[成组控件]\n1\n0\n1 23 210 70 90 40\n"
        + text + "\n[树形控件]\n1\n0\n1 24 210 120 90 60\n[树形控件数据]\n1\n0\n24 0 1 501 " + text + "\n"
        + picture + "\n" + picture + "\n[标准按钮]\n1\n0\n1 31 310 10 90 24\n" + text
        + "\n0\n[位图按钮]\n1\n0\n1 32 310 40 20 20\n" + picture + "\n" + picture + "\nNULL\n" + picture
        + "\nnull\n[多态按钮]\n1\n0\n1 33 340 40 20 20 7\nNULL\n[多态按钮数据]\n2\n0\n33 7 " + picture
        + "\n33 9 " + picture
        + "\n[旋转按钮]\n1\n0\n1 34 310 70 40 40 0 0 10 10 1 -1 10 -10 7.5 1 90 -90 22.5 3\n" + picture + "\n"
        + picture + "\nNULL\n[图片列表框]\n1\n0\n1 35 310 120 60 40 2 1 2 1\n[图片列表框位图]\n1\n0\n35 "
        + picture + "\n[普通动画控件]\n1\n0\n1 36 310 170 20 20 2 0 0 0\n[普通动画控件位图]\n1\n0\n36 "
        + picture + "\n[特殊动画控件]\n1\n0\n1 37 340 170 20 20 3 1\n[特殊动画控件位图]\n1\n0\n37 " + picture
        + "\n" + "[二维绘图控件]\n1\n0\n1 38 370 170 20 20 0 0 0\n";
}
