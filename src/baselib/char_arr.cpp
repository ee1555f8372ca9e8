#include "baselib/char_arr.h"
#include "baselib/gbk.h"
#include <algorithm>
#include <cstring>

namespace {

// How many bytes of a text stand in front of the first NUL.
std::size_t lengthToNul(const char* bytes, std::size_t length)
{
    const void* const nul = length > 0 ? std::memchr(bytes, '\0', length) : nullptr;
    return nul != nullptr ? static_cast<std::size_t>(static_cast<const char*>(nul) - bytes) : length;
}

char* fillText(char* to, const char* bytes, std::size_t length)
{
    std::memcpy(to, bytes, length);
    to[length] = '\0';
    return to;
}

} // namespace

CharArr& CharArr::operator=(const CharArr& other)
{
    if (text_ != nullptr || other.text_ != nullptr) {
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
    const std::size_t kept = bytes != nullptr ? lengthToNul(bytes, length) : 0;
    char* const made = kept > 0 ? fillText(slNewText(kept + 1), bytes, kept) : nullptr;
    slDeleteText(text_); // Not before: the bytes may lie in it.
    text_ = made;
    return 1;
}

void CharArr::SetWithinM(const char* bytes, std::size_t length, std::size_t room)
{
    if (text_ == nullptr) {
        text_ = slNewText(room);
    }
    fillText(text_, bytes, std::min(length, room - 1));
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
