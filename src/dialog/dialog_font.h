#pragma once
#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"
#include "toolkit/toolkit.h"
#include <algorithm>

// Taller than any screen. Of the tallest fonts that it draws, Wine needs seconds to draw a line.
constexpr int MostFontHeight = 4096;

// The font of a dialog's controls, by its header's number: the height of the characters in pixels.
inline LOGFONTA slDialogFont(int fontOption)
{
    LOGFONTA font {};
    font.lfHeight = -std::clamp(fontOption, -MostFontHeight, MostFontHeight);
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = GB2312_CHARSET;
    font.lfPitchAndFamily = FF_MODERN;
    slCopyText(font.lfFaceName, LF_FACESIZE, DialogFontFace);
    return font;
}
