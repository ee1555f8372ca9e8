#pragma once
#include "baselib/base.h"
#include "controls/base/accessors.h"
#include "toolkit/toolkit.h"

// Which characters a text box takes; any other value: all.
enum EditConstant : int
{
    IntegerCharacters = 0,
    RealCharacters = 2,
    AllCharacters = 4
};

// An edit field for programs that make their own windows: filters what is typed, reads and writes its text as
// a number or a text. Limits are inclusive and must be set before numbers are used. Texts are GBK and pass
// through 50 bytes: what is longer is cut at a character. Formats are printf's, for exactly one value.
// Null is refused everywhere: nothing happens, the result is 0. Where nothing else is said it is 1.
class PANELKIT_API DuTextBox : public CEdit, public VrBaseCL
{
public:
    DuTextBox() = default;
    explicit DuTextBox(char tag)
        : VrBaseCL(tag)
    {
    }

    // Which characters can be typed.
    EditConstant GetEditTypeM() const { return editType_; }
    void SetEditTypeM(EditConstant type) { editType_ = type; }

    // Minimum and maximum of integers, and of reals.
    int SetMinMaxValM(const int limits[2]) { return slCopyPair(intLimits_, limits); }
    int GetMinMaxValueM(int limits[2]) const { return slCopyPair(limits, intLimits_); }
    int SetMinMaxValM(const float limits[2]) { return slCopyPair(realLimits_, limits); }
    int GetMinMaxValM(float limits[2]) const { return slCopyPair(limits, realLimits_); }

    // 1 and the number; -1 for a blank text, *value untouched; -1 and *value = -1 for a number outside the
    // limits. A text that is no number counts as 0, but is reported by 0 where 0 is within the limits.
    int GetIntM(int* value) const;
    int GetRealM(float* value) const;
    // Shows the number, or nothing if it is outside the limits.
    int SetIntM(int value, const char* format);
    int SetRealM(float value, const char* format);

    int GetStringM(char* text) const; // Copies the text, 50 bytes at most. 1, for the empty text 0.
    int SetStringM(const char* text, const char* format); // Shows the text.

protected:
    afx_msg void OnChar(UINT character, UINT repeats, UINT flags);
    DECLARE_MESSAGE_MAP()

private:
    static constexpr int BufferSize = 50;
    template <class NumberTP>
    int getM(const char* (*read)(const char* at, const char* end, NumberTP* value),
        const NumberTP (&limits)[2], NumberTP* value) const;
    bool isTakenM(UINT character) const;
    void showM(const char* format, ...); // Null: nothing.

    EditConstant editType_ { AllCharacters };
    int intLimits_[2] {};
    float realLimits_[2] {};
};
