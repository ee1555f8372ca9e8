#pragma once
#include "controls/base/control.h"
#include "pictures/bitmap_record.h"
#include "pictures/rgn_record.h"

// A picture as member of a control. Assigning drops the one held before: nobody else would delete it.
class PANELKIT_API OwnPictureCL : public DVrBitmapCL
{
public:
    OwnPictureCL() = default;
    OwnPictureCL(const OwnPictureCL& other) = default;
    OwnPictureCL& operator=(const OwnPictureCL& other)
    {
        if (this != &other) {
            DropM();
            DVrBitmapCL::operator=(other);
        }
        return *this;
    }
};

// A region as member of a control: it goes with the window that it was made for, and so when the control is
// assigned to.
class PANELKIT_API OwnRgnCL : public DVrRgnCL
{
public:
    OwnRgnCL() = default;
    OwnRgnCL(const OwnRgnCL& other) = default;
    OwnRgnCL& operator=(const OwnRgnCL& other)
    {
        if (this != &other) {
            DeleteObject();
        }
        return *this;
    }
};

// What the controls that paint themselves share: a static without text that gets the mouse, clicks that hold
// the mouse from press to release, regions of the client rectangle.
class PANELKIT_API PictureStaticCL : public ControlCL<CStatic>
{
public:
    using ControlCL::ControlCL;

    using CStatic::Create;
    int Create(CWnd* parent) { return createM(parent, ""); }

    // Whether Space, Enter and arrows work it like the mouse, as far as its kind takes clicks: then Tab
    // reaches it, and a frame shows that it has the focus. At first not.
    void UseKeyboardM(bool use);

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Whether the window has the mouse: a click that began here goes on.
    bool holdsMouseM() const { return m_hWnd != nullptr && ::GetCapture() == m_hWnd; }
    bool beginClickM(); // Takes the mouse; false when the window has it already.
    // Ends a click begun here: finish() runs while the mouse is still held. Any other: nothing.
    template <class FinishTP> void endClickM(FinishTP&& finish)
    {
        if (holdsMouseM()) {
            const HWND window = m_hWnd;
            finish();
            if (::GetCapture() == window) { // What finish() told the parent may have destroyed this object.
                ::ReleaseCapture();
            }
        }
    }

    void invalidateM(bool erase);         // The whole window, if there is one.
    void clientRgnM(CRgn* region) const;  // The region becomes the client rectangle.
    void clipWindowM(const CRgn& region); // To a copy: a window owns the region that it is given.
    // What of the dialog shows through a part of the control, from the corner of dc.
    void drawBehindM(CDC* dc, const CRect& part) const;
    void invalidateInParentM(); // The window's rectangle in the parent, with erasing.

    // Appends the picture of a file as named, at the control's scale. The slot; -1 when it can't be loaded:
    // its slot then holds a picture that draws nothing, so that later ones keep their places.
    int appendPictureM(DVrBitmapArr* pictures, const char* file) const;

    // What the keyboard can do with a kind, and how.
    enum Keys : unsigned
    {
        NoKeys = 0,
        PressKey = 1, // Space: keyPressM, keyReleaseM.
        EnterKey = 2, // The same by Enter.
        TurnKeys = 4  // Arrows: keyTurnM.
    };
    virtual unsigned keysM() const { return NoKeys; } // The Keys bits of the kind.
    virtual void keyPressM() { }                      // As the left button of the mouse begins a click
    virtual void keyReleaseM() { }                    // and ends it.
    virtual void keyTurnM(bool /*forward*/) { } // Right and up: as by a left click; left and down: back.
    virtual CSize pictureSizeM() const { return {}; } // Of the picture that it shows.

private:
    bool takesKeysM() const { return usesKeyboard_ && keysM() != NoKeys; }
    bool handleKeyM(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT dialogCodeM(const MSG* message) const;
    void clickByKeyM();
    void addTabStopM();
    void cancelKeyM();
    void keepFocusStateM(WPARAM change);
    void showFocusM();
    void drawFocusM();

    bool usesKeyboard_ { false };
    bool hasOwnTabStop_ { false };
    bool isKeyDown_ { false };
    bool hidesFocus_ { false };
};
