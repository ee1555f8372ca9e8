#pragma once
#include "baselib/api.h"
#include "baselib/char_arr.h"
#include "records/fields.h"

class VrIOCL;

// What "[版本号]" and "[对话框]" say of the dialog window itself.
struct DialogHeaderCL
{
    int position[2] {};   // Left and top of the window, in pixels.
    int size[2] {};       // Width and height in pixels.
    int titleFlag { 0 };  // 1: a caption bar with the title.
    CharArr title;        // GBK.
    int fontOption { 0 }; // The height of the characters in pixels.
    int windowKind { 0 }; // 2: a popup window, 3: a child window; else neither.
    int borderKind {
        0
    }; // 1: none, and no other style; 2: thin, 3: for sizing, 4: a dialog's; else as it comes.
    CharArr background; // File name of the background picture, empty for none.

    PANELKIT_API void EachFieldM(FieldVisitorCL& visitor);
    // The window style word that title flag, window kind and border kind make together.
    PANELKIT_API unsigned StyleM() const;
};

// Reads both header sections of an open file. 0, and nothing changed, when one of them is missing.
// What can't be read is 0 or empty.
PANELKIT_API int slReadDialogHeader(VrIOCL& io, DialogHeaderCL& header);
