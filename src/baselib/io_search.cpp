#include "baselib/character_starts.h"
#include "baselib/io.h"
#include <cstdint>
#include <cstring>

int VrIOCL::SearchStrM(const char* text)
{
    const std::size_t length = text != nullptr ? std::strlen(text) : 0;
    if (length == 0 || length > SizeM()) {
        return 0;
    }
    if (*text == '[') {
        const std::size_t end = text_->HeaderEndM({ text, length });
        at_ = end != SIZE_MAX ? data_ + end : at_;
        return end != SIZE_MAX ? 1 : 0;
    }
    // Looking at the last byte of the text first lets most of the file be stepped over (Horspool).
    std::size_t steps[256];
    for (std::size_t& step : steps) {
        step = length;
    }
    for (std::size_t k = 0; k + 1 < length; ++k) {
        steps[static_cast<unsigned char>(text[k])] = length - 1 - k;
    }
    const char last = text[length - 1];
    CharacterStartsCL starts(data_);
    CharacterStartsCL ends(data_);
    std::size_t at = 0;
    while (at <= SizeM() - length) {
        const char* const found = data_ + at;
        const char byte = found[length - 1];
        if (byte == last && std::memcmp(found, text, length) == 0 && starts.IsStartM(found, end_)
            && ends.IsStartM(found + length, end_)) {
            at_ = found + length;
            return 1;
        }
        at += steps[static_cast<unsigned char>(byte)];
    }
    return 0;
}
