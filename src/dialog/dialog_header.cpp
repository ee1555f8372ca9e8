#include "dialog/dialog_header.h"
#include "baselib/gbk_texts.h"
#include "baselib/io.h"
#include <climits>

namespace {

// The platform's bits, spelled here because this half knows no window header.
constexpr unsigned PopupStyle = 0x80000000;
constexpr unsigned ChildStyle = 0x40000000;
constexpr unsigned CaptionWithMenuStyle = 0x00C80000;
constexpr unsigned BorderStyle = 0x00800000;
constexpr unsigned ThickFrameStyle = 0x00040000;
constexpr unsigned DialogFrameStyle = 0x00400000;

void readText(VrIOCL& io, char (&text)[TextSize])
{
    io.InputGetsM(text, TextSize);
    if (slIsNullWord(text) != 0) {
        text[0] = '\0';
    }
}

} // namespace

unsigned DialogHeaderCL::StyleM() const
{
    unsigned style = windowKind == 2 ? PopupStyle : windowKind == 3 ? ChildStyle : 0;
    if (titleFlag == 1) {
        style |= CaptionWithMenuStyle;
    }
    switch (borderKind) {
    case 1:
        return 0; // A reset: no border means none of the bits above either.
    case 2:
        return style | BorderStyle;
    case 3:
        return style | ThickFrameStyle;
    case 4:
        return style | DialogFrameStyle;
    default:
        return style;
    }
}

int slReadDialogHeader(VrIOCL& io, DialogHeaderCL& header)
{
    if (io.SearchStrM(VersionHeader) == 0 || io.SearchStrM(DialogHeader) == 0) {
        return 0;
    }
    header = DialogHeaderCL();
    int comments = 0;
    io.InputDM(&comments);
    io.SkipSomeLinesM(comments < INT_MAX ? comments + 1 : INT_MAX);
    io.InputInt2DM(header.position);
    io.InputInt2DM(header.size);
    io.InputDM(&header.titleFlag);
    readText(io, header.title);
    io.InputDM(&header.fontOption, &header.windowKind, &header.borderKind);
    readText(io, header.background);
    return 1;
}
