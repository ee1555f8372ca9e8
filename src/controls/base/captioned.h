#pragma once
#include "baselib/char_arr.h"
#include "baselib/gbk.h"
#include "controls/base/control.h"
#include "controls/base/value_text.h"
#include "records/fields.h"

// A control whose window has a caption from the start: GBK, cut to 259 bytes at a character.
template <class PlatformTP> class CaptionedCL : public ControlCL<PlatformTP>
{
public:
    using ControlCL<PlatformTP>::ControlCL;

    using PlatformTP::Create;
    int Create(CWnd* parent) { return this->createM(parent, text_.TextM()); }

    // What its window says now. Setting it: false, and no change, for null or without a window.
    ValueTextCL CaptionM() const
    {
        std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(this->m_hWnd)) + 1, L'\0');
        text.resize(static_cast<std::size_t>(
            ::GetWindowTextW(this->m_hWnd, text.data(), static_cast<int>(text.size()))));
        return text;
    }
    bool SetCaptionM(const ValueTextCL& caption)
    {
        return this->m_hWnd != nullptr && keepTextM(caption.IsNoneM() ? nullptr : caption.GbkM().c_str()) == 1
            && ::SetWindowTextW(this->m_hWnd, caption.WideM().c_str());
    }

protected:
    // For the window to come: 1. 0, and no change, for null.
    int keepTextM(const char* text)
    {
        if (text != nullptr) {
            char cut[TextSize];
            slCopyText(cut, TextSize, text);
            text_.SetM(cut);
        }
        return text != nullptr ? 1 : 0;
    }
    // The same, and the window shows it if there is one.
    int showTextM(const char* text)
    {
        const int result = keepTextM(text);
        if (result == 1 && this->m_hWnd != nullptr) {
            this->SetWindowText(text_.TextM());
        }
        return result;
    }

    CharArr text_; // The caption.
};
