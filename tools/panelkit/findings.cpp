#include "findings.h"
#include "json.h"
#include "sort_rows.h"
#include <algorithm>
#include <cstdio>
#include <cstring>

const std::vector<MessageCL>& allMessages()
{
    static const std::vector<MessageCL> messages {
#define PANELKIT_ROW(name, code, severity, english, chinese) { code, Severity::severity, english, chinese },
        PANELKIT_MESSAGES(PANELKIT_ROW)
#undef PANELKIT_ROW
    };
    return messages;
}

namespace {

using DetailLengthTP = std::uint32_t;

std::string_view detailAt(const char* packed)
{
    DetailLengthTP length = 0;
    std::memcpy(&length, packed, sizeof length);
    return { packed + sizeof length, length };
}

bool hasEqualDetails(const FindingCL& a, const FindingCL& b)
{
    if (a.packed == b.packed) {
        return a.count == b.count;
    }
    return a.DetailsM() == b.DetailsM();
}

void appendText(std::string& text, const FindingCL& finding, Language language)
{
    for (std::string_view rest = messageOf(finding.says).TextM(language); !rest.empty();) {
        const std::size_t plain = std::min(rest.find('{'), rest.size());
        text += rest.substr(0, plain);
        rest.remove_prefix(plain);
        if (rest.size() > 2 && rest[2] == '}') {
            const auto wanted = static_cast<std::size_t>(rest[1] - '0');
            const char* at = finding.packed;
            for (std::size_t i = 0; i < finding.count && i <= wanted; ++i) {
                const std::string_view detail = detailAt(at);
                at = detail.data() + detail.size();
                text += i == wanted ? detail : std::string_view();
            }
            rest.remove_prefix(3);
        } else if (!rest.empty()) {
            text += rest.front();
            rest.remove_prefix(1);
        }
    }
}

} // namespace

std::vector<std::string_view> FindingCL::DetailsM() const
{
    std::vector<std::string_view> details;
    for (const char* at = packed; details.size() < count;
         at = details.back().data() + details.back().size()) {
        details.push_back(detailAt(at));
    }
    return details;
}

std::string FindingCL::TextM(Language language) const
{
    std::string text;
    appendText(text, *this, language);
    return text;
}

DetailsCL FindingsCL::PackM(std::initializer_list<std::string_view> details)
{
    std::size_t size = 0;
    for (const std::string_view detail : details) {
        size += sizeof(DetailLengthTP) + detail.size();
    }
    char* const packed = size > 0 ? static_cast<char*>(pool_->allocate(size, 1)) : nullptr;
    char* at = packed;
    for (const std::string_view detail : details) {
        const auto length = static_cast<DetailLengthTP>(detail.size());
        std::memcpy(at, &length, sizeof length);
        at = std::copy(detail.begin(), detail.end(), at + sizeof length);
    }
    return { packed, details.size() };
}

void FindingsCL::SortM()
{
    sortRows(list_);
    const auto isSame = [](const FindingCL& a, const FindingCL& b) {
        return a.offset == b.offset && a.says == b.says && hasEqualDetails(a, b);
    };
    list_.erase(std::unique(list_.begin(), list_.end(), isSame), list_.end());
}

std::size_t FindingsCL::CountM(Severity severity) const
{
    const std::vector<MessageCL>& messages = allMessages();
    return static_cast<std::size_t>(std::count_if(list_.begin(), list_.end(), [&](const FindingCL& finding) {
        return messages[static_cast<std::size_t>(finding.says)].severity == severity;
    }));
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

void FindingsCL::appendLineM(std::string& text, const FindingCL& finding, Language language) const
{
    const MessageCL& message = messageOf(finding.says);
    const PlaceCL place = PlaceM(finding);
    text.append(file_).append(":").append(std::to_string(place.line)).append(":");
    text.append(std::to_string(place.column)).append(": ");
    text.append(language == Language::English     ? severityName(message.severity)
            : message.severity == Severity::Error ? "错误"
                                                  : "警告");
    text.append(": ");
    appendText(text, finding, language);
    text.append(" [").append(message.code).append("]\n");
}

std::string FindingsCL::TextM(Language language, bool withWarnings) const
{
    std::string text;
    for (const FindingCL& finding : list_) {
        if (withWarnings || messageOf(finding.says).severity == Severity::Error) {
            appendLineM(text, finding, language);
        }
    }
    return text;
}

void FindingsCL::PrintM(Language language) const
{
    constexpr std::size_t Block = 65536;
    std::string text;
    for (const FindingCL& finding : list_) {
        appendLineM(text, finding, language);
        if (text.size() >= Block || &finding == &list_.back()) {
            std::fwrite(text.data(), 1, text.size(), stdout);
            text.clear();
        }
    }
}

void printFindings(const std::vector<FindingsCL>& files, Language language)
{
    std::size_t errors = 0;
    std::size_t warnings = 0;
    for (const FindingsCL& file : files) {
        file.PrintM(language);
        errors += file.CountM(Severity::Error);
        warnings += file.CountM(Severity::Warning);
    }
    const std::string last = summary(errors, warnings, files.size(), language) + "\n";
    std::fwrite(last.data(), 1, last.size(), stdout);
}

void printFindingsAsJson(const std::vector<FindingsCL>& files, Language language)
{
    JsonTP list = JsonTP::array();
    for (const FindingsCL& file : files) {
        for (const FindingCL& finding : file.ListM()) {
            const MessageCL& message = messageOf(finding.says);
            const PlaceCL place = file.PlaceM(finding);
            list.push_back({ { "file", file.FileM() }, { "line", place.line }, { "column", place.column },
                { "severity", severityName(message.severity) }, { "code", message.code },
                { "message", finding.TextM(language) } });
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
            const PlaceCL place = file.PlaceM(finding);
            const JsonTP region = { { "startLine", place.line }, { "startColumn", place.column } };
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
