// The same picture at many places of a dialog: in memory once, until somebody writes to it.
#include "support/pictured_dialog.h"
#include <cstring>
#include <gtest/gtest.h>
#define PSAPI_VERSION 2 // In kernel32.
#include <psapi.h>

using namespace testing_support;

namespace {

// What the process has for itself.
double usedBytes()
{
    PROCESS_MEMORY_COUNTERS counters {};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<double>(counters.PagefileUsage);
}

std::string timesNamed(int times, const std::string& line)
{
    std::string lines;
    for (int i = 0; i < times; ++i) {
        lines += line + "\n";
    }
    return lines;
}

constexpr int Places = 25;

// A dialog that names a picture at so many places of every kind that shows some.
std::string everywhere(const std::string& name)
{
    return "[版本号]\n1.0\n[对话框]\n0\n100 80\n420 260\n1\n参数设置\n14 2 4\n" + name
        + "\n[普通动画控件]\n1\n0\n1 11 10 10 40 40 1 0 0 1\n[普通动画控件位图]\n8\n0\n"
        + timesNamed(8, "11 " + name)
        + "[特殊动画控件]\n1\n0\n2 12 60 10 40 40 0 0\n[特殊动画控件位图]\n4\n0\n"
        + timesNamed(4, "12 " + name)
        + "[图片列表框]\n1\n0\n3 13 110 10 80 80 2 2 2 1\n[图片列表框位图]\n4\n0\n"
        + timesNamed(4, "13 " + name) + "[位图按钮]\n1\n0\n4 14 200 10 40 40\n" + timesNamed(4, name)
        + "NULL\n[多态按钮]\n1\n0\n5 15 250 10 40 40 1\nNULL\n[多态按钮数据]\n2\n0\n15 1 " + name + "\n15 2 "
        + name + "\n[旋转按钮]\n1\n0\n6 16 300 10 40 40 0 0 5 5 1 -1 1 -1 30 1 90 0 0 0\n"
        + timesNamed(2, name) + "NULL\n";
}

// What building a dialog with the picture everywhere takes.
double bytesOf(const SmallPictureCL& picture, int percent)
{
    const DescriptionFileCL file(everywhere(picture.path()));
    DuBasicDialogCL dialog;
    dialog.SetConfigFileM(file.path());
    dialog.SetScaleM(percent);
    const double before = usedBytes();
    dialog.CreateM();
    return usedBytes() - before;
}

// An animation that lets the test have its frames, as a class of an application may.
class FramesCL : public DuNormalAnimateCL
{
public:
    DVrBitmapCL& FrameM(int i) { return frames_.ElementAtM(i); }
};

// Two animations, 11 and 12, each with the same picture twice.
class TwiceFramedCL : public DuBasicDialogCL
{
public:
    explicit TwiceFramedCL(const std::string& name, int percent = 100)
        : file_(std::string(HeaderSections)
            + "[普通动画控件]\n2\n0\n1 11 10 10 40 40 2 0 0 1\n2 12 60 10 40 40 2 0 0 "
              "1\n[普通动画控件位图]\n4\n0\n11 "
            + name + "\n11 " + name + "\n12 " + name + "\n12 " + name + "\n")
    {
        SetConfigFileM(file_.path());
        SetScaleM(percent);
        SetFactoryM<DuNormalAnimateCL>([this](int id) {
            if (beforeEach) {
                beforeEach(id);
            }
            return std::make_unique<FramesCL>();
        });
    }
    void ShowM()
    {
        CreateM();
        ShowWindow(SW_SHOW);
        ActivateM(m_hWnd);
    }
    FramesCL& AnimationM(int id)
    {
        return *dynamic_cast<FramesCL*>(CWnd::FromHandlePermanent(::GetDlgItem(m_hWnd, id)));
    }
    COLORREF ShownM(int id)
    {
        AnimationM(id).Invalidate();
        PumpPending();
        return Pixels(::GetDlgItem(m_hWnd, id)).AtM(2, 2);
    }

