#pragma once
#include "baselib/api.h"
#include <string>
#include <string_view>

class MessageCatalogueCL;

// The texts of the library's own message boxes: one table for the whole process, which an application
// replaces as it likes, say by those of another language. Any thread may call these at any time; a message
// that is open stays as it is. In a text {minimum} and {maximum} stand for the limits of the field that it is
// about, as that field shows numbers; of a field with a text they are numbers of bytes. Everything else in
// braces stays as it is. They are Chinese until a language is chosen.

// The numbers of the texts.
enum MessageTextId : int
{
    BadValueMessage = 0,       // No value stands in a field. Without limits.
    NumberTooSmallMessage = 1, // A single-line edit was left with a number below its minimum,
    NumberTooLargeMessage = 2, // or above its maximum,
    TextTooLongMessage = 3,    // or with a text above its maximum.
    IntTooSmallMessage = 4,    // The same of an integer, when the application asks and of spin edits;
    IntTooLargeMessage = 5,
    RealTooSmallMessage = 6, // of a real.
    RealTooLargeMessage = 7,
    IntAtMinimumMessage = 8, // An arrow of a spin edit would have gone below the minimum,
    IntAtMaximumMessage = 9, // or above the maximum.
    RealAtMinimumMessage = 10,
    RealAtMaximumMessage = 11,
    SingleEditCaption = 12, // The caption of what single-line edits say; empty: the application's name.
    SpinEditCaption = 13,   // The same of spin edits.
    // Data exchange with the members of a dialog:
    WantsIntegerMessage = 14,
    WantsPositiveMessage = 15,
    WantsNumberMessage = 16,
    IntegerBetweenMessage = 17, // With both limits.
    NumberBetweenMessage = 18,  // With both limits.
    TooManyBytesMessage = 19,   // With the maximum.
    // What exceptions say of themselves, cut to 511 bytes of GBK; what GBK can't say is '?'.
    FailedMessage = 20, // An exception that says nothing.
    NoMemoryMessage = 21,
    NoResourceMessage = 22,
    NotSupportedMessage = 23,
    BadArgumentMessage = 24
};
// How many there are.
constexpr int MessageTextCount = 25;

// The text as it is in the table; empty for a number that is none of the above.
PANELKIT_API std::u16string slMessageTemplate(int id);
// Replaces a text, whatever the language; null: the library's own again. False for a number that is none of
// the above.
PANELKIT_API bool slSetMessageTemplate(int id, const std::u16string* text);
// The language of the library's own texts: English for "en", "en_GB" and such, Chinese for every other one.
// The catalogue's translations come first, each in the context of its number; null: none. It is not kept.
PANELKIT_API void slSetMessageLanguage(
    std::string_view language, const MessageCatalogueCL* catalogue = nullptr);
// That context.
inline std::string slMessageContext(int id)
{
    return "message " + std::to_string(id);
}
// The text with the limits filled in.
PANELKIT_API std::u16string slMessageText(
    MessageTextId id, const std::u16string& minimum = {}, const std::u16string& maximum = {});

#ifdef _WIN32
// The same in the wide characters of the window system.
inline std::wstring slWideMessageText(
    MessageTextId id, const std::wstring& minimum = {}, const std::wstring& maximum = {})
{
    const std::u16string text = slMessageText(
        id, std::u16string(minimum.begin(), minimum.end()), std::u16string(maximum.begin(), maximum.end()));
    return std::wstring(text.begin(), text.end());
}
#endif
