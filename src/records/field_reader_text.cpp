#include "baselib/gbk.h"
#include "baselib/number_scan.h"
#include "records/field_reader.h"

namespace {

bool standsForNothing(std::string_view text, NullWord rule)
{
    if (text.size() != 4 || rule == NullWord::Kept) {
        return false; // Most texts.
    }
    return text == "NULL" || (text == "null" && rule != NullWord::UpperEmpty);
}

} // namespace

// As VrIOCL::InputItemM for a text without a NUL, as nearly all are; false for all else, and nothing is read.
[[gnu::always_inline]] inline bool FieldReaderCL::inputPlainM(std::string_view* item)
{
    if (sure_ == nullptr) {
        return false;
    }
    const char* const begin = slSkipBlanks(io_->at_, sure_);
    const char* const lineEnd = slFindLineEnd(begin, sure_);
    if (lineEnd == nullptr) {
        return false;
    }
    const char* itemEnd = lineEnd;
    while (slIsBlank(itemEnd[-1])) {
        --itemEnd;
    }
    mayJoinM(begin);
    io_->at_ = lineEnd[-1] == '\r' ? lineEnd - 1 : lineEnd;
    *item = { begin, static_cast<std::size_t>(itemEnd - begin) };
    return true;
}

void FieldReaderCL::TextM(const char* name, CharArr& text, const TextFormCL& form)
{
    std::string_view item;
    const bool isPlain = inputPlainM(&item);
    if (!isPlain && room_ != nullptr) {
        room_->isPlain = false;
    }
    if (!isPlain && (isStopped_ || !io_->InputItemM(&item))) {
        tellNoTextM(name);
        return;
    }
    std::string_view kept = item;
    if (kept.size() >= static_cast<std::size_t>(form.size)) {
        kept = kept.substr(
            0, slGbkCutLength(kept.data(), kept.size(), static_cast<std::size_t>(form.size) - 1));
    }
    if (!isPlain) {
        kept = kept.substr(0, kept.find('\0'));
    }
    const bool isNullWord = standsForNothing(kept, form.nullWord);
    if (isNullWord && form.nullWord != NullWord::SkipsEntry) {
        text.SetM("");
    } else if (isReusing_) {
        text.SetWithinM(kept.data(), kept.size(), TextSize);
    } else if (pool_ != nullptr) {
        text.SetInM(*pool_, kept.data(), kept.size());
    } else {
        text.SetM(kept.data(), kept.size());
    }
    isSkipped_ = isSkipped_ || (isNullWord && form.nullWord == NullWord::SkipsEntry);
    if (observer_ != nullptr) {
        tellTextM(name, item, kept.size(), isNullWord);
    }
}

void FieldReaderCL::tellTextM(const char* name, std::string_view item, std::size_t kept, bool isNullWord)
{
    const auto begin = static_cast<std::size_t>(item.data() - io_->FileTextM()->BytesM());
    tellM(name, 0, { begin, begin + item.size() },
        isNullWord                ? Fate::NullWord
            : kept == item.size() ? Fate::Read
                                  : Fate::Cut);
}

void FieldReaderCL::tellNoTextM(const char* name)
{
    if (observer_ != nullptr) {
        const std::size_t at = slNextValue(*io_);
        tellM(name, 0, { at, at }, isStopped_ ? Fate::NotLookedAt : Fate::Missing);
    }
}

void FieldReaderCL::CaptionM(const char* name, CharArr& text, const TextFormCL& form)
{
    TextM(name, text, form);
}

void FieldReaderCL::NameM(const char* name, CharArr& file, const TextFormCL& form)
{
    seen_.isFileName = true;
    TextM(name, file, form);
    seen_.isFileName = false;
}
