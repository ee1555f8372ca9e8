#pragma once
#include "baselib/gbk_texts.h"
#include "records/record_arr.h"

class DuSpecAnimateCL;

// One animation of a description file whose frames the application draws.
class PANELKIT_API DVrSpecAnimateCL : public RecordCL<DVrSpecAnimateCL>
{
public:
    using RecordCL::RecordCL;
    int AddBmpNameM(const char* file) { return slAppendText(frames_, file); } // The index of the new frame.
    void TakeRowM(const RowCL& row) { slTakeText(frames_, *row.texts[0]); }   // The same, of the file.
    int InitSpecAnimateM(DuSpecAnimateCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
    int type_ { 0 };
    int sunkMode_ { 0 };
    TextListCL frames_;
};

extern template class PANELKIT_API Arr<DVrSpecAnimateCL>;

class PANELKIT_API DVrSpecAnimateArr : public RecordArr<DVrSpecAnimateCL>
{
public:
    static constexpr const char* KindName = "special_animation";
    static constexpr const char* Header = SpecAnimateHeader;
    static constexpr std::array<SecondarySectionCL<RecordTP>, 1> Secondaries { { { SpecAnimateBitmapHeader,
        &slPictureRow, [](RecordTP& record, const RowCL& row) { record.TakeRowM(row); } } } };

    int AddBmpNameM(int index, const char* file) { return addM(index, &RecordTP::AddBmpNameM, file); }
    int InitSpecAnimateM(int index, DuSpecAnimateCL* control) const
    {
        return ifAliveM(index, &RecordTP::InitSpecAnimateM, control);
    }
};
