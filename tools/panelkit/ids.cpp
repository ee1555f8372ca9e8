// Names for the function ids of a description file, as a C++ header.
#include "baselib/gbk.h"
#include "commands.h"
#include "encodings.h"
#include "identifiers.h"
#include "reading.h"
#include "text_file.h"
#include <algorithm>
#include <climits>
#include <cstdio>
#include <filesystem>
#include <map>
#include <set>
#include <vector>

namespace {

// A number by which the application names a control, or a part of one.
struct NamedIdCL
{
    std::string kind;
    CharArr caption;
    int id;
};

// The ids of one record, and the words that a person reads on its control.
class IdFinderCL : public FieldVisitorCL
{
public:
    IdFinderCL(std::string kind, std::vector<NamedIdCL>& found)
        : kind_(std::move(kind))
        , found_(found)
        , first_(found.size())
    {
    }
    void IdM(const char* name, int& value) override
    {
        found_.push_back(
            { std::string(name) == "function_id" ? kind_ : kind_ + "_arrows", CharArr(), value });
    }
    void CaptionM(const char*, CharArr& text, const TextFormCL&) override { found_[first_].caption = text; }
    void NumberM(const char*, int, simpleValD&) override { } // A value, whatever its type.

private:
    std::string kind_;
    std::vector<NamedIdCL>& found_;
    std::size_t first_;
};

std::string numbered(const std::string& name, int id)
{
    return name + (id < 0 ? "_Minus" : "_") + std::to_string(id).substr(id < 0 ? 1 : 0);
}

// A caption as a comment that ends with its line, whatever code a compiler takes it for: behind half a
// character it would swallow no more than the closing quote.
std::string commentOf(const CharArr& caption)
{
    std::string text = slGbkToUtf8(caption.TextM());
    std::replace_if(
        text.begin(), text.end(), [](unsigned char byte) { return byte < ' ' || byte == 0x7F; }, ' ');
    return text.empty() ? "" : " // \"" + text + "\"";
}

// Each with a name of its own kind and caption. Where several have the same, only the lowest id goes without
// its number.
std::string constantsOf(const std::vector<NamedIdCL>& ids, const std::string& prefix)
{
    std::map<std::string, int> lowest;
    std::vector<std::string> names;
    for (const NamedIdCL& one : ids) {
        names.push_back(prefix + camelOf(one.kind) + identifierOf(one.caption.TextM()));
        const auto place = lowest.emplace(names.back(), one.id).first;
        place->second = std::min(place->second, one.id);
    }
    std::string text;
    std::set<std::string> written;
    for (std::size_t i = 0; i < ids.size(); ++i) {
        const bool isPlain = identifierOf(ids[i].caption.TextM()) != "" && lowest[names[i]] == ids[i].id;
        const std::string name = isPlain ? names[i] : numbered(names[i], ids[i].id);
        if (written.insert(name).second) {
            // The lowest int has no literal of its own.
            const std::string value = ids[i].id == INT_MIN ? "-2147483647 - 1" : std::to_string(ids[i].id);
            text += "constexpr int " + name + " = " + value + ";" + commentOf(ids[i].caption) + "\n";
        }
    }
    return text;
}

bool isNamespace(const std::string& name)
{
    const std::size_t end = name.find("::");
    return isIdentifier(name.substr(0, end))
        && (end == std::string::npos || isNamespace(name.substr(end + 2)));
}

std::string namespaceOf(const std::string& file)
{
    const std::string stem = slUtf8ToGbk(std::filesystem::u8path(file).stem().u8string());
    const std::string name = identifierOf(stem.c_str()) + "Ids";
    return isIdentifier(name) ? name : "Dialog" + name;
}

} // namespace

int idsCommand(
    const std::string& file, const std::string& out, const std::string* space, const std::string& prefix)
{
    if (space != nullptr && !space->empty() && !isNamespace(*space)) {
        return complain("'" + *space + "' can't name a namespace");
    }
    if (!prefix.empty() && !isIdentifier(prefix)) {
        return complain("'" + prefix + "' can't begin a name");
    }
    std::string bytes;
    if (!readWholeFile(file, &bytes)) {
        return CannotUse;
    }
    VrIOCL io;
    io.OpenM(std::make_shared<FileTextCL>(bytes));
    std::vector<NamedIdCL> ids;
    readAllSections(io, [&ids](const char* kind, auto& record) {
        IdFinderCL finder(kind, ids);
        record.EachCommonFieldM(finder);
        record.EachFieldM(finder);
    });
    if (ids.empty() && encodingOf(bytes) != Encoding::Gbk) {
        return complainOfEncoding(file, encodingOf(bytes));
    }
    const std::string constants = constantsOf(ids, prefix);
    const std::string name = space != nullptr ? *space : namespaceOf(file);
    const std::string header = "// Made by panelkit ids; changes here are lost.\n#pragma once\n\n"
        + (name.empty() ? constants
                        : "namespace " + name + " {\n\n" + constants + "\n} // namespace " + name + "\n");
    if (!out.empty()) {
        return writeWholeFile(out, header) ? 0 : CannotUse;
    }
    std::fwrite(header.data(), 1, header.size(), stdout);
    return 0;
}
