#pragma once
#include "baselib/gbk_texts.h"
#include "controls/animation/frame_names.h"
#include "records/common_box_record.h"
#include "records/record_arr.h"

class DuNormalAnimateCL;

// One animation of a description file that plays by itself or shows a frame on demand. Holds no window.
class PANELKIT_API DVrNormalAnimateCL : public DVrCommonBoxCL
{
public:
    DVrNormalAnimateCL() = default;
    explicit DVrNormalAnimateCL(char tag)
        : DVrCommonBoxCL(tag)
    {
    }

    int FmReadInterfaceM(VrIOCL* io);                                    // Reads one record; always 1.
    int AddBmpNameM(const char* file) { return frames_.AddNameM(file); } // The index of the new frame.
    // Copies the record into a control without a window, which loads the frames; always 1.
    int InitNormalAnimateM(DuNormalAnimateCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
    int controlMode_ { 1 };
    int timeLapse_ { 0 };
    int sunken_ { 0 };
    int notify_ { 0 };
    FrameNamesCL frames_;
};

extern template class PANELKIT_API Arr<DVrNormalAnimateCL>;

class PANELKIT_API DVrNormalAnimateArr : public RecordArr<DVrNormalAnimateCL>
{
public:
    static constexpr const char* KindName = "normal_animation";
    static constexpr const char* Header = NormalAnimateHeader;
    static constexpr std::array<SecondarySectionCL<RecordTP>, 1> Secondaries { { { NormalAnimateBitmapHeader,
        0, 1, TextSize, [](RecordTP& record, const SectionEntryCL& entry) {
            return record.AddBmpNameM(entry.texts[0]);
        } } } };

    // Appends a frame to the record at index; nothing where none is alive. Always 1.
    int AddBmpNameM(int index, const char* file);
    // Copies the record at index, if it is alive, into the control. Always 1.
    int InitNormalAnimateM(int index, DuNormalAnimateCL* control) const;
};
