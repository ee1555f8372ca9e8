// What reading a description file tells the application of its faults.
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "dialog/reading_diagnostics.h"
#include "support/description.h"
#include "support/large_picture.h"
#include <gtest/gtest.h>

namespace {

using LinesTP = std::vector<std::string>;

void keepLine(const DiagnosticCL& what, void* lines)
{
    static_cast<LinesTP*>(lines)->push_back(std::to_string(what.line) + ":" + std::to_string(what.column)
        + " " + what.code + " " + slGbkToUtf8(what.message));
}

void readAll(ReadingDiagnosticsCL& diagnostics, const char* path)
{
    diagnostics.BeginBuildM();
    const auto read = [&](auto&& section) {
        VrIOCL io;
        io.OpenM(path, "r");
        diagnostics.WatchM(path, io);
        section(io);
    };
    DialogHeaderCL header;
    read([&header](VrIOCL& io) { slReadDialogHeader(io, header); });
    slEachKindAsBuilt([&read](auto row) {
        typename decltype(row)::Records records;
        int count = 0;
        read([&](VrIOCL& io) { slReadSection(io, records, &count); });
    });
}

LinesTP told(const std::string& utf8)
{
    const DescriptionFileCL file(utf8);
    LinesTP lines;
    ReadingDiagnosticsCL diagnostics(&keepLine, &lines, false);
    readAll(diagnostics, file.path());
    return lines;
}

LinesTP toldBelowHeader(const std::string& utf8) // Its lines count from 11.
{
    return told(HeaderSections + utf8);
}

} // namespace

TEST(ReadingDiagnostics, AGoodFileIsPassedOverInSilence)
{
    EXPECT_EQ(toldBelowHeader("[标题]\n1\n0\n1 2 3 4 5 6 1\n速度\n0 0 0 0\n"), LinesTP());
}

TEST(ReadingDiagnostics, AMissingFileIsToldOnceABuild)
{
    LinesTP lines;
    ReadingDiagnosticsCL diagnostics(&keepLine, &lines, false);
    readAll(diagnostics, "no/such/file.dlg");
    EXPECT_EQ(lines, LinesTP { "0:0 missing-file there is no such description file" });
    readAll(diagnostics, "no/such/file.dlg");
    EXPECT_EQ(lines.size(), 2U);
}

TEST(ReadingDiagnostics, OnceMeansNotAgainByTheNextBuild)
{
    LinesTP lines;
    ReadingDiagnosticsCL diagnostics(&keepLine, &lines, true);
    readAll(diagnostics, "no/such/file.dlg");
    readAll(diagnostics, "no/such/file.dlg");
    EXPECT_EQ(lines.size(), 1U);
    readAll(diagnostics, "no/other/file.dlg");
    EXPECT_EQ(lines.size(), 2U);
}

TEST(ReadingDiagnostics, AMissingHeaderSectionIsTold)
{
    EXPECT_EQ(told("[对话框]\n"), LinesTP { "0:0 missing-section section [版本号] is missing" });
    EXPECT_EQ(told("[版本号]\n1.0\n"), LinesTP { "0:0 missing-section section [对话框] is missing" });
}

TEST(ReadingDiagnostics, ASectionThatSlipsIsToldOfWhereItBeginsTo)
{
    EXPECT_EQ(toldBelowHeader("[标题]\n2\n0\n1 2 3O 4 5 6 1\n甲\n0 0 0 0\n1 2 3 4 5 6 1\n乙\n0 0 0 0\n"),
        LinesTP {
            "14:6 bad-number a number should stand here ([标题] record 1, position), not 'O'; the values "
            "behind it slip" });
}

TEST(ReadingDiagnostics, RecordsThatEndBeforeTheirCountAreTold)
{
    EXPECT_EQ(toldBelowHeader("[标题]\n2\n0\n1 2 3 4 5 6 1\n甲\n0 0 0 0\n[按钮]\n0\n0\n"),
        LinesTP { "17:1 short-section the records end before their count is reached ([标题] record 2, "
                  "window_index)" });
    EXPECT_EQ(toldBelowHeader("[标题]\n2\n0\n1 2 3 4 5 6 1\n甲\n0 0 0 0"),
        LinesTP { "16:8 short-section the records end before their count is reached ([标题] record 2, "
                  "window_index)" });
}

