// Feeds broken description files to the parts of the command that need no window: check, format, convert,
// ids, strings. Run by scripts/fuzz with the corpus in fuzz/corpus/command. The first byte of an input says
// which.
#include "check.h"
#include "commands.h"
#include "text_file.h"
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace {

// A folder that only this process has, gone with it.
class FolderCL
{
public:
    FolderCL()
    {
        char name[] = "/dev/shm/panelkit_fuzz_XXXXXX";
        path_ = ::mkdtemp(name) != nullptr ? name : "";
        // What commands say is not looked at; the sanitizers write past both.
        std::freopen("/dev/null", "w", stdout);
        stderr = std::fopen("/dev/null", "w");
    }
    FolderCL(const FolderCL&) = delete;
    FolderCL& operator=(const FolderCL&) = delete;
    ~FolderCL()
    {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
    std::string PathM(const char* name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

std::string bytesOf(const std::string& file)
{
    std::string bytes;
    return readBytes(file, &bytes) ? bytes : "";
}

void expect(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

void check(const std::string& bytes)
{
    const FindingsCL findings = checkBytes("fuzz.dlg", "/nowhere", std::string(bytes));
    findings.TextM(Language::English, true);
    findings.TextM(Language::Chinese, true);
    for (const FindingCL& finding : findings.ListM()) {
        expect(finding.offset <= bytes.size());
    }
}

// What is formatted is formatted: once more changes nothing.
void format(const std::string& file)
{
    formatCommand(file, false);
    const std::string once = bytesOf(file);
    formatCommand(file, false);
    expect(bytesOf(file) == once);
}

// What could be converted comes back.
void convert(const std::string& file, const std::string& other, const std::string& bytes)
{
    const bool wasUtf8 = convertCommand(file, other, true) == 0 && bytesOf(other) == bytes;
    if (!wasUtf8 && convertCommand(file, other, true) == 0) {
        const bool comesBack = convertCommand(other, file, false) == 0;
        convertCommand(file, other, true);
        expect(!comesBack || !bytesOf(other).empty());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const FolderCL folder;
    if (size == 0) {
        return 0;
    }
    const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    const std::string file = folder.PathM("fuzz.dlg");
    const std::string other = folder.PathM("other");
    const int which = data[0] % 8;
    if (which < 4) {
        check(bytes);
        return 0;
    }
    const int out = ::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    expect(out >= 0 && ::write(out, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
    ::close(out);
    switch (which) {
    case 4:
        format(file);
        break;
    case 5:
        convert(file, other, bytes);
        break;
    case 6:
        idsCommand(file, other, nullptr, "");
        break;
    default: {
        StringsOptionsCL options;
        options.files = { file };
        options.out = other;
        stringsCommand(options);
    }
    }
    return 0;
}
