// What is there twice, once: the codes that the format has ready, which pack flat pictures as well as codes
// made for each picture.
#include "picture_bytes.h"
#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>

namespace {

constexpr int Longest = 258; // Repetition.
constexpr int Farthest = 1 << 15;
constexpr int Tries = 32; // Earlier places that are looked at for each repetition.

// The repetitions from one length or distance on have a code of their own and so many bits behind it.
struct StepCL
{
    int from;
    int bits;
};

template <std::size_t Count> constexpr std::array<StepCL, Count> stepsFrom(int first, int perSize)
{
    std::array<StepCL, Count> steps {};
    int from = first;
    for (std::size_t i = 0; i < Count; ++i) {
        const int size = static_cast<int>(i) / perSize;
        steps[i] = { from, size > 0 ? size - 1 : 0 };
        from += 1 << steps[i].bits;
    }
    return steps;
}

constexpr auto Lengths = stepsFrom<28>(3, 4); // And one for the longest.
constexpr auto Distances = stepsFrom<30>(1, 2);

template <std::size_t Count> std::size_t stepOf(const std::array<StepCL, Count>& steps, int value)
{
    const auto next = std::upper_bound(
        steps.begin(), steps.end(), value, [](int sought, const StepCL& step) { return sought < step.from; });
    return static_cast<std::size_t>(std::distance(steps.begin(), next)) - 1;
}

class BitsCL
{
public:
    explicit BitsCL(std::string* to)
        : to_(to)
    {
    }
    // The lowest bit first.
    void AddM(unsigned value, int count)
    {
        held_ |= value << count_;
        count_ += count;
        for (; count_ >= 8; count_ -= 8, held_ >>= 8) {
            *to_ += static_cast<char>(held_);
        }
    }
    // Codes come with the highest bit first.
    void AddCodeM(unsigned code, int count)
    {
        unsigned turned = 0;
        for (int bit = 0; bit < count; ++bit) {
            turned |= (code >> bit & 1) << (count - 1 - bit);
        }
        AddM(turned, count);
    }
    void AddSymbolM(unsigned symbol)
    {
        if (symbol < 144) {
            AddCodeM(0x30 + symbol, 8);
        } else if (symbol < 256) {
            AddCodeM(0x190 + symbol - 144, 9);
        } else if (symbol < 280) {
            AddCodeM(symbol - 256, 7);
        } else {
            AddCodeM(0xC0 + symbol - 280, 8);
        }
    }
    void AddRepetitionM(int length, int distance)
    {
        if (length == Longest) {
            AddSymbolM(285);
        } else {
            const std::size_t at = stepOf(Lengths, length);
            AddSymbolM(257 + static_cast<unsigned>(at));
            AddM(static_cast<unsigned>(length - Lengths[at].from), Lengths[at].bits);
        }
        const std::size_t at = stepOf(Distances, distance);
        AddCodeM(static_cast<unsigned>(at), 5);
        AddM(static_cast<unsigned>(distance - Distances[at].from), Distances[at].bits);
    }
    void EndM() { AddM(0, (8 - count_) % 8); }

private:
    std::string* to_;
    unsigned held_ { 0 };
    int count_ { 0 };
};

// Where the same eight bytes stood before: what is shorter is hardly shorter as a repetition.
class EarlierCL
{
public:
    explicit EarlierCL(const std::string& bytes)
        : bytes_(bytes)
        , latest_(1 << HashBits, -1)
        , before_(Farthest, -1)
    {
    }

    void AddM(int place)
    {
        if (!isSoughtM(place)) {
            return;
        }
        int& latest = latest_[hashM(place)];
        before_[static_cast<std::size_t>(place % Farthest)] = latest;
        latest = place;
    }
    // The length of the longest repetition at a place behind those added; 0: none.
    int FindM(int place, int* distance) const
    {
        const int most = std::min(Longest, static_cast<int>(bytes_.size()) - place);
        int found = 0;
        int earlier = isSoughtM(place) ? latest_[hashM(place)] : -1;
        const char* const here = bytes_.data() + place;
        for (int tries = Tries; tries > 0 && earlier >= 0 && place - earlier <= Farthest && found < most;
             --tries) {
            const char* const there = bytes_.data() + earlier;
            if (there[found] == here[found]) {
                const int length = static_cast<int>(std::mismatch(here, here + most, there).first - here);
                if (length > found) {
                    found = length;
                    *distance = place - earlier;
                }
            }
            const int next = before_[static_cast<std::size_t>(earlier % Farthest)];
            earlier = next < earlier ? next : -1; // Else it was that of a later place.
        }
        return found < Sought ? 0 : found;
    }

private:
    static constexpr int HashBits = 15;
    static constexpr int Sought = 8;
    bool isSoughtM(int place) const { return place + Sought <= static_cast<int>(bytes_.size()); }
    std::size_t hashM(int place) const
    {
        std::uint64_t value = 0;
        std::memcpy(&value, bytes_.data() + place, Sought);
        return (value * 0x9E3779B97F4A7C15) >> (64 - HashBits);
    }

    const std::string& bytes_;
    std::vector<int> latest_; // By hash.
    std::vector<int> before_; // By place: the one before it with the same hash.
};

void addSum(std::string& to, const std::string& bytes)
{
    constexpr unsigned Prime = 65521;
    constexpr std::size_t AtOnce = 5552; // As many bytes as can be added up in 32 bits.
    unsigned low = 1;
    unsigned high = 0;
    for (std::size_t begin = 0; begin < bytes.size(); begin += AtOnce) {
        const std::size_t end = std::min(begin + AtOnce, bytes.size());
        for (std::size_t i = begin; i < end; ++i) {
            low += static_cast<unsigned char>(bytes[i]);
            high += low;
        }
        low %= Prime;
        high %= Prime;
    }
    for (const unsigned part : { high, low }) {
        to += static_cast<char>(part >> 8);
        to += static_cast<char>(part);
    }
}

} // namespace

std::string packed(const std::string& bytes)
{
    std::string result = "\x78\x9C";
    BitsCL bits(&result);
    bits.AddM(1, 1); // The last block,
    bits.AddM(1, 2); // by the codes that are ready.
    EarlierCL earlier(bytes);
    const int size = static_cast<int>(bytes.size());
    for (int place = 0; place < size;) {
        int distance = 0;
        const int length = earlier.FindM(place, &distance);
        if (length > 0) {
            bits.AddRepetitionM(length, distance);
        } else {
            bits.AddSymbolM(static_cast<unsigned char>(bytes[static_cast<std::size_t>(place)]));
        }
        for (const int end = place + std::max(length, 1); place < end; ++place) {
            earlier.AddM(place);
        }
    }
    bits.AddSymbolM(256); // The end.
    bits.EndM();
    addSum(result, bytes);
    return result;
}
