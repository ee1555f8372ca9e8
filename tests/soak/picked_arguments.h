#pragma once
#include "controls/base/control_common.h"
#include "support/small_picture.h"
#include <algorithm>
#include <array>
#include <climits>
#include <random>
#include <string>
#include <vector>

// Arguments by chance for the public functions: what fits, what doesn't, what nobody would give. The same
// seed gives the same ones everywhere.
class PickedArgumentsCL
{
public:
    explicit PickedArgumentsCL(unsigned seed, bool onlyNull = false)
        : random_(seed)
        , onlyNull_(onlyNull)
    {
    }

    int BelowM(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    bool ChanceM(int percent) { return BelowM(100) < percent; }
    // Whether a pointer is to be null.
    bool NullM()
    {
        const bool isNull = onlyNull_ || ChanceM(3);
        hasGivenNull_ = hasGivenNull_ || isNull;
        return isNull;
    }
    bool HasGivenNullM() const { return hasGivenNull_; }

    // A number, now and then one beyond all that makes sense.
    int NumberM()
    {
        static constexpr int Odd[]
            = { INT_MIN, INT_MAX, -1, 0, 1, 255, 256, 32767, 32768, 65535, 65536, -32768, 1000000 };
        return ChanceM(25) ? Odd[BelowM(static_cast<int>(std::size(Odd)))] : BelowM(120) - 20;
    }
    int PlaceM() { return ChanceM(10) ? NumberM() : BelowM(6) - 1; } // Of a line, row, column, picture.
    int FewM() // How many of something to make room for.
    {
        static constexpr int Few[] = { INT_MIN, -1, 0, 1, 3, 40, 300, INT_MAX };
        return Few[BelowM(static_cast<int>(std::size(Few)))];
    }
    float RealM()
    {
        static constexpr float Odd[] = { 0, -1, 1e30F, -1e30F, 1e-30F, 0.5F, 3.4e38F };
        return ChanceM(25) ? Odd[BelowM(static_cast<int>(std::size(Odd)))]
                           : static_cast<float>(BelowM(2000) - 500) / 8;
    }

    // A text: GBK, broken GBK, or bytes; up to 10,000 of them. It holds until sixteen more have been asked
    // for.
    const char* TextM()
    {
        if (NullM()) {
            return nullptr;
        }
        std::string& text = texts_[next_++ % texts_.size()];
        text.clear();
        const int length = ChanceM(10) ? 0
            : ChanceM(5)               ? BelowM(10000)
            : ChanceM(20)              ? BelowM(400)
                                       : BelowM(12);
        const int sort = BelowM(4);
        while (static_cast<int>(text.size()) < length) {
            if (sort == 0) {
                text += static_cast<char>(BelowM(255) + 1);
            } else if (sort == 1) {
                text += "\xD6\xD0";
            } else if (sort == 2) {
                text += static_cast<char>('0' + BelowM(10));
            } else {
                text += ChanceM(30) ? "\xB2" : ChanceM(50) ? "\xCE\xC4" : "a";
            }
        }
        return text.c_str();
    }
    // Without what begins a combining mark or a script that joins its letters: an edit of Wine 8 crashes
    // while it places a mark without its letter (U+064C U+06AD are enough), a plain one too.
    const char* Utf8TextM()
    {
        if (TextM() == nullptr) {
            return nullptr;
        }
        std::string& text = texts_[(next_ - 1) % texts_.size()];
        std::replace_if(
            text.begin(), text.end(),
            [](char c) {
                const auto byte = static_cast<unsigned char>(c);
                return byte >= 0xCC && !(byte >= 0xCE && byte <= 0xD1) && !(byte >= 0xE4 && byte <= 0xE9);
            },
            '?');
        return text.c_str();
    }
    std::string SomeTextM() { return orEmpty(TextM()); }
    std::string SomeUtf8TextM() { return orEmpty(Utf8TextM()); }
    // The path of a picture, or of none.
    const char* FileM() { return ChanceM(60) && !onlyNull_ ? picture_.path() : TextM(); }

    int* OutM() { return NullM() ? nullptr : &out_[BelowM(2)]; }
    float* RealOutM() { return NullM() ? nullptr : &realOut_; }
    const int* PairM()
    {
        pair_ = { NumberM(), NumberM() };
        return NullM() ? nullptr : pair_.data();
    }
    const float* RealPairM()
    {
        realPair_ = { RealM(), RealM() };
        return NullM() ? nullptr : realPair_.data();
    }
    int* PairOutM() { return NullM() ? nullptr : out_; }
    // Room for `size` bytes; what lies behind is watched.
    char* RoomM(std::size_t size)
    {
        room_.assign(size + 16, '\x5A');
        size_ = size;
        return NullM() ? nullptr : room_.data();
    }
    bool IsRoomKeptM() const { return room_.empty() || room_.substr(size_) == std::string(16, '\x5A'); }

private:
    static std::string orEmpty(const char* text) { return text != nullptr ? text : ""; }
    std::mt19937 random_;
    bool onlyNull_;
    bool hasGivenNull_ { false };
    std::array<std::string, 16> texts_;
    std::size_t next_ { 0 };
    SmallPictureCL picture_ { 0x0000FF, 6, 6 };
    int out_[2] {};
    float realOut_ { 0 };
    std::array<int, 2> pair_ {};
    std::array<float, 2> realPair_ {};
    std::string room_;
    std::size_t size_ { 0 };
};