    std::function<void(int id)> beforeEach; // Before each control is made.

private:
    DescriptionFileCL file_;
};

HGDIOBJ handleOf(DVrBitmapCL& record)
{
    CBitmap* const bitmap = record.GetBitmapM();
    return bitmap != nullptr ? bitmap->GetSafeHandle() : nullptr;
}

// All that the system tells of a section, and its pixels.
std::string contentOf(HGDIOBJ bitmap)
{
    DIBSECTION section {};
    EXPECT_EQ(::GetObjectW(bitmap, sizeof section, &section), static_cast<int>(sizeof section));
    std::string content(static_cast<const char*>(section.dsBm.bmBits),
        static_cast<size_t>(section.dsBm.bmWidthBytes * section.dsBm.bmHeight));
    section.dsBm.bmBits = nullptr;
    RGBQUAD colours[256] {};
    const HDC dc = ::CreateCompatibleDC(nullptr);
    const HGDIOBJ before = ::SelectObject(dc, bitmap);
    const UINT count = ::GetDIBColorTable(dc, 0, 256, colours);
    ::SelectObject(dc, before);
    ::DeleteDC(dc);
    content.append(reinterpret_cast<const char*>(&section), sizeof section);
    return content.append(reinterpret_cast<const char*>(colours), count * sizeof(RGBQUAD));
}

BmpFile pictureOf(int bits, std::vector<std::uint32_t> masks)
{
    BmpFile file;
    file.width = 5;
    file.height = 3;
    file.bits = bits;
    file.coding = masks.empty() ? 0 : 3;
    file.masks = std::move(masks);
    for (std::uint32_t i = 0; bits <= 8 && i < 1U << bits; ++i) {
        file.palette.push_back(i * 0x010305);
    }
    for (std::uint32_t y = 0; y < 3; ++y) {
        file.addRow({ y & 1, 1, 0, 1, y & 1 });
    }
    return file;
}

} // namespace

TEST(SharedPictures, APictureTakesMemoryOnceForAllPlaces)
{
    const SmallPictureCL small(Red, 4, 4);
    const SmallPictureCL large(Red, 1000, 800);
    for (const int percent : { 100, 150 }) {
        bytesOf(small, percent); // What comes in with the first stays.
        const double one = percent == 100 ? 1000 * 800 * 3 : 1500 * 1200 * 4;
        // At a scale, the picture that turns has a copy of its own kind.
        EXPECT_LT(bytesOf(large, percent) - bytesOf(small, percent), 3.5 * one)
            << Places << " places at " << percent;
    }
}

TEST(SharedPictures, WhoWritesToHisLeavesTheOthersAsTheyAre)
{
    const SmallPictureCL red(Red, 40, 40);
    TwiceFramedCL dialog(red.path());
    dialog.ShowM();
    DVrBitmapCL& first = dialog.AnimationM(11).FrameM(0);
    DVrBitmapCL& second = dialog.AnimationM(11).FrameM(1);
    CClientDC dc(&dialog);
    EXPECT_EQ(first.ShownBitmapM(), second.ShownBitmapM());
    EXPECT_EQ(first.BlendBitmapM(&dc), 1);
    EXPECT_NE(first.ShownBitmapM(), second.ShownBitmapM());
    EXPECT_EQ(dialog.ShownM(11), asShown(Blue));
    EXPECT_EQ(dialog.ShownM(12), asShown(Red));
    {
        CDC memory;
        memory.CreateCompatibleDC(&dc);
        const HGDIOBJ before = ::SelectObject(memory.m_hDC, handleOf(second));
        memory.FillSolidRect(CRect(0, 0, 40, 40), asShown(Green));
        ::SelectObject(memory.m_hDC, before);
    }
    EXPECT_EQ(handleOf(second), second.ShownBitmapM());
    EXPECT_EQ(dialog.ShownM(11), asShown(Blue));
    EXPECT_EQ(dialog.ShownM(12), asShown(Red));
    dialog.AnimationM(11).DispBmpM(1);
    EXPECT_EQ(dialog.ShownM(11), asShown(Green));
    // Those left, and then the last one, which needs no copy.
    DVrBitmapCL& third = dialog.AnimationM(12).FrameM(0);
    EXPECT_EQ(third.BlendBitmapM(&dc), 1);
    EXPECT_EQ(dialog.AnimationM(12).FrameM(1).BlendBitmapM(&dc), 1);
    EXPECT_EQ(dialog.ShownM(12), asShown(Blue));
}

