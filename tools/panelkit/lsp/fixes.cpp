// Findings, and what mends them.
#include "baselib/gbk.h"
#include "baselib/number_text.h"
#include "editing/description_editor.h"
#include "features.h"
#include "field_info.h"
#include "section_layout.h"
#include <algorithm>
#include <climits>

namespace {

// To the end of the word there.
SpanCL spanOfFinding(const OpenFileCL& file, const FindingCL& finding)
{
    const std::string& bytes = file.DocumentM().GbkM();
    const std::size_t begin = std::min<std::size_t>(finding.offset, bytes.size());
    const std::size_t end = std::min(bytes.find_first_of(" \t\r\n", begin), bytes.size());
    return { begin, end };
}

// A word that was meant as a number: letters that look like digits, full-width digits, something behind it.
std::string meantNumber(const std::string& word)
{
    std::string meant;
    for (const char16_t code : slUtf8ToUtf16(word)) {
        constexpr char16_t Wide = 0xFF01 - '!';
        const char16_t plain = code >= 0xFF01 && code <= 0xFF5E ? static_cast<char16_t>(code - Wide) : code;
        meant += plain == 'o' || plain == 'O' ? '0'
            : plain == 'l' || plain == 'I'    ? '1'
            : plain < 0x80                    ? static_cast<char>(plain)
                                              : '?';
    }
    float number = 0;
    const char* const end = slReadReal(meant.data(), meant.data() + meant.size(), &number);
    return meant.substr(0, static_cast<std::size_t>(end - meant.data()));
}

class FixerCL
{
public:
    FixerCL(OpenFileCL& file, Language language)
        : file_(file)
        , language_(language)
    {
    }
    JsonTP ActionsM(SpanCL wanted)
    {
        for (const FindingCL& finding : file_.AnalysisM().findings.ListM()) {
            const SpanCL span = spanOfFinding(file_, finding);
            if (span.begin <= wanted.end && span.end >= wanted.begin) {
                finding_ = &finding;
                fixM(finding);
            }
        }
        return std::move(actions_);
    }

private:
    std::string saidM(const char* english, const char* chinese, const std::string& what) const
    {
        return (language_ == Language::Chinese ? chinese : english) + what;
    }
    JsonTP actionM(const std::string& title, bool isPreferred) const
    {
        return { { "title", title }, { "kind", "quickfix" }, { "isPreferred", isPreferred },
            { "diagnostics", JsonTP::array({ diagnosticOf(file_, *finding_, language_) }) } };
    }
    void addM(const std::string& title, SpanCL span, const std::string& text, bool isPreferred = true)
    {
        JsonTP action = actionM(title, isPreferred);
        action["edit"]["changes"][file_.DocumentM().UriM()] = JsonTP::array({ textEdit(file_, span, text) });
        actions_.push_back(std::move(action));
    }
    void writeM(SpanCL span, const std::string& text, bool isPreferred = true)
    {
        addM(saidM("write ", "改为 ", text), span, text, isPreferred);
    }
    void setCountM(const std::string& count)
    {
        const int grammar = file_.SectionAtM(finding_->offset);
        if (grammar > DialogGrammar) {
            addM(saidM("set the count to ", "将数目改为 ", count),
                file_.ReadingM().SectionM(grammar).head.countSpan, count);
        }
    }
    void fixM(const FindingCL& finding);
    void fixValueM(const FindingCL& finding);
    void addSectionM(const std::string& header);

