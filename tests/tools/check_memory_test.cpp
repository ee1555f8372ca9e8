// What checking takes of memory; instrumented code takes its own.
#if !defined(_WIN32) && !defined(__SANITIZE_ADDRESS__)
#include "baselib/gbk_texts.h"
#include "support/small_picture.h"
#include "support/temp_file.h"
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr double MegaByte = 1024;

// The most that checking a dialog with that background had in memory at a time.
double peakMegaBytes(const char* background)
{
    const TempFile file(std::string(VersionHeader) + "\n1.0\n" + DialogHeader
            + "\n0\n0 0\n60000 60000\n1\nT\n14 2 4\n" + background + "\n",
        ".dlg");
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(::open("/dev/null", O_WRONLY), STDOUT_FILENO);
        ::execl(PANELKIT_COMMAND, "panelkit", "check", "--lang", "en", file.path(), nullptr);
        ::_exit(127);
    }
    int status = -1;
    rusage usage {};
    EXPECT_EQ(::wait4(child, &status, 0, &usage), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
    return static_cast<double>(usage.ru_maxrss) / MegaByte;
}

// Two colours, so many pixels wide and high.
std::string largePicture(int side)
{
    BmpFile file;
    file.width = side;
    file.height = side;
    file.bits = 1;
    file.palette = { 0x000000, 0xFFFFFF };
    file.pixels.resize((static_cast<std::size_t>(side) + 31) / 32 * 4 * static_cast<std::size_t>(side));
    const std::vector<unsigned char> bytes = file.bytes();
    return { bytes.begin(), bytes.end() };
}

} // namespace

TEST(CheckMemory, TakesNoneForPixels)
{
    const SmallPictureCL small(0xFFFFFF, 4, 4);
    const TempFile large(largePicture(8000), ".bmp");
    EXPECT_LT(peakMegaBytes(large.path()) - peakMegaBytes(small.path()), 4);
}

#endif
