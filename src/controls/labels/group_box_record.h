#pragma once
#include "baselib/gbk_texts.h"
#include "records/record_arr.h"

class DuGroupBoxCL;

// One group box of a description file.
class PANELKIT_API DVrGroupBoxCL : public RecordCL<DVrGroupBoxCL>
{
public:
    using RecordCL::RecordCL;
    int InitGroupBoxM(DuGroupBoxCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
    CharArr text_;
};

extern template class PANELKIT_API Arr<DVrGroupBoxCL>;

class PANELKIT_API DVrGroupBoxArr : public RecordArr<DVrGroupBoxCL>
{
public:
    static constexpr const char* KindName = "group_box";
    static constexpr const char* Header = GroupBoxHeader;

    int InitGroupBoxM(int index, DuGroupBoxCL* control) const
    {
        return ifAliveM(index, &RecordTP::InitGroupBoxM, control);
    }
};
