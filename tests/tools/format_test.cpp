// panelkit format: numbers below their comments, and nothing else changed.
#include "records/field_counter.h"
#include "support/description.h"
#include "support/random_description.h"
#include "tools/run_command.h"

namespace {

CommandResultCL format(const TempFile& file, const std::string& options = "")
{
    return runCommand("format \"" + std::string(file.path()) + "\"" + options);
}

std::string dumpOf(const TempFile& file)
{
    return runCommand("dump \"" + std::string(file.path()) + "\"").output;
}

std::string formatted(const std::string& utf8)
{
    const DescriptionFileCL file(utf8);
    const CommandResultCL result = format(file);
    EXPECT_EQ(result.code, 0) << result.errors;
    EXPECT_EQ(result.output + result.errors, "");
    const std::string bytes = file.bytes();
    return slGbkToUtf8(bytes.data(), bytes.size());
}

// What is not to change, line ends too.
std::string withoutBlanks(const std::string& bytes)
{
    std::string rest;
    for (const char byte : bytes) {
        if (byte != ' ' && byte != '\t') {
            rest += byte;
        }
    }
    return rest;
}

// Whether lining up changed the file; nothing that is read may differ, and a second time nothing is left to
// do.
bool checkFormatted(const std::string& bytes)
{
    const TempFile file(bytes, ".dlg");
    EXPECT_EQ(format(file).code, 0);
    const std::string once = file.bytes();
    if (once == bytes) {
        return false;
    }
    EXPECT_TRUE(dumpOf(file) == dumpOf(TempFile(bytes, ".dlg")));
    EXPECT_TRUE(withoutBlanks(once) == withoutBlanks(bytes));
    EXPECT_EQ(format(file, " --check").code, 0);
    return true;
}

} // namespace

TEST(Format, NumbersStandBelowTheirWords)
{
    EXPECT_EQ(
        formatted("[标题]\n2\n2\n任何文字\n窗口序号 功能号 左  上 宽 高 对齐(3 居中) / 文本 / 边框 背景色\n"
                  "1 1001 20 12 84 20 4\n作业  名称:\n0 157 183 217\n"
                  "\t10\t5 2 120   84 20 4  \r\nmm/s\n0 -1 0 0\n"),
        "[标题]\n2\n2\n任何文字\n窗口序号 功能号 左  上 宽 高 对齐(3 居中) / 文本 / 边框 背景色\n"
        "       1   1001 20  12 84 20    4\n作业  名称:\n0 157 183 217\n"
        "      10      5  2 120 84 20    4  \r\nmm/s\n0  -1   0   0\n");
}

TEST(Format, WideNumbersMakeRoomAndSeveralShareAWord)
{
    EXPECT_EQ(formatted("[二维绘图控件]\n2\n1\n窗口序号 功能号 左 上 宽 高 背景色(红 绿 蓝)\n"
                        "8 1701 3120 136 92 72 0 64 96\n9 2 0 0 0 0 255 255 255\n"),
        "[二维绘图控件]\n2\n1\n窗口序号 功能号 左 上 宽 高 背景色(红 绿 蓝)\n"
        "       8   1701 3120 136 92 72   0  64  96\n       9      2    0   0  0  0 255 255 255\n");
}

TEST(Format, TextsBeginBelowEachOther)
{
    EXPECT_EQ(formatted("[列表控件]\n1\n0\n1 4 0 0 9 9 2 0\n[列表控件列标题]\n2\n1\n功能号 列 宽 / 标题\n"
                        "4 0 150 图 名\n4 1 80  12\n[列表控件初始值]\n2\n0\n4 0 0 7\n4 10 1 1200\n"),
        "[列表控件]\n1\n0\n1 4 0 0 9 9 2 0\n[列表控件列标题]\n2\n1\n功能号 列 宽 / 标题\n"
        "     4  0 150 图 名\n     4  1  80 12\n[列表控件初始值]\n2\n0\n4  0 0    7\n4 10 1 1200\n");
}

