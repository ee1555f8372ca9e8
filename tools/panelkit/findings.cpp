#include "findings.h"
#include "json.h"
#include "sort_rows.h"
#include <algorithm>
#include <cstdio>
#include <tuple>

const std::vector<MessageCL>& allMessages()
{
    static const std::vector<MessageCL> messages {
#define PANELKIT_ROW(name, code, severity, english, chinese) { code, Severity::severity, english, chinese },
        PANELKIT_MESSAGES(PANELKIT_ROW)
#undef PANELKIT_ROW
    };
    return messages;
}

std::string FindingCL::TextM(Language language) const
{
    const std::string format = messageOf(says).TextM(language);
    std::string text;
    for (std::size_t i = 0; i < format.size(); ++i) {
        if (format[i] == '{' && i + 2 < format.size() && format[i + 2] == '}') {
            const auto number = static_cast<std::size_t>(format[i + 1] - '0');
            text += number < details.size() ? details[number] : "";
            i += 2;
        } else {
            text += format[i];
        }
    }
    return text;
}

void FindingsCL::SortM()
{
    std::vector<std::tuple<std::size_t, Says, std::size_t>> order;
    order.reserve(list_.size());
    for (std::size_t i = 0; i < list_.size(); ++i) {
        order.push_back({ list_[i].offset, list_[i].says, i });
    }
    sortRows(order);
    std::vector<FindingCL> sorted;
    sorted.reserve(list_.size());
    for (const auto& [offset, says, i] : order) {
        if (sorted.empty() || sorted.back().offset != offset || sorted.back().says != says
            || sorted.back().details != list_[i].details) {
            sorted.push_back(std::move(list_[i]));
            sorted.back().place = text_->PlaceM(offset);
        }
    }
    list_ = std::move(sorted);
}

std::size_t FindingsCL::CountM(Severity severity) const
{
    return static_cast<std::size_t>(std::count_if(list_.begin(), list_.end(),
        [severity](const FindingCL& finding) { return messageOf(finding.says).severity == severity; }));
}

namespace {

const char* severityName(Severity severity)
{
    return severity == Severity::Error ? "error" : "warning";
}

std::string counted(std::size_t count, const char* noun)
{
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::string summary(std::size_t errors, std::size_t warnings, std::size_t files, Language language)
{
    if (language == Language::Chinese) {
        return std::to_string(files) + " 个文件: " + std::to_string(errors) + " 个错误, "
            + std::to_string(warnings) + " 个警告";
    }
    return counted(files, "file") + ": " + counted(errors, "error") + ", " + counted(warnings, "warning");
}

} // namespace

std::string FindingsCL::TextM(Language language, bool withWarnings) const
{
    std::string text;
    for (const FindingCL& finding : list_) {
        const MessageCL& message = messageOf(finding.says);
        const bool isError = message.severity == Severity::Error;
        const char* const word = language == Language::English ? severityName(message.severity)
            : isError                                          ? "错误"
                                                               : "警告";
        if (isError || withWarnings) {
            text += file_ + ":" + std::to_string(finding.place.line) + ":"
                + std::to_string(finding.place.column) + ": " + word + ": " + finding.TextM(language) + " ["
                + message.code + "]\n";
        }
    }
    return text;
}

void printFindings(const std::vector<FindingsCL>& files, Language language)
{
    std::size_t errors = 0;
    std::size_t warnings = 0;
    std::string out;
    for (const FindingsCL& file : files) {
        out += file.TextM(language, true);
        errors += file.CountM(Severity::Error);
        warnings += file.CountM(Severity::Warning);
    }
    out += summary(errors, warnings, files.size(), language) + "\n";
    std::fwrite(out.data(), 1, out.size(), stdout);
}

void printFindingsAsJson(const std::vector<FindingsCL>& files, Language language)
{
    JsonTP list = JsonTP::array();
    for (const FindingsCL& file : files) {
        for (const FindingCL& finding : file.ListM()) {
            const MessageCL& message = messageOf(finding.says);
            list.push_back({ { "file", file.FileM() }, { "line", finding.place.line },
                { "column", finding.place.column }, { "severity", severityName(message.severity) },
                { "code", message.code }, { "message", finding.TextM(language) } });
        }
    }
    printJson(list);
}

namespace {

// A file's name as a URI reference: what it can't hold is written %XX.
std::string uriOf(const std::string& file)
{
    std::string uri;
    for (const char byte : file) {
        const bool isPlain = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z')
            || (byte >= '0' && byte <= '9') || std::string("-._~/").find(byte) != std::string::npos;
        if (isPlain) {
            uri += byte;
        } else if (byte == '\\') {
            uri += '/';
        } else {
            char text[4];
            std::snprintf(text, sizeof text, "%%%02X", static_cast<unsigned char>(byte));
            uri += text;
        }
    }
    const bool hasDrive = uri.size() > 3 && uri.compare(1, 3, "%3A") == 0;
    return hasDrive ? "file:///" + uri.substr(0, 1) + ":" + uri.substr(4)
                    : (uri.rfind('/', 0) == 0 ? "file://" : "") + uri;
}

JsonTP sarifRules(Language language)
{
    JsonTP rules = JsonTP::array();
    const char* last = "";
    for (const MessageCL& message : allMessages()) {
        if (std::string(last) != message.code) {
            rules.push_back(
                { { "id", message.code }, { "shortDescription", { { "text", message.TextM(language) } } },
                    { "defaultConfiguration", { { "level", severityName(message.severity) } } } });
        }
        last = message.code;
    }
    return rules;
}

} // namespace

void printFindingsAsSarif(const std::vector<FindingsCL>& files, Language language)
{
    JsonTP results = JsonTP::array();
    for (const FindingsCL& file : files) {
        for (const FindingCL& finding : file.ListM()) {
            const MessageCL& message = messageOf(finding.says);
            const JsonTP region
                = { { "startLine", finding.place.line }, { "startColumn", finding.place.column } };
            const JsonTP location = { { "physicalLocation",
                { { "artifactLocation", { { "uri", uriOf(file.FileM()) } } }, { "region", region } } } };
            results.push_back({ { "ruleId", message.code }, { "level", severityName(message.severity) },
                { "message", { { "text", finding.TextM(language) } } },
                { "locations", JsonTP::array({ location }) } });
        }
    }
    const JsonTP driver
        = { { "name", "panelkit" }, { "version", PANELKIT_VERSION }, { "rules", sarifRules(language) } };
    const JsonTP run = { { "tool", { { "driver", driver } } }, { "columnKind", "unicodeCodePoints" },
        { "results", std::move(results) } };
    printJson({ { "$schema", "https://json.schemastore.org/sarif-2.1.0.json" }, { "version", "2.1.0" },
        { "runs", JsonTP::array({ run }) } });
}
