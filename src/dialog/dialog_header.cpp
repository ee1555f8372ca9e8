#include "dialog/dialog_header.h"
#include "baselib/gbk_texts.h"
#include "records/section.h"

namespace {

// The platform's bits, spelled here because this half knows no window header.
constexpr unsigned PopupStyle = 0x80000000;
constexpr unsigned ChildStyle = 0x40000000;
constexpr unsigned CaptionWithMenuStyle = 0x00C80000;
constexpr unsigned BorderStyle = 0x00800000;
constexpr unsigned ThickFrameStyle = 0x00040000;
constexpr unsigned DialogFrameStyle = 0x00400000;

constexpr ChoiceCL WindowKinds[] = { { 1, "overlapped" }, { 2, "pop-up" }, { 3, "child" } };
constexpr ChoiceCL BorderKinds[] = { { 1, "none" }, { 2, "thin" }, { 3, "sizing" }, { 4, "dialog frame" } };

} // namespace

void DialogHeaderCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.LengthPairM("position", position);
    visitor.LengthPairM("size", size);
    visitor.FlagM("title_flag", titleFlag);
    visitor.CaptionM("title", title, NullWord::Empty);
    visitor.LengthM("font_option", fontOption, Along::Y);
    visitor.ChoiceM("window_kind", windowKind, WindowKinds);
    visitor.ChoiceM("border_kind", borderKind, BorderKinds);
    visitor.NameM("background", background, NullWord::Empty);
}

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
    if (SectionReaderCL(io, VersionHeader).StatusM() == SectionStatus::Missing) {
        return 0;
    }
    SectionReaderCL section(io, DialogHeader);
    if (section.StatusM() == SectionStatus::Missing) {
        return 0;
    }
    header = DialogHeaderCL();
    section.InputCommentsM();
    header.EachFieldM(section.RecordM(0));
    return 1;
}
