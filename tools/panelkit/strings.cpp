// A gettext template of the texts of description files.
#include "baselib/gbk.h"
#include "baselib/message_texts.h"
#include "commands.h"
#include "dialog/translation.h"
#include "encodings.h"
#include "readable_texts.h"
#include "text_file.h"
#include <algorithm>
#include <cstdio>
#include <map>

namespace {

// A text with all its places, or with those of one control.
struct TemplateEntryCL
{
    std::string context; // Empty: of any.
    std::string text;
    std::vector<std::string> notes;
    std::vector<std::string> places;
};

std::string quoted(const std::string& text)
{
    std::string result = "\"";
    for (const char letter : text) {
        if (letter == '"' || letter == '\\') {
            result += '\\';
        }
        if (static_cast<unsigned char>(letter) < ' ') {
            char code[5];
            std::snprintf(code, sizeof code, "\\%03o", static_cast<unsigned>(letter));
            result += letter == '\n' ? "\\n" : code;
        } else {
            result += letter;
        }
    }
    return result + "\"";
}

// Digits and signs read the same in every language.
bool hasWords(const std::string& text)
{
    return std::any_of(text.begin(), text.end(), [](char letter) {
        const auto code = static_cast<unsigned char>(letter);
        return code >= 0x80 || (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z');
    });
}

std::string noteOf(const ReadableTextCL& text)
{
    return slTextContext(text.kind.c_str(), text.id) + ", " + text.field + ": room for "
        + std::to_string(text.width) + " x " + std::to_string(text.height) + " pixels";
}

// Names with blanks stand between the two marks that gettext's tools know.
std::string placeOf(const std::string& file, std::size_t line)
{
    const bool hasBlank = file.find_first_of(" \t") != std::string::npos;
    return (hasBlank ? "\u2068" + file + "\u2069" : file) + ":" + std::to_string(line);
}

class TemplateCL
{
public:
    // byContext: each control has entries of its own, so that its texts can be translated in its own way.
    explicit TemplateCL(bool byContext)
        : byContext_(byContext)
    {
    }
    void AddM(const std::string& file, FileReadingCL& reading)
    {
        for (const ReadableTextCL& text : readableTexts(reading)) {
            if (!hasWords(text.text)) {
                continue;
            }
            TemplateEntryCL& entry
                = entryM(byContext_ ? slTextContext(text.kind.c_str(), text.id) : "", text.text);
            entry.places.push_back(placeOf(file, reading.TextM().PlaceM(text.offset).line));
            const std::string note = noteOf(text);
            if (std::find(entry.notes.begin(), entry.notes.end(), note) == entry.notes.end()) {
                entry.notes.push_back(note);
            }
        }
    }
    // The library's own messages.
    void AddMessagesM()
    {
        for (int id = 0; id < MessageTextCount; ++id) {
            slSetMessageLanguage("");
            const std::string own = utf8(slMessageTemplate(id));
            slSetMessageLanguage("en");
            if (!own.empty()) {
                entryM(slMessageContext(id), own).notes.push_back(noteOfMessage(utf8(slMessageTemplate(id))));
            }
        }
    }
    std::string TextM() const
    {
        std::string text = "# Made by panelkit strings.\n#, fuzzy\nmsgid \"\"\nmsgstr \"\"\n"
                           "\"Project-Id-Version: PACKAGE VERSION\\n\"\n"
                           "\"PO-Revision-Date: YEAR-MO-DA HO:MI+ZONE\\n\"\n"
                           "\"Last-Translator: FULL NAME <EMAIL@ADDRESS>\\n\"\n"
                           "\"Language-Team: LANGUAGE <LL@li.org>\\n\"\n\"Language: \\n\"\n"
                           "\"MIME-Version: 1.0\\n\"\n\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
                           "\"Content-Transfer-Encoding: 8bit\\n\"\n";
        for (const TemplateEntryCL& entry : entries_) {
            text += '\n';
            for (const std::string& note : entry.notes) {
                text += "#. " + note + "\n";
            }
            for (const std::string& place : entry.places) {
                text += "#: " + place + "\n";
            }
            if (!entry.context.empty()) {
                text += "msgctxt " + quoted(entry.context) + "\n";
            }
            text += "msgid " + quoted(entry.text) + "\nmsgstr \"\"\n";
        }
        return text;
    }

private:
    static std::string utf8(const std::u16string& text) { return slUtf16ToUtf8(text.data(), text.size()); }
    // A comment has one line.
    static std::string noteOfMessage(std::string english)
    {
        std::replace(english.begin(), english.end(), '\n', ' ');
        return "In English: " + english;
    }
    TemplateEntryCL& entryM(const std::string& context, const std::string& text)
    {
        const auto place = numbers_.emplace(std::pair(context, text), entries_.size());
        if (place.second) {
            entries_.push_back({ context, text, {}, {} });
        }
        return entries_[place.first->second];
    }

    bool byContext_;
    std::vector<TemplateEntryCL> entries_;
    std::map<std::pair<std::string, std::string>, std::size_t> numbers_; // Of an entry.
};

} // namespace

int stringsCommand(const StringsOptionsCL& options)
{
    TemplateCL made(options.byContext);
    int result = 0;
    for (const std::string& file : options.files) {
        std::string bytes;
        if (!readWholeFile(file, &bytes)) {
            result = CannotUse;
            continue;
        }
        if (encodingOf(bytes) != Encoding::Gbk) {
            result = complainOfEncoding(file, encodingOf(bytes));
            continue;
        }
        FileReadingCL reading(std::make_shared<const FileTextCL>(bytes));
        made.AddM(file, reading);
    }
    if (result != 0) {
        return result;
    }
    if (options.hasMessages) {
        made.AddMessagesM();
    }
    const std::string text = made.TextM();
    if (!options.out.empty()) {
        return writeWholeFile(options.out, text) ? 0 : CannotUse;
    }
    std::fwrite(text.data(), 1, text.size(), stdout);
    return 0;
}
