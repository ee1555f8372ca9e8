// Pictures of dialogs, as a person makes them.
#include "support/description.h"
#include "tools/run_command.h"
#include <gtest/gtest.h>

#ifdef _WIN32
#include "support/small_picture.h"
#include "tools/png_picture.h"

namespace {

// Colours that no control has by itself.
constexpr std::uint32_t First = 0xC01001;
constexpr std::uint32_t Second = 0x02C020;
constexpr std::uint32_t Third = 0x3003C0;
constexpr int Area = 40 * 30;

// A dialog of one control of 40 by 30 pixels for each of whose statuses there is a picture of one colour.
struct ShotCL
{
    CommandResultCL TakeM(const std::string& sections, const std::string& options = "")
    {
        const DescriptionFileCL file(HeaderSections + sections);
        return runCommand(
            "shot " + options + " \"" + std::string(file.path()) + "\" \"" + picture.path() + "\"");
    }
    // How many pixels of a picture have each of the three colours.
    std::vector<int> ColoursM(const std::string& sections, const std::string& options = "")
    {
        const CommandResultCL result = TakeM(sections, options);
        EXPECT_EQ(result.code, 0) << result.errors;
        const PngPictureCL png(picture.path());
        return { png.CountM(First), png.CountM(Second), png.CountM(Third) };
    }
    std::string BmpButtonM() const
    {
        return std::string("[位图按钮]\n1\n0\n1 11 20 30 40 30\n") + first.path() + "\n" + second.path()
            + "\n" + third.path() + "\nNULL\nNULL\n";
    }
    std::string MultiStateButtonM() const
    {
        return "[多态按钮]\n1\n0\n1 11 20 30 40 30 20\nNULL\n[多态按钮数据]\n3\n0\n"
            + rowsM("10", "20", "30");
    }
    std::string AnimationM() const
    {
        return "[普通动画控件]\n1\n0\n1 11 20 30 40 30 1 1 0 0\n[普通动画控件位图]\n3\n0\n"
            + rowsM("", "", "");
    }
    std::string NewRotateButtonM() const
    {
        // Names are completed with the file's folder: all of these are in the same one.
        return std::string("[窗口中新旋转按钮数据]\n1 1\n1 0 11 20 30 40 30 1 -1 0\n"
                           "[新旋转按钮对应的图片]\n3 1\n0 0 0 ")
            + nameOf(first) + "\n0 0 1 " + nameOf(second) + "\n0 0 2 " + nameOf(third) + "\n";
    }

    SmallPictureCL first { First, 40, 30 };
    SmallPictureCL second { Second, 40, 30 };
    SmallPictureCL third { Third, 40, 30 };
    TempFile picture { "", ".png" };

private:
    static std::string nameOf(const TempFile& file)
    {
        const std::string path = file.path();
        return path.substr(path.find_last_of("/\\") + 1);
    }
    std::string rowsM(const std::string& a, const std::string& b, const std::string& c) const
    {
        return "11 " + a + " " + first.path() + "\n11 " + b + " " + second.path() + "\n11 " + c + " "
            + third.path() + "\n";
    }
};

using CountsTP = std::vector<int>;

} // namespace

TEST(Shot, WritesAPictureOfTheWholeWindow)
{
    const TempFile picture("", ".png");
    const CommandResultCL result
        = runCommand("shot \"" + sample("two_kinds.dlg") + "\" \"" + picture.path() + "\"");
    EXPECT_EQ(result.code, 0) << result.errors;
    const std::string png = picture.bytes();
    ASSERT_GT(png.size(), 33U);
    EXPECT_EQ(png.substr(0, 8), "\x89PNG\r\n\x1A\n");
    // The size in the picture's head is that of the window: 300 by 200.
    EXPECT_EQ(png.substr(16, 8), std::string("\0\0\x01\x2C\0\0\0\xC8", 8));
}

TEST(Shot, PictureThatCannotBeWrittenGetsOneClearLine)
{
    expectComplaint(runCommand("shot \"" + exampleFiles()[0] + "\" no/such/folder/x.png"), "cannot write");
}

TEST(Shot, BitmapButtonIsPicturedInAnyStatus)
{
    ShotCL shot;
    EXPECT_EQ(shot.ColoursM(shot.BmpButtonM()), (CountsTP { Area, 0, 0 }));
    EXPECT_EQ(shot.ColoursM(shot.BmpButtonM(), "--status 11 1"), (CountsTP { 0, Area, 0 }));
    EXPECT_EQ(shot.ColoursM(shot.BmpButtonM(), "--status 11 2"), (CountsTP { 0, 0, Area }));
    EXPECT_EQ(shot.ColoursM(shot.BmpButtonM(), "--status 11 3"), (CountsTP { 0, 0, 0 }));
}

TEST(Shot, MultiStateButtonIsPicturedInTheStatusOfAValue)
{
    ShotCL shot;
    EXPECT_EQ(shot.ColoursM(shot.MultiStateButtonM()), (CountsTP { 0, Area, 0 }));
    EXPECT_EQ(shot.ColoursM(shot.MultiStateButtonM(), "--status 11 30"), (CountsTP { 0, 0, Area }));
}

TEST(Shot, AnimationStandsStillAtAFrame)
{
    ShotCL shot;
    EXPECT_EQ(shot.ColoursM(shot.AnimationM()), (CountsTP { Area, 0, 0 })); // Its time is over long before.
    EXPECT_EQ(shot.ColoursM(shot.AnimationM(), "--status 11 2"), (CountsTP { 0, 0, Area }));
    EXPECT_EQ(shot.ColoursM(shot.AnimationM(), "--status 11 0"), (CountsTP { Area, 0, 0 }));
}

TEST(Shot, NewRotateButtonsThatTheLibraryLeavesToTheApplicationAreShown)
{
    ShotCL shot;
    EXPECT_EQ(shot.ColoursM(shot.NewRotateButtonM()), (CountsTP { Area, 0, 0 }));
    EXPECT_EQ(shot.ColoursM(shot.NewRotateButtonM(), "--status 11 1"), (CountsTP { 0, Area, 0 }));
}

TEST(Shot, IdsAreWrittenOnControls)
{
    constexpr std::uint32_t LabelGround = 0xFFFFAA;
    ShotCL shot;
    EXPECT_EQ(shot.TakeM(shot.BmpButtonM()).code, 0);
    EXPECT_EQ(PngPictureCL(shot.picture.path()).CountM(LabelGround), 0);
    EXPECT_EQ(shot.TakeM(shot.BmpButtonM(), "--ids").code, 0);
    EXPECT_GT(PngPictureCL(shot.picture.path()).CountM(LabelGround), 100);
}

TEST(Shot, StatusThatNoControlHasGetsOneClearLine)
{
    ShotCL shot;
    expectComplaint(shot.TakeM(shot.BmpButtonM(), "--status 11 4"), "no status 4");
    expectComplaint(shot.TakeM(shot.BmpButtonM(), "--status 11 -1"), "no status -1");
    expectComplaint(shot.TakeM(shot.MultiStateButtonM(), "--status 11 77"), "no status 77");
    expectComplaint(shot.TakeM(shot.BmpButtonM(), "--status 11 1 --status 12 0"), "control 12");
    EXPECT_EQ(shot.picture.bytes(), "");
}

#endif
