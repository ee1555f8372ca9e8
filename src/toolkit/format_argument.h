#pragma once
#include "toolkit/platform.h"
#include <cstddef>
#include <type_traits>

// One value for a format, with what it is: a conversion that doesn't suit it shows it as it is, so that no
// format reads what was not given. Takes numbers, enumerations, pointers, and what converts to a text, narrow
// (GBK) or wide. A text is not copied.
class AfxFormatArgument
{
public:
    // What a value is.
    enum KindTP
    {
        IntegerKind,
        RealKind,
        TextKind,
        WideTextKind,
        PointerKind
    };

    // Takes a value; a pointer or text must live until the format is done.
    template <class T> AfxFormatArgument(const T& value)
    {
        if constexpr (std::is_integral<T>::value || std::is_enum<T>::value) {
            // Values narrower than an int are handed on as one.
            kind_ = IntegerKind;
            bits_ = static_cast<unsigned long long>(value);
            isLong_ = sizeof(T) > sizeof(int);
            isWideCharacter_ = std::is_same<T, wchar_t>::value;
        } else if constexpr (std::is_floating_point<T>::value) {
            kind_ = RealKind;
            real_ = value;
            isLong_ = std::is_same<T, long double>::value;
        } else if constexpr (std::is_same<T, std::nullptr_t>::value) {
            kind_ = PointerKind;
        } else if constexpr (std::is_convertible<const T&, const wchar_t*>::value) {
            kind_ = WideTextKind;
            pointer_ = static_cast<const wchar_t*>(value);
        } else if constexpr (std::is_convertible<const T&, const char*>::value) {
            kind_ = TextKind;
            pointer_ = static_cast<const char*>(value);
        } else if constexpr (std::is_convertible<const T&, const unsigned char*>::value) {
            kind_ = TextKind;
            pointer_ = static_cast<const unsigned char*>(value);
        } else {
            static_assert(std::is_pointer<T>::value && std::is_convertible<const T&, const void*>::value,
                "a format takes numbers, pointers and texts");
            kind_ = PointerKind;
            pointer_ = value;
        }
    }

    // What the value is.
    KindTP KindM() const { return kind_; }
    unsigned long long BitsM() const { return bits_; } // of an integer, extended by its sign
    bool IsLongM() const { return isLong_; }           // an integer of 64 bits, a long double
    // It is a wchar_t.
    bool IsWideCharacterM() const { return isWideCharacter_; }
    // Of a real.
    long double RealM() const { return real_; }
    const void* PointerM() const { return pointer_; } // of texts too

private:
    KindTP kind_ = IntegerKind;
    bool isLong_ = false;
    bool isWideCharacter_ = false;
    unsigned long long bits_ = 0;
    long double real_ = 0;
    const void* pointer_ = nullptr;
};
