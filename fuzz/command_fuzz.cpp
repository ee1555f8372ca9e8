// Feeds broken description files to the parts of the command that need no window: check, dump, format,
// convert, ids, strings. Run by scripts/fuzz with the corpus in fuzz/corpus/command. The first byte of an
// input says which.
#include "check.h"
#include "commands.h"
#include "support/bmp_file.h"
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
        BmpFile picture;
        picture.addRow({ 0x123456 });
        const std::vector<unsigned char> pictureBytes = picture.bytes();
        WriteM("a.bmp", { pictureBytes.begin(), pictureBytes.end() });
        WriteM("b.bmp", "BM is no picture");
    }
    FolderCL(const FolderCL&) = delete;
    FolderCL& operator=(const FolderCL&) = delete;
    ~FolderCL()
    {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
    std::string PathM(const char* name) const { return path_ + "/" + name; }
    void WriteM(const char* name, const std::string& bytes) const
    {
        const int out = ::open(PathM(name).c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        if (out < 0 || ::write(out, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) {
            std::abort();
        }
        ::close(out);
    }

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

void check(const FolderCL& folder, const std::string& bytes, bool isPrinted)
{
    const FindingsCL findings
        = checkText("fuzz.dlg", folder.PathM(""), std::make_shared<const FileTextCL>(bytes));
    findings.TextM(Language::English, true);
    findings.TextM(Language::Chinese, true);
    for (const FindingCL& finding : findings.ListM()) {
        expect(finding.offset <= bytes.size());
    }
    if (isPrinted) {
        printFindingsAsJson({ findings }, Language::Chinese);
        printFindingsAsSarif({ findings, findings }, Language::English);
    }
}

void dump(const std::string& file)
{
    ShowOptionsCL options;
    options.files = { file };
    dumpCommand(options);
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
    if (which < 3) {
        check(folder, bytes, which == 2);
        return 0;
    }
    folder.WriteM("fuzz.dlg", bytes);
    switch (which) {
    case 3:
        dump(file);
        break;
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
