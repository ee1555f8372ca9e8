// What may stand at the cursor: headers of sections, choices, ids, names of pictures.
#include "baselib/gbk.h"
#include "features.h"
#include "field_info.h"
#include "section_layout.h"
#include <algorithm>
#include <climits>
#include <cstdio>
#include <set>

namespace {

namespace fs = std::filesystem;

// Kinds of items, as the protocol numbers them.
constexpr int ModuleItem = 9;
constexpr int ValueItem = 12;
constexpr int FileItem = 17;
constexpr int ReferenceItem = 18;

class CompleterCL
{
public:
    CompleterCL(OpenFileCL& file, std::size_t offset)
        : file_(file)
        , bytes_(file.DocumentM().GbkM())
        , offset_(offset)
    {
    }
    JsonTP ItemsM()
    {
        const std::size_t begin = lineBeginM();
        const std::string_view line = bytes_.substr(begin, offset_ - begin);
        const std::size_t text = nextText(line, 0, line.size());
        if (text < line.size() && line[text] == '[') {
            replaced_ = { begin + text, headerEndM() };
            addHeadersM();
        } else if (findFieldM()) {
            addValuesM();
        }
        if (text == line.size()) { // Nothing stands in the line before the cursor.
            replaced_ = { offset_, offset_ };
            addHeadersM();
        }
        return std::move(items_);
    }

private:
    std::size_t lineBeginM() const
    {
        const std::size_t end
            = offset_ == 0 ? std::string_view::npos : bytes_.find_last_of("\r\n", offset_ - 1);
        return end == std::string_view::npos ? 0 : end + 1;
    }
    std::size_t headerEndM() const
    {
        const std::size_t end = std::min(bytes_.find_first_of(" \t\r\n]", offset_), bytes_.size());
        return end < bytes_.size() && bytes_[end] == ']' ? end + 1 : end;
    }

    void addM(const std::string& text, const std::string& detail, int kind, const std::string& filter = "")
    {
        char order[16];
        std::snprintf(order, sizeof order, "%06zu", items_.size());
        JsonTP item = { { "label", text }, { "detail", detail }, { "kind", kind }, { "sortText", order },
            { "textEdit", textEdit(file_, replaced_, text) } };
        if (!filter.empty()) {
            item["filterText"] = filter;
        }
        items_.push_back(std::move(item));
    }
    // Those that the file doesn't have yet, found by their English names too.
    void addHeadersM()
    {
        for (std::size_t i = 0; i < slGrammars().size(); ++i) {
            const auto grammar = static_cast<int>(i);
            if (!file_.ReadingM().SectionM(grammar).IsThereM()) {
                const std::string header = slGbkToUtf8(slGrammars()[i].header);
                const bool isTyped = replaced_.begin < replaced_.end;
                addM(
                    header, recordName(grammar), ModuleItem, isTyped ? header : header + recordName(grammar));
            }
        }
    }

    // The field of the value that is at the cursor or would stand there.
    bool findFieldM()
    {
        grammar_ = file_.SectionAtM(offset_);
        if (grammar_ <= VersionGrammar) {
            return false;
        }
        const SeenSectionCL& section = file_.ReadingM().SectionM(grammar_);
        const std::size_t head = std::max(
            { section.head.countSpan.end, section.head.commentCount.end, section.head.comments.end });
        if (offset_ < head || section.values.empty()) {
            return false;
        }
        const auto next = std::find_if(section.values.begin(), section.values.end(),
            [this](const SeenValueCL& value) { return value.end >= offset_ || value.end == value.begin; });
        if (next == section.values.end()) {
            return false;
        }
        field_ = fieldOf(grammar_, next->field);
        const bool isInside = next->begin <= offset_ && next->end >= offset_;
        replaced_ = isInside ? SpanCL { next->begin, next->end } : SpanCL { offset_, offset_ };
        return field_ != nullptr;
    }

    void addValuesM()
    {
        for (const ChoiceCL& choice : field_->choices) {
            addM(std::to_string(choice.value), choice.name, ValueItem);
        }
        if (field_->meant == Meant::Flag) {
            addM("0", "no", ValueItem);
            addM("1", "yes", ValueItem);
        } else if (field_->meant == Meant::Id) {
            addIdsM();
        } else if (field_->meant == Meant::Picture) {
            addPicturesM();
        }
    }
    // For who names a control the controls; for a control an id that is free.
    void addIdsM()
    {
        const char* const owner = slGrammars()[static_cast<std::size_t>(grammar_)].owner;
        const bool isRelation = slGrammars()[static_cast<std::size_t>(grammar_)].NamesControlsM();
        int largest = 2; // OK and Cancel have 1 and 2.
        std::set<int> added;
        for (const IdUseCL& use : file_.IdsM()) {
            const bool isMeant = use.isControl
                && (isRelation || (owner != nullptr && use.place.grammar == slGrammarOf(owner)));
            if (isMeant && added.insert(use.id).second) {
                const std::string words = file_.TextOfM(use.place.grammar, use.place.record);
                addM(std::to_string(use.id),
                    recordName(use.place.grammar) + (words.empty() ? "" : " “" + words + "”"), ReferenceItem);
            }
            largest = std::max(largest, use.id);
        }
        if (owner == nullptr && !isRelation && largest < INT_MAX) {
            addM(std::to_string(largest + 1), "free", ValueItem);
        }
    }
    // Of the file's own folder.
    void addPicturesM()
    {
        std::error_code error;
        std::set<std::string> names;
        const fs::path& path = file_.DocumentM().PathM();
        for (fs::directory_iterator at(path.parent_path(), error), end; !error && at != end;
             at.increment(error)) {
            std::string ending = at->path().extension().u8string();
            std::transform(ending.begin(), ending.end(), ending.begin(),
                [](char c) { return static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c); });
            if (ending == ".bmp") {
                names.insert(at->path().filename().u8string());
            }
        }
        for (const std::string& name : names) {
            addM(name, "picture", FileItem);
        }
        addM("NULL", "none", ValueItem);
    }

    OpenFileCL& file_;
    std::string_view bytes_;
    std::size_t offset_;
    SpanCL replaced_;
    int grammar_ { -1 };
    const FieldInfoCL* field_ { nullptr };
    JsonTP items_ = JsonTP::array();
};

} // namespace

JsonTP completionsAt(OpenFileCL& file, const JsonTP& params)
{
    return CompleterCL(file, file.DocumentM().OffsetM(params.at("position"))).ItemsM();
}