    OpenFileCL& file_;
    Language language_;
    const FindingCL* finding_ { nullptr };
    JsonTP actions_ = JsonTP::array();
};

void FixerCL::fixM(const FindingCL& finding)
{
    const std::vector<std::string_view> details = finding.DetailsM();
    const SpanCL word = spanOfFinding(file_, finding);
    switch (finding.says) {
    case Says::FileIsUtf8:
    case Says::FileIsUtf16: {
        JsonTP action = actionM(saidM("make the file GBK", "将文件转换为 GBK", ""), true);
        action["command"] = { { "title", action["title"] }, { "command", ConvertCommand },
            { "arguments", JsonTP::array({ file_.DocumentM().UriM() }) } };
        actions_.push_back(std::move(action));
        break;
    }
    case Says::UnknownSection: {
        const std::string& bytes = file_.DocumentM().GbkM();
        std::size_t end = std::min(bytes.find_first_of("\r\n", word.begin), bytes.size());
        while (end > word.begin && slIsBlank(bytes[end - 1])) {
            --end;
        }
        writeM({ word.begin, end }, std::string(details[1]));
        break;
    }
    case Says::CountTooSmall:
    case Says::ShortSection:
    case Says::EntryMissing:
        setCountM(std::string(details[1]));
        break;
    case Says::NegativeCount:
        setCountM("0");
        break;
    case Says::BadNumber:
    case Says::RecordSlip: {
        const std::string meant = meantNumber(std::string(details[1]));
        if (!meant.empty()) {
            writeM(word, meant);
        }
        break;
    }
    case Says::BadCount:
    case Says::BadCommentCount: {
        const std::string meant = meantNumber(std::string(details[0]));
        if (!meant.empty()) {
            writeM(word, meant);
        }
        break;
    }
    case Says::DoubledLine: {
        const FileReadingCL& reading = file_.ReadingM();
        const std::size_t line = reading.LineM(finding.offset);
        addM(saidM("delete the line", "删除这一行", ""),
            { reading.LineStartM(line), reading.LineStartM(line + 1) }, "");
        break;
    }
    case Says::MissingSecondary:
        addSectionM(std::string(details[0]));
        break;
    default:
        fixValueM(finding);
        break;
    }
}

void FixerCL::fixValueM(const FindingCL& finding)
{
    const SpanCL word = spanOfFinding(file_, finding);
    switch (finding.says) {
    case Says::BadFlag:
        writeM(word, "0"); // What it counts as.
        writeM(word, "1", false);
        break;
    case Says::BadValue:
    case Says::BadDataType: {
        const ValueInTextCL place = file_.ValueAtM(finding.offset);
        const FieldInfoCL* const field
            = place.value != nullptr ? fieldOf(place.grammar, place.value->field) : nullptr;
        if (field != nullptr) {
            for (const ChoiceCL& choice : field->choices) {
                const std::string number = std::to_string(choice.value);
                addM(saidM("write ", "改为 ", number + " (" + choice.name + ")"), word, number, false);
            }
        }
        break;
    }
    case Says::ZeroGrid:
        writeM(word, "1"); // What it counts as.
        break;
    case Says::DuplicateId: {
        int largest = 2;
        for (const IdUseCL& use : file_.IdsM()) {
            largest = std::max(largest, use.id);
        }
        if (largest < INT_MAX) {
            writeM(word, std::to_string(largest + 1), false);
        }
        break;
    }
    default:
        break;
    }
}

void FixerCL::addSectionM(const std::string& header)
{
    DescriptionEditorCL editor(file_.DocumentM().GbkM());
    if (editor.AddSectionM(slUtf8ToGbk(header).c_str()) == EditResult::Done) {
        JsonTP action = actionM(saidM("add the section ", "添加该节 ", header), true);
        action["edit"]["changes"][file_.DocumentM().UriM()] = textEdits(file_, editor.ChangesM());
        actions_.push_back(std::move(action));
    }
}

} // namespace

JsonTP diagnosticOf(OpenFileCL& file, const FindingCL& finding, Language language)
{
    constexpr int ErrorSeverity = 1;
    constexpr int WarningSeverity = 2;
    const MessageCL& message = messageOf(finding.says);
    return { { "range", file.DocumentM().RangeM(spanOfFinding(file, finding)) },
        { "severity", message.severity == Severity::Error ? ErrorSeverity : WarningSeverity },
        { "code", message.code }, { "source", "panelkit" }, { "message", finding.TextM(language) } };
}

JsonTP codeActions(OpenFileCL& file, const JsonTP& params, Language language)
{
    const DocumentCL& document = file.DocumentM();
    return FixerCL(file, language)
        .ActionsM({ document.OffsetM(params.at("range").at("start")),
            document.OffsetM(params.at("range").at("end")) });
}
