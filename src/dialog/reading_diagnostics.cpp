#include "dialog/reading_diagnostics.h"
#include "baselib/file.h"
#include "baselib/gbk_texts.h"
#include "baselib/io.h"
#include "pictures/bmp_reader.h"
#include "records/fields.h"
#include <cstring>

void ReadingDiagnosticsCL::BeginBuildM()
{
    goodPictures_.clear(); // They may have changed.
    if (!isOnce_) {
        told_.clear();
    }
}

void ReadingDiagnosticsCL::WatchM(const char* file, VrIOCL& io)
{
    file_ = file != nullptr ? file : "";
    text_ = io.FileTextM();
    slipped_ = nullptr;
    io.SetObserverM(this);
    if (!io.IsOpenM()) {
        tellM("missing-file", nullptr, "there is no such description file");
    }
}

void ReadingDiagnosticsCL::tellM(const char* code, const SpanCL* span, const std::string& message)
{
    const PlaceCL place = span != nullptr ? text_->PlaceM(span->begin) : PlaceCL { 0, 0 };
    const std::string key
        = file_ + ':' + std::to_string(place.line) + ':' + std::to_string(place.column) + ' ' + message;
    if (tell_ != nullptr && told_.insert(key).second) {
        tell_({ code, file_.c_str(), static_cast<int>(place.line), static_cast<int>(place.column),
                  message.c_str() },
            context_);
    }
}

void ReadingDiagnosticsCL::ValueM(const ValueSeenCL& value)
{
    if (text_ == nullptr || value.section == slipped_) {
        return;
    }
    switch (value.fate) {
    case Fate::NotANumber:
    case Fate::Missing:
        slipped_ = value.section;
        checkNumberM(value);
        break;
    case Fate::Saturated:
        tellM("bad-number", &value.span,
            cutM(value.span) + " is beyond the range of " + value.field + "; the limit is used");
        break;
    case Fate::Cut:
        tellM("text-too-long", &value.span, std::string("the text of ") + value.field + " is cut");
        break;
    case Fate::Read:
        if (value.isFileName) {
            checkPictureM(value);
        }
        break;
    case Fate::NullWord:
    case Fate::NotLookedAt:
        break;
    }
}

void ReadingDiagnosticsCL::checkNumberM(const ValueSeenCL& value)
{
    const std::string word = cutM(value.span);
    const std::string where
        = std::string(value.section) + " record " + std::to_string(value.record + 1) + ", " + value.field;
    if (word.empty() || word[0] == '[') {
        tellM("short-section", &value.span, "the records end before their count is reached (" + where + ")");
    } else {
        tellM("bad-number", &value.span,
            "a number should stand here (" + where + "), not '" + word + "'; the values behind it slip");
    }
}

void ReadingDiagnosticsCL::checkPictureM(const ValueSeenCL& value)
{
    const std::string name = cutM(value.span);
    if (name.empty() || slIsNullWord(name.c_str()) != 0 || goodPictures_.count(name) > 0) {
        return;
    }
    unsigned char beginning[BmpBeginning];
    std::size_t size = 0;
    const std::size_t held = slReadFileBeginning(name.c_str(), beginning, sizeof beginning, &size);
    const auto isJudged = [&](int (*judge)(const void*, std::size_t, std::size_t)) {
        const int early = judge(beginning, held, size);
        const std::unique_ptr<char[]> whole = early < 0 ? slReadFile(name.c_str(), &size) : nullptr;
        return (early < 0 ? judge(whole.get(), size, size) : early) == 1;
    };
    if (isJudged(&slIsBmp)) {
        goodPictures_.insert(name);
    } else if (held == 0 && slReadFile(name.c_str(), &size) == nullptr) {
        tellM("missing-file", &value.span, "there is no file '" + name + "'");
    } else if (!isJudged(&slIsShownBmp)) {
        tellM("bad-picture", &value.span, "'" + name + "' is no .bmp picture that can be shown");
    } else if (std::strcmp(value.field, RegionField) == 0) {
        tellM("bad-picture", &value.span, "'" + name + "' has too many pixels: no region is made of it");
    }
}

void ReadingDiagnosticsCL::EntryDroppedM(const EntryDroppedCL& entry)
{
    if (text_ == nullptr || entry.section == slipped_ || entry.fault == EntryFault::NullWord) {
        return;
    }
    tellM("unknown-id", &entry.span,
        std::string(entry.section) + " entry " + std::to_string(entry.entry + 1)
            + (entry.fault == EntryFault::BadSlot ? " names a slot that can't be meant"
                                                  : " names an unknown id")
            + ": it is dropped");
}

void ReadingDiagnosticsCL::SectionM(const SectionSeenCL& section)
{
    if (text_ == nullptr) {
        return;
    }
    const std::string header = section.header;
    switch (section.status) {
    case SectionStatus::Missing:
        // Any other one may: there are no controls of that kind.
        if (header == VersionHeader || header == DialogHeader) {
            tellM("missing-section", nullptr, "section " + header + " is missing");
        }
        break;
    case SectionStatus::Empty:
        if (section.countSpan.EmptyM()) {
            tellM("bad-count", &section.countSpan, "the count of " + header + " should be a number");
        }
        break;
    case SectionStatus::Broken:
        tellM("bad-count", &section.countSpan,
            "the count of " + header + " cannot be meant: the rest of the file is too short for it");
        break;
    case SectionStatus::Incomplete:
        tellM("missing-secondary", &section.headerSpan,
            "no control of " + header + " is built: another section that it needs is missing or broken");
        break;
    case SectionStatus::Read:
        break;
    }
}