TEST(ReadingDiagnostics, ANumberBeyondItsRangeLeavesTheSectionInStep)
{
    EXPECT_EQ(toldBelowHeader("[标题]\n1\n0\n1 2 99999999999 4 5 -99999999999 1\n甲\n0 0 0 0\n"),
        (LinesTP { "14:5 bad-number 99999999999 is beyond the range of position; the limit is used",
            "14:21 bad-number -99999999999 is beyond the range of size; the limit is used" }));
}

TEST(ReadingDiagnostics, ACutTextIsTold)
{
    EXPECT_EQ(toldBelowHeader("[标题]\n1\n0\n1 2 3 4 5 6 1\n" + std::string(300, 'x') + "\n0 0 0 0\n"),
        LinesTP { "15:1 text-too-long the text of text is cut" });
}

TEST(ReadingDiagnostics, CountsThatCannotBeMeantAreTold)
{
    EXPECT_EQ(toldBelowHeader("[标题]\nzwei\n0\n"),
        LinesTP { "12:1 bad-count the count of [标题] should be a number" });
    EXPECT_EQ(toldBelowHeader("[标题]\n70000\n0\n"),
        LinesTP { "12:1 bad-count the count of [标题] cannot be meant: the rest of the file is too short for "
                  "it" });
    EXPECT_EQ(toldBelowHeader("[标题]\n0\n0\n"), LinesTP());
}

TEST(ReadingDiagnostics, PicturesThatAreMissingOrNoneAreToldEachTimeTheyAreNamed)
{
    const TempFile text("no picture", ".bmp");
    const std::string name = std::filesystem::path(text.path()).generic_string();
    const LinesTP lines = told("[版本号]\n1.0\n[对话框]\n0\n1 2\n30 40\n1\n甲\n14 2 4\nnowhere.bmp\n");
    EXPECT_EQ(lines, LinesTP { "10:1 missing-file there is no file 'nowhere.bmp'" });
    EXPECT_EQ(told("[版本号]\n1.0\n[对话框]\n0\n1 2\n30 40\n1\n甲\n14 2 4\n" + name + "\n"),
        LinesTP { "10:1 bad-picture '" + name + "' is no .bmp picture that can be shown" });
    const std::string lamp = PANELKIT_SAMPLES "/check/lamp.bmp";
    EXPECT_EQ(told("[版本号]\n1.0\n[对话框]\n0\n1 2\n30 40\n1\n甲\n14 2 4\n" + lamp + "\n"), LinesTP());
}

TEST(ReadingDiagnostics, APictureOfTooManyPixelsIsGoodExceptForARegion)
{
    const LargePictureCL large(1, 30000, 30000);
    const std::string name = std::filesystem::path(large.path()).generic_string();
    const std::string button = "[位图按钮]\n1\n0\n2 1101 100 10 64 32\n" + name + "\nNULL\nNULL\nNULL\n";
    EXPECT_EQ(toldBelowHeader(button + "NULL\n"), LinesTP());
    EXPECT_EQ(toldBelowHeader(button + name + "\n"),
        LinesTP { "19:1 bad-picture '" + name + "' has too many pixels: no region is made of it" });
    const TempFile empty("", ".bmp");
    const std::string nothing = std::filesystem::path(empty.path()).generic_string();
    EXPECT_EQ(told("[版本号]\n1.0\n[对话框]\n0\n1 2\n30 40\n1\n甲\n14 2 4\n" + nothing + "\n"),
        LinesTP { "10:1 bad-picture '" + nothing + "' is no .bmp picture that can be shown" });
}

TEST(ReadingDiagnostics, SecondarySectionsThatAreMissingAndEntriesOfNobodyAreTold)
{
    const std::string list = "[文本列表框]\n1\n0\n1 11 3 4 5 6 20 1 0 255 255 255 0\n";
    EXPECT_EQ(toldBelowHeader(list),
        LinesTP { "11:1 missing-secondary no control of [文本列表框] is built: another section that it needs "
                  "is missing or broken" });
    EXPECT_EQ(toldBelowHeader(list + "[文本列表框初始值]\n2\n0\n11 甲\n12 乙\n"),
        LinesTP { "19:1 unknown-id [文本列表框初始值] entry 2 names an unknown id: it is dropped" });
}

TEST(ReadingDiagnostics, PicturesOfEntriesAreLookedFor)
{
    EXPECT_EQ(toldBelowHeader("[普通动画控件]\n1\n0\n1 11 3 4 5 6 0 100 1 0\n[普通动画控件位图]\n2\n0\n"
                              "11 nowhere.bmp\n11 NULL\n"),
        LinesTP { "18:4 missing-file there is no file 'nowhere.bmp'" });
}
