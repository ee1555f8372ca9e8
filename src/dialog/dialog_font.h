#pragma once
#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"
#include "toolkit/toolkit.h"
#include <climits>

// The font of a dialog's controls, by its header's number: the height of the characters in pixels.
inline LOGFONTA slDialogFont(int fontOption)
{
    LOGFONTA font {};
    font.lfHeight = fontOption == INT_MIN ? INT_MAX : -fontOption;
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = GB2312_CHARSET;
    font.lfPitchAndFamily = FF_MODERN;
    slCopyText(font.lfFaceName, LF_FACESIZE, DialogFontFace);
    return font;
}
