#pragma once
#include "toolkit/common_control.h"

// A clip of the .avi format without sound.
class PANELKIT_API CAnimateCtrl : public CWnd
{
    DECLARE_DYNAMIC(CAnimateCtrl)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    // A clip of the resources or of an .avi file, by its name in GBK. FALSE: there is none that can be shown.
    BOOL Open(LPCSTR file) { return Open(slGbkToShown(file).c_str()); }
    AFX_WIDE_TEXT BOOL Open(const WideTP* file) { return SendMessage(ACM_OPENW, 0, AfxTextOf(file)) != 0; }
    BOOL Open(UINT id); // of the resources
    BOOL Close() { return SendMessage(ACM_OPENW) != 0; }
    // Frames count from 0; to -1: the last. times -1: until it is stopped.
    BOOL Play(UINT from, UINT to, UINT times)
    {
        return SendMessage(ACM_PLAY, times, MAKELPARAM(from, to)) != 0;
    }
    BOOL Stop() { return SendMessage(ACM_STOP) != 0; }

    // Shows that frame, and stays there.
    BOOL Seek(UINT frame) { return Play(frame, frame, 1); }
    BOOL IsPlaying() const { return SendMessage(ACM_ISPLAYING) != 0; }
};
