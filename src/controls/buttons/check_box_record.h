#pragma once
#include "baselib/gbk_texts.h"
#include "records/record_arr.h"

class DuCheckBoxCL;

// One check box of a description file.
class PANELKIT_API DVrCheckBoxCL : public RecordCL<DVrCheckBoxCL>
{
public:
    using RecordCL::RecordCL;
    int InitCheckBoxM(DuCheckBoxCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
    int check_ { 0 };
    CharArr text_;
};

extern template class PANELKIT_API Arr<DVrCheckBoxCL>;

class PANELKIT_API DVrCheckBoxArr : public RecordArr<DVrCheckBoxCL>
{
public:
    static constexpr const char* KindName = "check_box";
    static constexpr const char* Header = CheckBoxHeader;

    int InitCheckBoxM(int index, DuCheckBoxCL* control) const
    {
        return ifAliveM(index, &RecordTP::InitCheckBoxM, control);
    }
};
