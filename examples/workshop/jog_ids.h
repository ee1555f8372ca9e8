// What both files of the jog panel know.
#pragma once
#include "toolkit/toolkit.h"
#include <cwchar>
#include <string>

enum JogId : int // Of jog.dlg.
{
    OkId = 1,
    CancelId = 2,
    XPlusId = 1101,
    YPlusId = 1102,
    XMinusId = 1103,
    YMinusId = 1104,
    HomeId = 1105,
    XId = 1201,
    YId = 1202,
    CurveId = 1301,
    FactorKnobId = 1401,
    FactorId = 1402,
    StepKnobId = 1501,
    StepId = 1502,
    PenSwitchId = 1601,
    PenId = 1602,
    PenPictureId = 1701,
    StateId = 1702,
    SpindleId = 1801,
    SpindleTurnsId = 1802
};

enum PenStatus : int // Of the switch.
{
    PenOff,
    PenUp,
    PenDown
};

constexpr int LowestPenFrame = 3; // Of its picture.

constexpr UINT_PTR MoveTimer = 1; // Runs while something moves,
constexpr UINT MoveMilliseconds = 30;
constexpr UINT_PTR StepTimer = 2; // and while the step knob is held.
constexpr UINT StepMilliseconds = 250;

inline std::wstring slNumberText(const wchar_t* format, double value)
{
    wchar_t text[60];
    return std::wstring(text, static_cast<size_t>(std::swprintf(text, 60, format, value)));
}
