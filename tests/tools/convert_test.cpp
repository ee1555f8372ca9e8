// panelkit convert: description files in the codes that editors write.
#include "support/description.h"
#include "tools/run_command.h"
#include <filesystem>

namespace {

CommandResultCL convert(const std::string& arguments)
{
    return runCommand("convert " + arguments);
}

std::string quoted(const TempFile& file)
{
    return "\"" + std::string(file.path()) + "\"";
}

std::string utf16(const std::string& gbk, bool isLowFirst)
{
    std::string bytes;
    for (const char16_t unit : slGbkToUtf16(gbk.data(), gbk.size())) {
        const char low = static_cast<char>(unit & 0xFF);
        const char high = static_cast<char>(unit >> 8);
        bytes += isLowFirst ? std::string { low, high } : std::string { high, low };
    }
    return bytes;
}

// The file of these bytes is refused at a place, and nothing is changed.
void expectRefused(const std::string& bytes, const std::string& said, const std::string& options = "")
{
    const TempFile file(bytes);
    const CommandResultCL result = convert(quoted(file) + options);
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors.find(file.path() + (":" + said) + "; nothing was changed"), 0U) << result.errors;
    EXPECT_EQ(result.errors.find('\n'), result.errors.size() - 1);
    EXPECT_EQ(file.bytes(), bytes);
}

} // namespace

TEST(Convert, BringsEveryExampleFromEveryCodeToTheSameBytes)
{
    for (const std::string& example : exampleFiles()) {
        const std::string gbk = wholeFile(example);
        const std::string utf8 = slGbkToUtf8(gbk.data(), gbk.size());
        for (const std::string& bytes : { utf8, "\xEF\xBB\xBF" + utf8, "\xFF\xFE" + utf16(gbk, true),
                 "\xFE\xFF" + utf16(gbk, false), utf16(gbk, true), utf16(gbk, false) }) {
            const TempFile file(bytes);
            const CommandResultCL result = convert(quoted(file));
            EXPECT_EQ(result.code, 0) << result.errors;
            EXPECT_NE(result.output.find(bytes[0] == '[' && bytes[1] != '\0' ? "UTF-8 to GBK" : " to GBK"),
                std::string::npos)
                << result.output;
            EXPECT_EQ(file.bytes(), gbk) << example;
        }
    }
}

TEST(Convert, WritesAnotherFileAndLeavesTheFirstAlone)
{
    const std::string gbk = wholeFile(exampleFiles().front());
    const std::string utf8 = slGbkToUtf8(gbk.data(), gbk.size());
    const TempFile from(gbk);
    const TempFile to;
    EXPECT_EQ(convert(quoted(from) + " --to utf-8 -o " + quoted(to)).code, 0);
    EXPECT_EQ(from.bytes(), gbk);
    EXPECT_EQ(to.bytes(), utf8);
    const TempFile back;
    EXPECT_EQ(convert(quoted(to) + " -o " + quoted(back)).code, 0);
    EXPECT_EQ(back.bytes(), gbk);
}

TEST(Convert, EveryPairOfGbkComesBackFromUtf8)
{
    std::string pairs = slUtf8ToGbk("[标题]\n") + "\x80\r\n";
    for (int lead = 0x81; lead <= 0xFE; ++lead) {
        for (int trail = 0x40; trail <= 0xFE; ++trail) {
            if (trail != 0x7F) {
                pairs += static_cast<char>(lead);
                pairs += static_cast<char>(trail);
            }
        }
        pairs += '\n';
    }
    const TempFile file(pairs);
    EXPECT_EQ(convert(quoted(file) + " --to utf-8").code, 0);
    EXPECT_NE(file.bytes(), pairs);
    const CommandResultCL back = convert(quoted(file));
    EXPECT_EQ(back.code, 0) << back.errors;
    EXPECT_TRUE(file.bytes() == pairs);
}

