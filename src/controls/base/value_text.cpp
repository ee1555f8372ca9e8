#include "controls/base/value_text.h"
#include <algorithm>
#include <cstring>

namespace {

// Copies a text into a buffer with its terminator, cut where canCut(unit) says of the first unit left out
// that it begins a character.
template <class UnitTP, class TestTP>
int copyCut(const std::basic_string<UnitTP>& text, UnitTP* buffer, int size, TestTP canCut)
{
    if (buffer != nullptr && size >= 1) {
        std::size_t kept = std::min(text.size(), static_cast<std::size_t>(size) - 1);
        while (kept > 0 && kept < text.size() && !canCut(text[kept])) {
            --kept;
        }
        *std::copy_n(text.begin(), kept, buffer) = UnitTP();
    }
    return static_cast<int>(text.size()) + 1;
}

} // namespace

ValueTextCL::ValueTextCL(const char* gbk)
    : text_(slGbkToShownUtf16(gbk))
    , isNone_(gbk == nullptr)
{
}

ValueTextCL ValueTextCL::FromUtf8M(const char* text)
{
    return text != nullptr ? ValueTextCL(slUtf8ToUtf16(text)) : ValueTextCL(text);
}

std::string ValueTextCL::GbkM(int* lost) const
{
    return slUtf16ToGbk(text_.data(), text_.size(), lost);
}

std::string ValueTextCL::Utf8M() const
{
    return slUtf16ToUtf8(text_.data(), text_.size());
}

int ValueTextCL::GbkM(char* buffer, int size) const
{
    const std::string text = GbkM();
    slCopyText(buffer, size, text.c_str());
    return static_cast<int>(text.size()) + 1;
}

int ValueTextCL::Utf8M(char* buffer, int size) const
{
    return copyCut(Utf8M(), buffer, size, [](char unit) { return (unit & 0xC0) != 0x80; });
}

#ifdef _WIN32

ValueTextCL::ValueTextCL(const wchar_t* wide)
    : isNone_(wide == nullptr)
{
    if (wide != nullptr) {
        text_.assign(wide, wide + std::wcslen(wide));
    }
}

int ValueTextCL::WideM(wchar_t* buffer, int size) const
{
    return copyCut(WideM(), buffer, size, [](wchar_t unit) { return unit < 0xDC00 || unit > 0xDFFF; });
}

#endif
