// A gettext template of the texts of description files.
#include "commands.h"
#include "encodings.h"
#include "readable_texts.h"
#include "text_file.h"
#include <algorithm>
#include <cstdio>
#include <map>

namespace {

// A text with all its places.
struct TemplateEntryCL
{
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
            result += code;
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
    std::string kind = text.kind;
    std::replace(kind.begin(), kind.end(), '_', ' ');
    if (text.kind != "dialog") {
        kind += " " + std::to_string(text.id);
    }
    return kind + ", " + text.field + ": room for " + std::to_string(text.width) + " x "
        + std::to_string(text.height) + " pixels";
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
    void AddM(const std::string& file, FileReadingCL& reading)
    {
        for (const ReadableTextCL& text : readableTexts(reading)) {
            if (!hasWords(text.text)) {
                continue;
            }
            const auto place = numbers_.emplace(text.text, entries_.size());
            if (place.second) {
                entries_.push_back({ text.text, {}, {} });
            }
            TemplateEntryCL& entry = entries_[place.first->second];
            entry.places.push_back(placeOf(file, reading.TextM().PlaceM(text.offset).line));
            const std::string note = noteOf(text);
            if (std::find(entry.notes.begin(), entry.notes.end(), note) == entry.notes.end()) {
                entry.notes.push_back(note);
            }
        }
    }
    std::string TextM() const
    {
        std::string text = "# Made by panelkit strings.\n#, fuzzy\nmsgid \"\"\nmsgstr \"\"\n"
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
            text += "msgid " + quoted(entry.text) + "\nmsgstr \"\"\n";
        }
        return text;
    }

private:
    std::vector<TemplateEntryCL> entries_;
    std::map<std::string, std::size_t> numbers_; // Of the entry of a text.
};

} // namespace

int stringsCommand(const std::vector<std::string>& files, const std::string& out)
{
    TemplateCL made;
    int result = 0;
    for (const std::string& file : files) {
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
    const std::string text = made.TextM();
    if (!out.empty()) {
        return writeWholeFile(out, text) ? 0 : CannotUse;
    }
    std::fwrite(text.data(), 1, text.size(), stdout);
    return 0;
}
