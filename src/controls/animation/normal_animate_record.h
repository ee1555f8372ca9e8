#pragma once
#include "baselib/gbk_texts.h"
#include "records/record_arr.h"

class DuNormalAnimateCL;

// One animation of a description file that plays by itself or shows a frame on demand.
class PANELKIT_API DVrNormalAnimateCL : public RecordCL<DVrNormalAnimateCL>
{
public:
    using RecordCL::RecordCL;
    int AddBmpNameM(const char* file) { return slAppendText(frames_, file); } // The index of the new frame.
    void TakeRowM(const RowCL& row) { slTakeText(frames_, *row.texts[0]); }   // The same, of the file.
    int InitNormalAnimateM(DuNormalAnimateCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
    int controlMode_ { 1 };
    int timeLapse_ { 0 };
    int sunken_ { 0 };
    int notify_ { 0 };
    TextListCL frames_;
};

extern template class PANELKIT_API Arr<DVrNormalAnimateCL>;

class PANELKIT_API DVrNormalAnimateArr : public RecordArr<DVrNormalAnimateCL>
{
public:
    static constexpr const char* KindName = "normal_animation";
    static constexpr const char* Header = NormalAnimateHeader;
    static constexpr std::array<SecondarySectionCL<RecordTP>, 1> Secondaries { { { NormalAnimateBitmapHeader,
        &slPictureRow, [](RecordTP& record, const RowCL& row) { record.TakeRowM(row); } } } };

    int AddBmpNameM(int index, const char* file) { return addM(index, &RecordTP::AddBmpNameM, file); }
    int InitNormalAnimateM(int index, DuNormalAnimateCL* control) const
    {
        return ifAliveM(index, &RecordTP::InitNormalAnimateM, control);
    }
};