TEST(Convert, WhatIsThereAlreadyIsLeftAlone)
{
    namespace fs = std::filesystem;
    for (const char* const utf8 : { "", "plain\n", "[标题]\n1\n", "联通" }) {
        const std::string gbk = slUtf8ToGbk(utf8);
        const TempFile file(gbk);
        const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(48);
        fs::last_write_time(file.path(), longAgo);
        const auto before = fs::last_write_time(file.path());
        const CommandResultCL result = convert(quoted(file));
        EXPECT_EQ(result.code, 0);
        EXPECT_EQ(result.output, file.path() + std::string(": already GBK\n"));
        EXPECT_EQ(file.bytes(), gbk);
        EXPECT_EQ(fs::last_write_time(file.path()), before);
        const TempFile to("old");
        EXPECT_EQ(convert(quoted(file) + " -o " + quoted(to)).code, 0);
        EXPECT_EQ(to.bytes(), gbk);
    }
    const TempFile file("[标题]");
    EXPECT_NE(convert(quoted(file) + " --to utf-8").output.find("already UTF-8"), std::string::npos);
    EXPECT_EQ(file.bytes(), "[标题]");
}

TEST(Convert, WhatTheOtherCodeCannotHoldIsRefusedAtItsPlace)
{
    expectRefused("[标题]\n1\n标题 😀, 한\n", "3:4: GBK has no U+1F600 '😀'; 2 such places");
    expectRefused("\xEF\xBB\xBF\n中é한\n", "2:3: GBK has no U+D55C '한'");
    expectRefused("\xFF\xFE"
            + std::string("a\0\0\xD8"
                          "b\0",
                6),
        "1:2: the bytes 0x00 0xD8 are no UTF-16");
    expectRefused("\xFE\xFF" + std::string("\0a\0", 3), "1:2: the byte 0x00 is no UTF-16");
    expectRefused("标题\n\x91标题标题\n", "2:1: the byte 0x91 is no UTF-8");
    const std::string gbk = slUtf8ToGbk("[标题]\n标题");
    expectRefused(gbk + "\xFF\n", "2:3: the byte 0xFF is no GBK");
    expectRefused(gbk + "\xFF\n", "2:3: the byte 0xFF is no GBK", " --to utf-8");
}

TEST(Convert, RefusedTextLeavesTheOtherFileAlone)
{
    const TempFile from("😀");
    const TempFile to("old");
    EXPECT_EQ(convert(quoted(from) + " -o " + quoted(to)).code, 1);
    EXPECT_EQ(to.bytes(), "old");
}

TEST(Convert, FilesThatCannotBeUsedGetOneClearLine)
{
    namespace fs = std::filesystem;
    const TempFile file("标");
    const std::string folder = fs::path(file.path()).parent_path().string();
    expectComplaint(convert("\"no such.dlg\""), "'no such.dlg': no such file");
    expectComplaint(convert("\"" + folder + "\""), "not a regular file");
    expectComplaint(convert(quoted(file) + " -o \"no such folder/x.dlg\""), "'no such folder/x.dlg'");
    expectComplaint(convert(quoted(file) + " -o \"" + folder + "\""), "not a regular file");
    expectComplaint(convert(quoted(file) + " --to latin"), "latin");
    fs::permissions(file.path(), fs::perms::owner_read);
    expectComplaint(convert(quoted(file)), "may only be read");
    fs::permissions(file.path(), fs::perms::owner_all);
    EXPECT_EQ(file.bytes(), "标");
}

#ifndef _WIN32
TEST(Convert, OriginalStaysWhereThereIsNoRoomForTheNewOne)
{
    namespace fs = std::filesystem;
    const std::string folder = (fs::path(TempFile().path()) += ".folder").string();
    fs::create_directory(folder);
    const std::string file = folder + "/x.dlg";
    std::string utf8;
    for (int i = 0; i < 5000; ++i) {
        utf8 += "标题\n";
    }
    {
        const TempFile made(utf8);
        fs::copy_file(made.path(), file);
    }
    const int status = std::system(
        ("trap '' XFSZ; ulimit -f 1; '" PANELKIT_COMMAND "' convert " + file + " 2>/dev/null").c_str());
    EXPECT_EQ(WEXITSTATUS(status), 2);
    EXPECT_TRUE(wholeFile(file) == utf8);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);
    fs::remove_all(folder);
}

TEST(Convert, LinksAndPermissionsStay)
{
    namespace fs = std::filesystem;
    const TempFile file("标");
    fs::permissions(file.path(), fs::perms::owner_all | fs::perms::group_read);
    const fs::path link = fs::path(file.path()) += ".link";
    fs::create_symlink(file.path(), link);
    EXPECT_EQ(convert("\"" + link.string() + "\"").code, 0);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(file.bytes(), slUtf8ToGbk("标"));
    EXPECT_EQ(fs::status(file.path()).permissions(), fs::perms::owner_all | fs::perms::group_read);
    fs::remove(link);
}
#endif