TEST(SharedPictures, AssignedRecordsGetOneOfTheirOwnTogether)
{
    const SmallPictureCL red(Red, 40, 40);
    TwiceFramedCL dialog(red.path());
    dialog.ShowM();
    DVrBitmapCL& frame = dialog.AnimationM(11).FrameM(0);
    CClientDC dc(&dialog);
    {
        DVrBitmapCL record;
        record = frame;
        DVrBitmapCL other(record);
        EXPECT_EQ(record.BlendBitmapM(&dc), 1);
        EXPECT_EQ(dialog.ShownM(11), asShown(Blue));
        EXPECT_EQ(handleOf(other), handleOf(record));
        EXPECT_EQ(handleOf(frame), handleOf(record));
        EXPECT_EQ(CBitmap::FromHandle(static_cast<HBITMAP>(handleOf(frame))), frame.GetBitmapM());
        EXPECT_EQ(other.GetWidthM(), 40);
    }
    EXPECT_FALSE(frame.HoldsBitmapM()); // The first that went has deleted it.
    EXPECT_EQ(frame.ShownBitmapM(), nullptr);
    EXPECT_EQ(dialog.ShownM(12), asShown(Red));
    // What is taken from a record is nobody else's either.
    DVrBitmapCL& taken = dialog.AnimationM(12).FrameM(0);
    CBitmap own;
    own.Attach(taken.GetBitmapM()->Detach());
    EXPECT_FALSE(taken.HoldsBitmapM());
    EXPECT_TRUE(dialog.AnimationM(12).FrameM(1).HoldsBitmapM());
    EXPECT_NE(dialog.AnimationM(12).FrameM(1).ShownBitmapM(), own.GetSafeHandle());
}

TEST(SharedPictures, WhatGoesTakesThePictureFromNobody)
{
    const SmallPictureCL red(Red, 40, 40);
    TwiceFramedCL dialog(red.path());
    dialog.ShowM();
    dialog.AnimationM(11).FrameM(0).LoadBitmapM("no such picture.bmp");
    EXPECT_EQ(dialog.AnimationM(11).FrameM(1).GetWidthM(), 40);
    dialog.AnimationM(11).DelAllBmpM();
    EXPECT_EQ(dialog.ShownM(12), asShown(Red));
}

TEST(SharedPictures, OnesOwnIsJustLikeTheFiles)
{
    const std::vector<std::uint32_t> shorter { 0x7C00, 0x03E0, 0x001F };
    const std::vector<std::uint32_t> longer { 0xF800, 0x07E0, 0x001F };
    for (const BmpFile& picture : { pictureOf(1, {}), pictureOf(4, {}), pictureOf(8, {}), pictureOf(16, {}),
             pictureOf(16, shorter), pictureOf(16, longer), pictureOf(24, {}), pictureOf(32, {}) }) {
        const std::vector<unsigned char> bytes = picture.bytes();
        const TempFile file({ bytes.begin(), bytes.end() }, ".bmp");
        for (const int percent : { 100, 150 }) {
            TwiceFramedCL dialog(file.path(), percent);
            dialog.CreateM();
            // The first makes a copy, the last has what was loaded.
            const std::string copied = contentOf(handleOf(dialog.AnimationM(11).FrameM(0)));
            handleOf(dialog.AnimationM(11).FrameM(1));
            handleOf(dialog.AnimationM(12).FrameM(0));
            EXPECT_EQ(contentOf(handleOf(dialog.AnimationM(12).FrameM(1))), copied)
                << picture.bits << " bits at " << percent;
        }
        DVrBitmapCL alone;
        TwiceFramedCL dialog(file.path());
        dialog.CreateM();
        alone.LoadBitmapM(file.path());
        EXPECT_EQ(contentOf(handleOf(alone)), contentOf(handleOf(dialog.AnimationM(11).FrameM(0))));
    }
}

TEST(SharedPictures, AFileThatChangesMeanwhileIsReadAgain)
{
    const SmallPictureCL picture(Red, 40, 40);
    const SmallPictureCL other(Green, 41, 40);
    TwiceFramedCL dialog(picture.path());
    dialog.beforeEach = [&](int id) {
        if (id == 12) {
            const std::string bytes = other.bytes();
            FILE* const file = std::fopen(picture.path(), "wb");
            std::fwrite(bytes.data(), 1, bytes.size(), file);
            std::fclose(file);
        }
    };
    dialog.ShowM();
    EXPECT_EQ(dialog.ShownM(11), asShown(Red));
    EXPECT_EQ(dialog.ShownM(12), asShown(Green));
}
