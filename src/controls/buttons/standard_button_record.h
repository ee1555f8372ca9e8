#pragma once
#include "baselib/gbk_texts.h"
#include "records/record_arr.h"

class DuStandardButtonCL;

// One push button of a description file.
class PANELKIT_API DVrStandardButtonCL : public RecordCL<DVrStandardButtonCL>
{
public:
    using RecordCL::RecordCL;
    int InitStandardButtonM(DuStandardButtonCL* control) const;
    void EachFieldM(FieldVisitorCL& visitor);

private:
    CharArr text_;
    int default_ { 0 };
};

extern template class PANELKIT_API Arr<DVrStandardButtonCL>;

class PANELKIT_API DVrStandardButtonArr : public RecordArr<DVrStandardButtonCL>
{
public:
    static constexpr const char* KindName = "standard_button";
    static constexpr const char* Header = StandardButtonHeader;

    int InitStandardButtonM(int index, DuStandardButtonCL* control) const
    {
        return ifAliveM(index, &RecordTP::InitStandardButtonM, control);
    }
};
