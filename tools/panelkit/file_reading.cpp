#include "file_reading.h"
#include "baselib/gbk.h"
#include "baselib/number_text.h"
#include "dialog/relation.h"
#include <algorithm>

FileReadingCL::FileReadingCL(std::shared_ptr<const FileTextCL> text)
    : text_(std::move(text))
{
    lines_.push_back(0);
    const std::string_view bytes = text_->CutM({ 0, text_->SizeM() });
    for (std::size_t at = bytes.find('\n'); at != std::string_view::npos; at = bytes.find('\n', at + 1)) {
        lines_.push_back(at + 1);
    }
    VrIOCL io;
    io.OpenM(text_);
    io.SetObserverM(&seen_);
    hasDialog_ = slReadDialogHeader(io, dialog_) != 0;
    slEachKindAsBuilt([&](auto row) {
        int count = 0;
        slReadSection(io, RecordsM<typename decltype(row)::Records>(), &count);
    });
    slReadRelations(io, [](RelationCL&) {});
    slReadBindings(io, [this](BindingCL& binding) {
        bindings_.push_back(binding);
        return 1;
    });
    newRotateButtons_.FmReadInterfaceM(&io);
}

int FileReadingCL::NumberM(const SeenSectionCL& section, int record, const char* field) const
{
    const SeenValueCL* const value = section.FindM(record, field);
    int number = 0;
    if (value != nullptr) {
        const std::string_view bytes = BytesM(*value);
        slReadInt(bytes.data(), bytes.data() + bytes.size(), &number);
    }
    return number;
}

std::size_t FileReadingCL::LineM(std::size_t offset) const
{
    return static_cast<std::size_t>(std::upper_bound(lines_.begin(), lines_.end(), offset) - lines_.begin())
        - 1;
}

std::size_t FileReadingCL::LineStartM(std::size_t line) const
{
    return line < lines_.size() ? lines_[line] : text_->SizeM();
}

std::string FileReadingCL::utf8M(std::string_view text)
{
    return slGbkToUtf8(text.data(), text.size());
}
