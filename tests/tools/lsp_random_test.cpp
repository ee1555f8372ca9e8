// panelkit lsp: long sessions, and what a keystroke costs in a large file.
#include "support/random_description.h"
#include "tools/lsp_client.h"
#include <ctime>
#include <fstream>
#include <random>
#include <sstream>
#ifndef _WIN32
#include <sys/resource.h>
#endif

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(_WIN32)
constexpr int Edits = 2000; // Both are slow, and memory says nothing there.
#else
constexpr int Edits = 10000;
#endif

constexpr std::size_t MostText = 4000;

// A random description of characters that both codes have, with plain line ends.
std::u16string startingText()
{
    const std::string gbk = RandomDescriptionCL(7).FileM();
    const std::u16string wide = slGbkToUtf16(gbk.data(), gbk.size());
    std::string text = slUtf16ToGbk(wide.data(), wide.size());
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
    return slGbkToUtf16(text.data(), text.size()).substr(0, MostText);
}

class TypistCL
{
public:
    explicit TypistCL(EditedTextCL& text)
        : text_(text)
    {
    }
    void EditM()
    {
        static const std::u16string Typed[] { u"1", u" ", u"\n", u"23", u"标", u"[标题]", u"\n2\n0\n",
            u"-1 0 0", u"NULL", u"x", u"3001 自动\n", u"１", u"€" };
        const std::size_t at = belowM(text_.text.size() + 1);
        const bool isLong = text_.text.size() > MostText;
        const std::size_t most = isLong ? 40 : 6;
        const std::size_t length = belowM(3) == 0 || isLong ? belowM(most) : 0;
        changes_.push_back(text_.ChangeM(
            at, std::min(at + length, text_.text.size()), isLong ? u"" : Typed[belowM(std::size(Typed))]));
        if (belowM(50) == 0) { // Editors too tell of several at once.
            TellM();
        }
    }
    void TellM() { text_.TellM(std::exchange(changes_, LspJson::array())); }
    void AskM()
    {
        TellM();
        static const char* const Methods[] { "hover", "completion", "definition", "references",
            "prepareRename", "documentSymbol", "foldingRange", "documentColor", "formatting", "inlayHint",
            "codeAction" };
        const std::size_t at = belowM(text_.text.size() + 1);
        text_.AskAtM(Methods[belowM(std::size(Methods))], at,
            { { "range", text_.RangeM(at, std::min(at + 200, text_.text.size())) } });
    }
    // What the server has told, as check tells it of the same bytes.
    void CompareM()
    {
        TellM();
        std::string told;
        for (const LspJson& finding : text_.FindingsM()) {
            const LspJson& start = finding["range"]["start"];
            told += std::to_string(start["line"].get<int>() + 1) + ":"
                + std::to_string(start["character"].get<int>() + 1) + " " + finding["message"].dump() + "\n";
        }
        const TempFile file(text_.GbkM(), ".dlg");
        std::string checked;
        const CommandResultCL result
            = runCommand("check --format json --lang en \"" + std::string(file.path()) + "\"");
        for (const LspJson& finding : LspJson::parse(result.output)) {
            checked += finding["line"].dump() + ":" + finding["column"].dump() + " "
                + finding["message"].dump() + "\n";
        }
        EXPECT_EQ(told, checked);
    }

private:
    std::size_t belowM(std::size_t limit) { return random_() % limit; }

    EditedTextCL& text_;
    LspJson changes_ = LspJson::array(); // Not told yet.
    std::mt19937 random_ { 20 };
};

#if !defined(_WIN32) && !defined(__SANITIZE_ADDRESS__)

std::size_t residentPages(pid_t process)
{
    std::ifstream in("/proc/" + std::to_string(process) + "/statm");
    std::size_t size = 0;
    std::size_t resident = 0;
    in >> size >> resident;
    return resident;
}

