// Talks to the language server as a client gone wrong does, and changes broken texts and asks about them. Run
// by scripts/fuzz with the corpus in fuzz/corpus/lsp. The first byte of an input says what the rest is: the
// client's bytes; its messages, each behind a NUL; a text, whose last bytes are the changes and questions.
#include "baselib/gbk.h"
#include "lsp/features.h"
#include "lsp/server.h"
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr std::size_t StepSize = 6; // Bytes of a change or question.
constexpr std::size_t MostSteps = 6;

void expect(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

void talk(std::string sent)
{
    if (sent.empty()) {
        return;
    }
    std::FILE* const client = ::fmemopen(sent.data(), sent.size(), "rb");
    {
        InboxCL inbox(client);
        ServerCL server("");
        JsonTP message;
        while (inbox.TakeM(&message, true)) {
            // Commands start programs and write files.
            const bool isCommand = message.is_object()
                && message.value("method", JsonTP()) == JsonTP("workspace/executeCommand");
            if (!isCommand && !server.TakeM(message, inbox)) {
                break;
            }
        }
        server.TellFindingsM();
    }
    std::fclose(client);
}

std::string withHeads(const std::string& messages)
{
    std::string sent;
    for (std::size_t at = 0; at < messages.size();) {
        const std::size_t end = std::min(messages.find('\0', at), messages.size());
        sent += "Content-Length: " + std::to_string(end - at) + "\r\n\r\n" + messages.substr(at, end - at);
        at = end + 1;
    }
    return sent;
}

JsonTP position(unsigned line, unsigned character)
{
    return { { "line", line }, { "character", character } };
}

JsonTP step(OpenFileCL& file, const std::uint8_t* what)
{
    static const char* const Texts[] = { "", "1", "\n", " ", "-7 0", "\r", "[", "\xE6\xA0\x87\xE9\xA2\x98",
        "\xE2\x82\xAC", "\xF0\x9F\x98\x80", "NULL", "1001", "9999999999", "x y" };
    using AskTP = JsonTP (*)(OpenFileCL&, const JsonTP&);
    static const AskTP Questions[]
        = { &inlayHints, &hoverAt, &completionsAt, &definitionOf, &referencesOf, &preparedRename, &renamed,
              &documentSymbols, &foldingRanges, &documentColours, &colourPresentations, &formattingEdits };
    const JsonTP begin = position(what[1], what[2]);
    const JsonTP range = { { "start", begin }, { "end", position(what[1] + what[3] % 8U, what[4]) } };
    const char* const text = Texts[what[5] % std::size(Texts)];
    const std::size_t which = what[0] % (2 * std::size(Questions));
    if (which > std::size(Questions)) {
        file.ChangeM().ChangeM({ { "range", range }, { "text", text } });
        return nullptr;
    }
    const JsonTP colour = { { "red", what[3] / 255.0 }, { "green", 1 }, { "blue", what[4] / 16.0 } };
    const JsonTP params
        = { { "position", begin }, { "range", range }, { "newName", text }, { "color", colour } };
    try {
        return which < std::size(Questions)
            ? Questions[which](file, params)
            : codeActions(file, params, what[5] % 2 == 0 ? Language::English : Language::Chinese);
    } catch (const RefusalCL&) {
        return nullptr;
    }
}

void askAbout(const std::uint8_t* data, std::size_t size)
{
    const std::size_t steps = std::min(MostSteps, size / (2 * StepSize));
    const std::size_t length = size - steps * StepSize;
    OpenFileCL file("file:///nowhere/fuzz.dlg", slGbkToUtf8(reinterpret_cast<const char*>(data), length),
        static_cast<PositionCode>(size % 3));
    for (std::size_t i = 0; i < steps; ++i) {
        step(file, data + length + i * StepSize).dump(); // Throws for a text that is no UTF-8.
        const DocumentCL& document = file.DocumentM();
        expect(slUtf8ToGbk(document.Utf8M()) == document.GbkM());
    }
    for (const FindingCL& finding : file.AnalysisM().findings.ListM()) {
        expect(finding.offset <= file.DocumentM().GbkM().size());
        expect(file.DocumentM().OffsetM(file.DocumentM().PositionM(finding.offset)) <= finding.offset);
        diagnosticOf(file, finding, Language::Chinese).dump();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // What is sent to the client is not looked at.
    static const std::FILE* const out = std::freopen("/dev/null", "w", stdout);
    static_cast<void>(out);
    if (size == 0) {
        return 0;
    }
    const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    switch (data[0] % 4) {
    case 0:
        talk(bytes);
        break;
    case 1:
        talk(withHeads(bytes));
        break;
    default:
        askAbout(data + 1, size - 1);
    }
    return 0;
}
