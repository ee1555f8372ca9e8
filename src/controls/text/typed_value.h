#pragma once
#include "baselib/message_texts.h"
#include "baselib/simple_value.h"
#include "controls/base/control_value.h"
#include "records/fields.h"
#include <memory>
#include <string>

// How a text was judged.
enum CheckCode
{
    Unreadable = 0,
    BelowMinimum = 3,
    ValidValue = 4,
    AboveMaximum = 5
};

// A real is shown with at most so many decimals: any then fits a text buffer.
constexpr int MostDecimals = TextSize - 42;

// What simpleValD holds, byte for byte, in little room until a long text comes. Copied deeply, and may be
// moved by its bytes.
class PANELKIT_API KeptValueCL
{
public:
    KeptValueCL() = default; // All zero.
    KeptValueCL(const KeptValueCL& other);
    KeptValueCL& operator=(const KeptValueCL& other);
    ~KeptValueCL() = default;

    simpleValD WholeM() const; // All of it.

    // Its members, each at the beginning of its bytes: the int; valid until a text is set, as are the others.
    int& NumberM() { return whole_ != nullptr ? whole_->number : few_.number; }
    float& RealM() { return whole_ != nullptr ? whole_->real : few_.real; } // The real.
    char* TextM() { return whole_ != nullptr ? whole_->text : few_.text; }  // The text.
    // The same to read.
    int NumberM() const { return const_cast<KeptValueCL*>(this)->NumberM(); }
    float RealM() const { return const_cast<KeptValueCL*>(this)->RealM(); }       // The same.
    const char* TextM() const { return const_cast<KeptValueCL*>(this)->TextM(); } // The same.
    // A copy of its first 259 bytes, cut at a character; null is empty.
    void SetTextM(const char* text);

private:
    simpleValD& makeWholeM();

    union FewTP {
        char text[16] {};
        int number;
        float real;
    };
    FewTP few_;                         // The first bytes of a value, which has no others,
    std::unique_ptr<simpleValD> whole_; // unless this is there.
};

// The value of an edit: its data type, decimals and limits; reading it from what the user typed, checking it,
// and showing it. Any code but those above is an unknown type: nothing can be typed, stored, read or shown.
// Texts are GBK of at most 259 bytes; what is longer is cut at a character.
class PANELKIT_API TypedValueCL
{
public:
    // The data type, a ValueType code.
    int GetTypeM() const { return type_; }
    void SetTypeM(int type, int decimals); // decimals: of a real; below 0 counts as 0.

    // Both take, by type, ints, reals or a text, for a text type the limits as ints: 1; 0 for an unknown
    // type.
    int SetRangeM(const simpleValD& range);
    int SetValueM(const simpleValD& value);
    // Gives the value, by type: 1; 0, and nothing is written, for an unknown type or null.
    int GetValueM(simpleValD* value) const;
    // The smallest and the largest value, as the type says.
    union LimitsCL {
        int numbers[2]; // Of integers, and of texts the lengths.
        float reals[2]; // Of reals.
    };
    // Minimum and maximum.
    const LimitsCL& RangeM() const { return range_; }

    // These don't look at the type.
    void SetIntM(int value) { value_.NumberM() = value; }
    void SetRealM(float value) { value_.RealM() = value; }
    void SetTextM(const char* value) { value_.SetTextM(value); }
    int IntM() const { return value_.NumberM(); }
    float RealM() const { return value_.RealM(); }
    const char* TextM() const { return value_.TextM(); }

    // Whether the user may type this character. Editing commands such as Ctrl+V arrive as characters too.
    bool AcceptsM(unsigned character) const;

    // Reads a text into the value, in the limits or not, and judges it. Blanks before a number and anything
    // behind it don't matter. Where no number stands the value stays.
    CheckCode ReadM(const char* text);
    int ShowM(char* to, int size) const; // The value as text: 1; "" and 0 for an unknown type.

    // As value by id (ControlValueCL): one part, by type; none for an unknown type.
    unsigned PartsM() const;
    ControlValueCL ReadAsM(const char* text) const; // What ReadM takes from a text; none unless it is valid.
    // Takes a value that, shown, would be judged valid. False, and the value stays, for every other one.
    bool TakeM(const ControlValueCL& value);

    // Brings a value that ReadM judged to be out of range to the limit; a text is cut to its maximum length.
    void ForceM(CheckCode code);
    // The limit that a value with this code passes, as text.
    std::string LimitTextM(CheckCode code) const;
    // What a user is told of a value with this code, in the words that name the type.
    MessageTextId FaultM(CheckCode code) const;
    std::u16string MessageM(MessageTextId id) const; // The message with the limits of this value.

private:
    void showNumberM(char* to, int size, const LimitsCL& value, int which) const;
    template <class T> static CheckCode judgeM(T value, const T (&limits)[2]);

    int type_ { IntegerType };
    int decimals_ { 0 };
    LimitsCL range_ {};
    KeptValueCL value_;
};

// Cuts a real's text behind the given number of decimals, not rounding; the point itself stays.
PANELKIT_API void slTripDot(char* text, int decimals);
