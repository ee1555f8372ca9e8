#pragma once
#include "baselib/call_ref.h"
#include "baselib/char_arr.h"
#include "containers/int3d_arr.h"
#include "controls/base/accessors.h"
#include "controls/base/id_index.h"
#include "pictures/picture_scale.h"
#include "toolkit/toolkit.h"
#include <algorithm>
#include <functional>

// A position or size, in pixels, as a window can have it: beyond this the window system wraps it around.
inline int slWindowLength(int length)
{
    constexpr int Most = 32767;
    return std::clamp(length, -Most, Most);
}

// Does something with a control of which the application hears. False: the control has been deleted
// meanwhile.
PANELKIT_API bool slOutlives(CWnd* control, const CallRefCL<void()>& act);

// What the host and the application know of any control: ids, described place, window, relations.
// Lengths are pixels. Without a live window the geometry getters give 0 and the setters do nothing.
class PANELKIT_API DControlCommonCL
{
public:
    static constexpr int DescriptSize = 128; // Bytes, with the terminator.

    DControlCommonCL() = default;
    DControlCommonCL(const DControlCommonCL&) = default; // The relation items are shared, not duplicated.
    // The relation items and the legal flag of the target stay.
    DControlCommonCL& operator=(const DControlCommonCL& other);
    virtual ~DControlCommonCL();

    // The window index: controls of a dialog are stacked by ascending ones.
    void SetWinIdxM(int index) { windowIndex_ = index; }
    int GetWinIdxM() const { return windowIndex_; }
    // A number of the application's; only kept.
    void SetSelfIdxM(int index) { selfIndex_ = index; }
    // The function id, which becomes the window's id when that is created.
    void SetFunctionIDM(int id)
    {
        if (functionId_ != id) {
            functionId_ = id;
            IdChangesCL::AddM();
        }
    }
    int GetFunctionIDM() const { return functionId_; }
    // All three at once.
    void SetBaseInfoM(int windowIndex, int selfIndex, int functionId);
    // When the control is shown, in the application's own terms; only kept.
    void SetShowConditionM(int condition) { showCondition_ = condition; }
    int GetShowConditionM() const { return showCondition_; }

    // The described place: left, top and width, height. Setting it moves no window.
    // Null: nothing, here and below.
    void SetPositionM(const int position[2]) { slCopyPair(position_, position); }
    void SetSizeM(const int size[2]) { slCopyPair(size_, size); }
    // Copies it: 1; 0 for null.
    int GetPosM(int position[2]) const { return slCopyPair(position, position_); }
    int GetSizeM(int size[2]) const { return slCopyPair(size, size_); }

    // The scale of its pictures, which are loaded after that is set (picture_scale.h).
    void SetPictureScaleM(const PictureScaleCL& scale) { pictureScale_ = scale; }
    const PictureScaleCL& PictureScaleM() const { return pictureScale_; }
    // Called by the host once the control has its place at another scale: what its kind has beside that, such
    // as pictures, follows. from, to: percent.
    void RescaledM(int /*from*/, int /*to*/) { }

    // A text that goes with pointer reports; what is longer than 127 bytes is cut at a character; null is
    // empty.
    void SetDescriptM(const char* text);
    const char* GetDescriptM() const { return descript_.TextM(); } // Valid until it is set anew.

    int AddRelationItemM(int a, int b, int c); // The index of the new triple.
    // All triples; the control keeps them.
    const Int3DArr& GetRelationItemsM() const { return relationItems_; }
    // Calls doRelationItemM for each triple.
    void doRelationM() const;
    // 1 when the parent has a control with id b, else 0. It changes nothing.
    int doRelationItemM(int a, int b, int c) const;

    // Shows the window, or hides it.
    void ShowObjectM(bool show) { SetVisibleM(show ? 1 : 0); }
    void SetVisibleM(int visible); // Shows for every value but 0.

    // Edges and sizes of the client rectangle, in the parent's client coordinates.
    int GetLeftM() const { return clientRectM().left; }
    int GetTopM() const { return clientRectM().top; }
    int GetRightM() const { return clientRectM().right; }
    int GetButtomM() const { return clientRectM().bottom; }
    int GetWidthM() const { return clientRectM().Width(); }
    int GetHeightM() const { return clientRectM().Height(); }

    // These move or size the window rectangle, frame included, which the getters above leave out. The first
    // takes the top first.
    void SetPosM(int top, int left);
    void SetLeftM(int left) { MoveM(left - windowRectM().left, 0); }
    void SetTopM(int top) { MoveM(0, top - windowRectM().top); }
    void SetRightM(int right) { MoveM(right - windowRectM().right, 0); }
    void SetButtomM(int bottom) { MoveM(0, bottom - windowRectM().bottom); }
    void SetWidthM(int width);
    void SetHeightM(int height);
    void MoveM(int dx, int dy);
    void SetCenterM(const CPoint& centre);
    void LayoutControlM() { placeM(describedRectM()); } // Moves the window to the described place.

    // These move the other control: AlignLeftM its left edge to that of this one, AlignCenterHorizonM it up
    // or down until the centres are level, AlignCenterVerticalM to the left or right until they are above
    // each other. Null: nothing.
    void AlignLeftM(DControlCommonCL* other);
    void AlignCenterHorizonM(DControlCommonCL* other);
    void AlignCenterVerticalM(DControlCommonCL* other);

    // Stores a described place, each value truncated toward zero. Moves nothing.
    void UpdatePositionM(float left, float top, float width, float height);
    // Stores the place as truncated fractions of the parent's client size: zeros inside the parent.
    void UpdatePositionM();

    // Whether the application allows an action. ask 0: the last answer. Otherwise sends 1361 with the
    // address of the flag to the thread's main window (no main window: the flag stays) and returns it; 0 when
    // the control's window was destroyed meanwhile.
    int CheckLegalM(int ask);
    // Sends 3044 to the target: wParam a PointerReportCL, lParam the description. Null target: nothing.
    void OnMouseMove(CWnd* target, UINT flags, const CPoint& point);

protected:
    // The window that is the control's from now on; null: none. It is not kept alive.
    void InitialCommonM(CWnd* window) { window_ = window; }
    void DoAfterCreateM(CWnd* window) { window_ = window; }
    // The described place as a window can have it (slWindowLength).
    CRect describedRectM() const;

private:
    bool hasWindowM() const;
    CRect inParentM(CRect rect) const; // From screen to the parent's client coordinates.
    CRect clientRectM() const;         // Both in the parent's client coordinates.
    CRect windowRectM() const;
    void placeM(const CRect& rect);

    Int3DArr relationItems_;
    int windowIndex_ { 0 };
    int selfIndex_ { 0 };
    CWnd* window_ { nullptr };
    int position_[2] {};
    int size_[2] {};
    int functionId_ { 0 };
    int showCondition_ { 0 };
    int legalFlag_ { 0 };
    PictureScaleCL pictureScale_;
    CharArr descript_;
};

// What wParam of message 3044 points to: the pointer in screen coordinates and the control under it.
struct PointerReportCL
{
    int x;         // In pixels of the screen.
    int y;         // The same.
    CWnd* control; // Its own, not to be kept.
};
