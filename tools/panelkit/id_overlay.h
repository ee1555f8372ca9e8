#pragma once
#include "popup.h"
#include <string>
#include <vector>

// What is written on a control: its id, the number of the Tab stop, and left, top, width and height as in the
// file.
struct IdLabelCL
{
    RECT control; // Client coordinates of the dialog, as are those of the box with the words.
    RECT box;
    std::wstring words;
    bool operator==(const IdLabelCL& other) const
    {
        return ::EqualRect(&control, &other.control) && ::EqualRect(&box, &other.box) && words == other.words;
    }
};
// Of all visible controls of a dialog, or of the one with an id. No box covers another as long as there is
// room.
std::vector<IdLabelCL> idLabels(HWND dialog, const int* only = nullptr);
void drawIds(HWND dialog); // On the screen, until the dialog is painted there again.

// The labels in a window over the dialog that lets clicks through.
class IdOverlayCL : public PopupCL
{
public:
    // Now, and whenever the dialog has moved or changed. only: the id of the one control to be labelled, or
    // null.
    void FollowM(HWND dialog, const int* only = nullptr);

protected:
    void paintM(HDC dc, const RECT& client) override;
    bool isHit() const override { return false; }

private:
    std::vector<IdLabelCL> labels_;
};