TEST(Format, LinesThatHoldMoreThanValuesStay)
{
    // A word where a number should be, numbers of two records in a line, numbers that touch.
    for (const char* const rows : { "1  2 3 x 5  6\n7  8 9 0 0  0\n", "1  2 3 4 5  6 7  8 9 0 0  0\n",
             "1  2 3 4-5  6\n7  8 9 0-0  0\n" }) {
        const std::string file = "[树形控件]\n2\n1\n窗口序号 功能号 左 上 宽 高\n" + std::string(rows);
        EXPECT_EQ(formatted(file), file);
    }
}

TEST(Format, CheckTellsTheFirstLine)
{
    const DescriptionFileCL file("[树形控件]\n1\n1\n窗口序号 功能号 左 上 宽 高\n1  2 3 4 5  6\n");
    const CommandResultCL result = format(file, " --check");
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output, file.path() + std::string(":5: numbers are not lined up from here on\n"));
}

TEST(Format, FileThatWouldBeReadOtherwiseStays)
{
    // Labels whose count just can't be meant: with the blanks that the boxes get, the file is long enough.
    std::string boxes = slUtf8ToGbk("[成组控件]\n2000\n1\n窗口序号 功能号 左 上 宽 高 / 文本\n");
    for (int i = 0; i < 2000; ++i) {
        boxes += "1 2 3 4 5 6\nx\n";
    }
    const std::size_t values = static_cast<std::size_t>(slFewestValues<DVrLabelCL>());
    const std::size_t count = (boxes.size() + 1) / (2 * values) + 1;
    ASSERT_GT(count, 1000U);
    const TempFile file(slUtf8ToGbk("[标题]\n") + std::to_string(count) + "\n" + boxes, ".dlg");
    const std::string dump = dumpOf(file);
    ASSERT_EQ(countOf(dump, "\"broken\""), 1);
    const std::string before = file.bytes();
    const CommandResultCL result = format(file);
    EXPECT_EQ(result.code, 0);
    EXPECT_NE(result.errors.find(":7: left as it is"), std::string::npos) << result.errors;
    EXPECT_TRUE(file.bytes() == before);
}

TEST(Format, ExamplesAndSamplesAreReadAsBefore)
{
    int changed = 0;
    std::vector<std::string> files = exampleFiles();
    for (const std::string& one : descriptionFiles(PANELKIT_SAMPLES)) {
        files.push_back(one);
    }
    for (const std::string& one : files) {
        const std::string bytes = wholeFile(one);
        const TempFile file(bytes, ".dlg");
        const int code = format(file, " --check").code;
        EXPECT_TRUE(file.bytes() == bytes) << "--check writes nothing";
        const bool isChanged = checkFormatted(bytes);
        EXPECT_EQ(code, isChanged ? 1 : 0);
        changed += isChanged ? 1 : 0;
        EXPECT_FALSE(HasFailure()) << one;
    }
    EXPECT_GE(changed, 8);
}

TEST(Format, FilesMadeByChanceAreReadAsBefore)
{
#ifdef _WIN32
    constexpr int Files = 10; // A process takes long to start under Wine,
#elif defined(__SANITIZE_ADDRESS__)
    constexpr int Files = 60; // and less long with sanitizers.
#else
    constexpr int Files = 500;
#endif
    RandomDescriptionCL random(20);
    int changed = 0;
    const std::string example = wholeFile(PANELKIT_EXAMPLES "/plotter/plotter.dlg");
    for (int i = 0; i < Files && !HasFailure(); ++i) {
        changed += checkFormatted(i % 2 == 0 ? random.FileM() : random.MutatedM(example)) ? 1 : 0;
        EXPECT_FALSE(HasFailure()) << "file " << i;
    }
    EXPECT_GE(changed, Files / 2);
}

TEST(Format, FilesThatCannotBeUsedGetOneClearLine)
{
    for (const std::string& bytes : { std::string("[标题]\n1\n"), std::string("\xFF\xFE[\0", 4) }) {
        const TempFile file(bytes);
        expectComplaint(format(file), "panelkit convert");
        EXPECT_EQ(file.bytes(), bytes);
    }
    expectComplaint(runCommand("format \"no such.dlg\""), "'no such.dlg': no such file");
}
