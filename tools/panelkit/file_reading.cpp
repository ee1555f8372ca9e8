#include "file_reading.h"
#include "baselib/gbk.h"
#include "baselib/number_text.h"
#include "dialog/binding.h"
#include "dialog/relation.h"
#include <algorithm>

FileReadingCL::FileReadingCL(std::shared_ptr<const FileTextCL> text, bool keepsAll)
    : text_(std::move(text))
    , keepsAll_(keepsAll)
{
    io_.OpenM(text_);
    io_.SetObserverM(&seen_);
    hasDialog_ = slReadDialogHeader(io_, dialog_) != 0;
    slReadRelations(io_, [](RelationCL&) {});
    slReadBindings(io_, [this](BindingCL& binding) {
        bindings_.push_back(binding);
        return 1;
    });
    newRotateButtons_.FmReadInterfaceM(&io_);
}

void FileReadingCL::ReadKindsM()
{
    slEachKind([this](auto row) {
        using RecordsTP = typename decltype(row)::Records;
        ReadKindM<RecordsTP>([](int, typename RecordsTP::RecordTP&) {});
    });
}

void FileReadingCL::KeepValuesM(int grammar)
{
    SeenSectionCL& section = SectionM(grammar);
    if (!section.keepsLast) {
        return;
    }
    SeenSectionsCL all;
    io_.SetObserverM(&all);
    slReadAlone(io_, grammar);
    io_.SetObserverM(&seen_);
    section.values = std::move(all.AtM(grammar).values);
    section.starts = std::move(all.AtM(grammar).starts);
    section.keepsLast = false;
}

int FileReadingCL::NumberM(const SeenValueCL* value) const
{
    int number = 0;
    if (value != nullptr) {
        const std::string_view bytes = BytesM(*value);
        slReadInt(bytes.data(), bytes.data() + bytes.size(), &number);
    }
    return number;
}

const std::vector<std::size_t>& FileReadingCL::linesM() const
{
    if (lines_.empty()) {
        lines_.push_back(0);
        const std::string_view bytes = text_->CutM({ 0, text_->SizeM() });
        for (std::size_t at = bytes.find('\n'); at != std::string_view::npos; at = bytes.find('\n', at + 1)) {
            lines_.push_back(at + 1);
        }
    }
    return lines_;
}

std::size_t FileReadingCL::LineM(std::size_t offset) const
{
    const std::vector<std::size_t>& lines = linesM();
    return static_cast<std::size_t>(std::upper_bound(lines.begin(), lines.end(), offset) - lines.begin()) - 1;
}

std::size_t FileReadingCL::LineStartM(std::size_t line) const
{
    return line < linesM().size() ? linesM()[line] : text_->SizeM();
}

std::string FileReadingCL::utf8M(std::string_view text)
{
    return slGbkToUtf8(text.data(), text.size());
}
