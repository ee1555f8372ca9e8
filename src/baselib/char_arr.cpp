#include "baselib/char_arr.h"
#include "baselib/gbk.h"
#include <algorithm>
#include <cstring>

CharArr& CharArr::operator=(const CharArr& other)
{
    if (text_ || other.text_) {
        SetM(other.TextM());
    }
    return *this;
}

int CharArr::SetM(const char* text)
{
    return SetM(text, text != nullptr ? std::strlen(text) : 0);
}

int CharArr::SetM(const char* bytes, std::size_t length)
{
    if (bytes == nullptr) {
        length = 0;
    }
    const void* const nul = length > 0 ? std::memchr(bytes, '\0', length) : nullptr;
    const std::size_t kept = nul != nullptr ? static_cast<const char*>(nul) - bytes : length;
    std::unique_ptr<char[]> made;
    if (kept > 0) {
        made.reset(new char[kept + 1]);
        std::memcpy(made.get(), bytes, kept);
        made[kept] = '\0';
    }
    text_ = std::move(made);
    return 1;
}

void CharArr::SetWithinM(const char* bytes, std::size_t length, std::size_t room)
{
    if (!text_) {
        text_.reset(new char[room]);
    }
    const std::size_t most = std::min(length, room - 1);
    const void* const nul = most > 0 ? std::memchr(bytes, '\0', most) : nullptr;
    const std::size_t kept = nul != nullptr ? static_cast<const char*>(nul) - bytes : most;
    if (kept > 0) {
        std::memmove(text_.get(), bytes, kept);
    }
    text_[kept] = '\0';
}

int CharArr::GetM(char* out, int size) const
{
    if (out == nullptr) {
        return 0;
    }
    slCopyText(out, size, TextM());
    return 1;
}

std::size_t CharArr::LengthM() const
{
    return std::strlen(TextM());
}