double processorSeconds(pid_t process)
{
    clockid_t clock {};
    timespec time {};
    EXPECT_EQ(::clock_getcpuclockid(process, &clock), 0);
    EXPECT_EQ(::clock_gettime(clock, &time), 0);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double processorSecondsOfChildren()
{
    rusage usage {};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

// 10,000 controls of two kinds, each edit behind its label.
std::string largeFile()
{
    constexpr int RecordsEach = 5000;
    std::string file = std::string(VersionHeader) + "\n1.0\n" + DialogHeader
        + "\n0\n0 0\n60000 60000\n1\nT\n14 2 4\nNULL\n";
    const auto add = [&](const char* header, int place, const std::string& rest) {
        file += std::string(header) + "\n" + std::to_string(RecordsEach) + "\n0\n";
        for (int i = 0; i < RecordsEach; ++i) {
            const int number = 2 * i + place;
            file += std::to_string(number) + " " + std::to_string(3 + RecordsEach * place + i) + " "
                + std::to_string(number % 400 * 100) + " " + std::to_string(number / 400 * 30) + " 80 24 "
                + rest + "\n";
        }
    };
    add(LabelHeader, 0, "1\ntext\n0 -1 0 0");
    add(SingleEditHeader, 1, "1 0 100 0 0 2 50\n0 1 255 255 255");
    return file;
}

#endif

} // namespace

TEST(LspLong, ManyEditsEndWithTheFindingsOfCheck)
{
    LspClientCL client;
    const std::u16string start = startingText();
    const TempFile file("", ".dlg"); // Its folder has no pictures either.
    EditedTextCL text(client, file.path(), slUtf16ToGbk(start.data(), start.size()));
    TypistCL typist(text);
#if !defined(_WIN32) && !defined(__SANITIZE_ADDRESS__)
    std::size_t before = 0;
#endif
    for (int edit = 1; edit <= Edits; ++edit) {
        typist.EditM();
        if (edit % 50 == 0) {
            typist.AskM();
        }
        if (edit % 1000 == 0) {
            typist.CompareM();
        }
#if !defined(_WIN32) && !defined(__SANITIZE_ADDRESS__)
        if (edit == 2000) {
            before = residentPages(client.ProcessM());
        }
#endif
    }
#if !defined(_WIN32) && !defined(__SANITIZE_ADDRESS__)
    const std::size_t after = residentPages(client.ProcessM());
    std::printf("resident pages: %zu after 2000 edits, %zu after %d\n", before, after, Edits);
    constexpr std::size_t Slack = 512; // 2 MB.
    EXPECT_LE(after, before + Slack);
#endif
}

#if !defined(_WIN32) && !defined(__SANITIZE_ADDRESS__)

TEST(LspLong, AKeystrokeCostsAtMostThreeTimesCheck)
{
    const TempFile file(largeFile(), ".dlg");
    const std::string arguments = std::string("check --lang en \"") + file.path() + "\"";
    EXPECT_EQ(runCommand(arguments).output, "1 file: 0 errors, 0 warnings\n");
    double checking = 1e9;
    for (int i = 0; i < 5; ++i) {
        const double begin = processorSecondsOfChildren();
        runCommand(arguments);
        checking = std::min(checking, processorSecondsOfChildren() - begin);
    }
    LspClientCL client;
    EditedTextCL text(client, file.path(), file.bytes());
    EXPECT_EQ(text.FindingsM().size(), 0U);
    double typing = 1e9;
    const std::size_t at = text.text.rfind(u"50\n");
    for (int i = 0; i < 5; ++i) {
        const double begin = processorSeconds(client.ProcessM());
        const bool isWrong = i % 2 == 0;
        text.TypeM(at, at + (isWrong ? 2 : 3), isWrong ? u"999" : u"50");
        EXPECT_EQ(text.FindingsM().size(), isWrong ? 1U : 0U);
        typing = std::min(typing, processorSeconds(client.ProcessM()) - begin);
    }
    std::printf("checking %.1f ms, a keystroke %.1f ms\n", checking * 1000, typing * 1000);
    EXPECT_LE(typing, 3 * checking);
}

#endif
