#include "baselib/gbk.h"
#include "baselib/io.h"
#include <cstring>

namespace {

// A byte that is a character by itself whatever stands before it.
bool standsAlone(char byte)
{
    const unsigned char value = static_cast<unsigned char>(byte);
    return value < 0x40 || value == 0x7F || value == 0xFF;
}

// Where characters begin, for positions asked in rising order: no byte is walked over more than once.
class CharacterStarts
{
public:
    explicit CharacterStarts(const char* begin)
        : known_(begin)
    {
    }

    bool isStartM(const char* at, const char* end)
    {
        const char* from = at;
        while (from > known_ && !standsAlone(from[-1])) {
            --from;
        }
        while (from < at) {
            from += slGbkCharLength(from, end);
        }
        known_ = from; // Past `at` by one where `at` is inside a character.
        return from == at;
    }

private:
    const char* known_;
};

} // namespace

int VrIOCL::SearchStrM(const char* text)
{
    const std::size_t length = text != nullptr ? std::strlen(text) : 0;
    if (length == 0 || length > size_) {
        return 0;
    }
    // Looking at the last byte of the text first lets most of the file be stepped over (Horspool).
    std::size_t steps[256];
    for (std::size_t& step : steps) {
        step = length;
    }
    for (std::size_t k = 0; k + 1 < length; ++k) {
        steps[static_cast<unsigned char>(text[k])] = length - 1 - k;
    }
    const char* const end = data_ + size_;
    const char last = text[length - 1];
    CharacterStarts starts(data_);
    CharacterStarts ends(data_);
    std::size_t at = 0;
    while (at <= size_ - length) {
        const char* const found = data_ + at;
        const char byte = found[length - 1];
        if (byte == last && std::memcmp(found, text, length) == 0 && starts.isStartM(found, end)
            && ends.isStartM(found + length, end)) {
            at_ = at + length;
            return 1;
        }
        at += steps[static_cast<unsigned char>(byte)];
    }
    return 0;
}
