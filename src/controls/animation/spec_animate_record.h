#pragma once
#include "baselib/gbk_texts.h"
#include "controls/animation/frame_names.h"
#include "records/common_box_record.h"
#include "records/record_arr.h"

class DuSpecAnimateCL;

// One animation of a description file whose frames the application draws. Holds no window.
class PANELKIT_API DVrSpecAnimateCL : public DVrCommonBoxCL
{
public:
    DVrSpecAnimateCL() = default;
    explicit DVrSpecAnimateCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    int FmReadInterfaceM(VrIOCL* io);                                    // Reads one record; always 1.
    int AddBmpNameM(const char* file) { return frames_.AddNameM(file); } // The index of the new frame.
    // Copies the record into a control without a window, which loads the frames; always 1.
    int InitSpecAnimateM(DuSpecAnimateCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
    int type_ { 0 };
    int sunkMode_ { 0 };
    FrameNamesCL frames_;
};

extern template class PANELKIT_API Arr<DVrSpecAnimateCL>;

class PANELKIT_API DVrSpecAnimateArr : public RecordArr<DVrSpecAnimateCL>
{
public:
    static constexpr const char* KindName = "special_animation";
    static constexpr const char* Header = SpecAnimateHeader;
    static constexpr std::array<SecondarySectionCL<RecordTP>, 1> Secondaries { { { SpecAnimateBitmapHeader, 0,
        1, TextSize, [](RecordTP& record, const SectionEntryCL& entry) {
            return record.AddBmpNameM(entry.texts[0]);
        } } } };

    // Appends a frame to the record at index; nothing where none is alive. Always 1.
    int AddBmpNameM(int index, const char* file);
    // Copies the record at index, if it is alive, into the control. Always 1.
    int InitSpecAnimateM(int index, DuSpecAnimateCL* control) const;
};
