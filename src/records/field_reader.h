#pragma once
#include "baselib/io.h"
#include "records/fields.h"
#include "records/read_observer.h"

// Reads each value it sees from a description file. What can't be read keeps its value.
class PANELKIT_API FieldReaderCL : public FieldVisitorCL
{
public:
    // io: null reads nothing. section: the header of what is read, for the reader's observer; "" for a single
    // record.
    explicit FieldReaderCL(VrIOCL* io, const char* section = "")
        : io_(io)
        , observer_(io != nullptr ? io->ObserverM() : nullptr)
        , seen_ { section, 0, "", 0, {}, Fate::Read }
        , isStopped_(io == nullptr)
        , whole_(sureM())
        , sure_(whole_)
    {
    }
    // One reader serves all records or entries of a section; the next one begins.
    void BeginRecordM(int number)
    {
        seen_.record = number;
        room_ = observer_ != nullptr ? observer_->BeginRecordM(seen_.section, number) : nullptr;
        isStopped_ = io_ == nullptr;
        isSkipped_ = false;
        sure_ = whole_;
    }
    // All texts that it sees from now on are used again and again; see CharArr::SetWithinM.
    void ReuseTextsM() { isReusing_ = true; }
    // All texts that it sees from now on are kept together, in the blocks of a pool that lives as long.
    void PoolTextsM(TextPoolCL& pool) { pool_ = &pool; }
    bool IsStoppedM() const { return isStopped_; } // The record turned out to be unreadable.
    bool IsSkippedM() const { return isSkipped_; } // A text said that the entry doesn't count.

    void IntM(const char* name, int& value) override;
    void RealM(const char* name, float& value) override;
    void IntsM(const char* name, int* values, int count) override;
    void RealsM(const char* name, float* values, int count) override;
    void ColourM(const char* name, ColourTP& colour, int* flag) override;
    void TextM(const char* name, CharArr& text, const TextFormCL& form) override;
    void NameM(const char* name, CharArr& file, const TextFormCL& form) override;
    void StopReadingM() override;

    // What is read as another verb's value, without the way through that verb.
    void IdM(const char* name, int& value) override;
    void IndexM(const char* name, int& value) override;
    void CountM(const char* name, int& value) override;
    void FlagM(const char* name, int& value) override;
    void ChoiceM(const char* name, int& value, const ChoicesCL& choices) override;
    void LengthM(const char* name, int& value, Along along) override;
    void LengthPairM(const char* name, int (&xy)[2]) override;
    void CaptionM(const char* name, CharArr& text, const TextFormCL& form) override;

private:
    const char* sureM() const;
    bool isObservedM() const { return observer_ != nullptr && io_->FileTextM() != nullptr; }
    bool readM(const char* name, int part, int& value);
    bool readM(const char* name, int part, float& value);
    // What is rare, or only for an observer: readM is short without, and needs no registers saved.
    template <class T> [[gnu::noinline]] bool readOtherwiseM(const char* name, int part, T& value);
    // Before a value that may begin where the one before ends: one of digits alone never does.
    void mayJoinM(const char* begin)
    {
        if (room_ != nullptr && begin == io_->at_) {
            room_->isPlain = false;
        }
    }
    bool tellReadM(const char* name, int part, const char* begin, const char* end);
    [[gnu::noinline]] void tellUnreadM(const char* name, int part, std::size_t begin);
    bool inputPlainM(std::string_view* item);
    template <class T> void readAllM(const char* name, T* values, int count);
    void tellM(const char* name, int part, SpanCL span, Fate fate)
    {
        if (room_ != nullptr && room_->next != room_->end) {
            SeenValueCL& seen = *room_->next++; // Filled one by one: a copy would wait for its parts.
            seen.field = name;
            seen.begin = static_cast<std::uint32_t>(span.begin);
            seen.end = static_cast<std::uint32_t>(span.end);
            seen.part = static_cast<std::uint8_t>(part);
            seen.fate = fate;
            room_->isPlain = room_->isPlain && fate == Fate::Read;
            return;
        }
        seen_.field = name;
        seen_.part = part;
        seen_.span = span;
        seen_.fate = fate;
        observer_->ValueM(seen_);
    }
    [[gnu::noinline]] void tellTextM(
        const char* name, std::string_view item, std::size_t kept, bool isNullWord);
    void tellNoTextM(const char* name);

    VrIOCL* io_;
    ReadObserverCL* observer_;
    SeenRoomCL* room_ { nullptr }; // For its values; null: none.
    ValueSeenCL seen_;             // What the observer is told, one value after the other.
    bool isStopped_;
    const char* whole_; // Values in front of it may be read in the short ways; null: none.
    const char* sure_;  // The same; null when stopped.
    bool isSkipped_ { false };
    bool isReusing_ { false };
    TextPoolCL* pool_ { nullptr };
};

// Where the next value would begin: the offset of the next byte of the open file that is no blank.
PANELKIT_API std::size_t slNextValue(const VrIOCL& io);
