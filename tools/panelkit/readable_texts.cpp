#include "readable_texts.h"
#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"
#include "record_view.h"
#include "row_shape.h"
#include <cstring>
#include <unordered_map>

namespace {

class TextFinderCL
{
public:
    explicit TextFinderCL(FileReadingCL& file)
        : file_(file)
    {
    }
    std::vector<ReadableTextCL> FindM()
    {
        const SeenSectionCL& dialog = file_.SectionM(DialogGrammar);
        if (file_.HasDialogM() && dialog.RecordsM() > 0) {
            DialogHeaderCL& header = file_.DialogM();
            view_.BeginM(dialog, 0);
            header.EachFieldM(view_);
            captionsM({ {}, "dialog", nullptr, 0, 0, header.size[0], header.size[1] });
        }
        slEachKind([this](auto row) { kindM<decltype(row)>(); });
        return std::move(found_);
    }

private:
    template <class RowTP> void kindM()
    {
        using RecordsTP = typename RowTP::Records;
        const int grammar = slGrammarOf(RecordsTP::Header);
        const SeenSectionCL& section = file_.SectionM(grammar);
        owners_.clear();
        file_.ReadKindM<RecordsTP>([&](int i, typename RecordsTP::RecordTP& record) {
            view_.BeginM(section, i);
            record.EachCommonFieldM(view_);
            record.EachFieldM(view_);
            const ReadableTextCL control { {}, RecordsTP::KindName, nullptr, view_.IntM("function_id"), 0,
                view_.IntM("size"), view_.IntM("size", 1) };
            owners_.emplace(control.id, control);
            // What the user may change is no text to translate.
            if (RowTP::Code != MultiEditCode || view_.IntM("read_only") == 1) {
                captionsM(control);
            }
        });
        for (const auto& secondary : RecordsTP::Secondaries) {
            // Cells are what the application reads and writes.
            if (std::strcmp(secondary.header, ListCtrlItemHeader) != 0) {
                entriesM(slGrammarOf(secondary.header));
            }
        }
    }
    void captionsM(const ReadableTextCL& control)
    {
        for (const FieldCL& field : view_.FieldsM()) {
            if (field.verb == Verb::Caption && field.seen != nullptr) {
                addM(control, field.name, field.text->TextM(), field.seen->begin);
            }
        }
    }
    void entriesM(int grammar)
    {
        const SeenSectionCL& section = file_.SectionM(grammar);
        const RowShapeCL shape(slGrammars()[static_cast<std::size_t>(grammar)]);
        for (int i = 0; i < section.RecordsM(); ++i) {
            const auto owner = owners_.find(file_.NumberM(section, i, "function_id"));
            if (owner == owners_.end()) {
                continue;
            }
            for (const SeenValueCL* value = section.FirstM(i); value != section.EndM(i); ++value) {
                const RowShapeCL::TextCL* const text
                    = shape.FindM(value->field, static_cast<std::size_t>(value - section.FirstM(i)));
                if (text == nullptr || text->isPicture || value->fate == Fate::NullWord) {
                    continue;
                }
                ReadableTextCL control = owner->second;
                if (section.FindM(i, "width") != nullptr) {
                    control.width = file_.NumberM(section, i, "width");
                }
                std::string bytes(file_.BytesM(*value));
                bytes.resize(
                    slGbkCutLength(bytes.data(), bytes.size(), static_cast<std::size_t>(text->size - 1)));
                addM(control, value->field, bytes.c_str(), value->begin);
            }
        }
    }
    void addM(ReadableTextCL text, const char* field, const char* gbk, std::size_t offset)
    {
        if (*gbk == '\0') {
            return;
        }
        text.text = slGbkToUtf8(gbk);
        text.field = field;
        text.offset = offset;
        found_.push_back(std::move(text));
    }

    FileReadingCL& file_;
    RecordViewCL view_;
    std::unordered_map<int, ReadableTextCL> owners_; // Of the kind at hand; the first with an id.
    std::vector<ReadableTextCL> found_;
};

} // namespace

std::vector<ReadableTextCL> readableTexts(FileReadingCL& file)
{
    return TextFinderCL(file).FindM();
}
