#pragma once
#include "records/common_box_record.h"
#include "records/section.h"

// What the description records of all kinds share. A record is one control of a description file and holds
// no window. RecordTP, which derives from this, names its own values once, in EachFieldM. Its Init…M copies
// it into a control that has no window yet, unless it says otherwise; the result is always 1.
template <class RecordTP> class RecordCL : public DVrCommonBoxCL
{
public:
    using DVrCommonBoxCL::DVrCommonBoxCL;

    // Reads one record from its defaults on, without what secondary sections add: 1. 0 when it turned out to
    // be unreadable: what follows then keeps its defaults.
    int FmReadInterfaceM(VrIOCL* io)
    {
        if (io == nullptr) {
            return 0;
        }
        FieldReaderCL reader(io);
        return slReadRecord(static_cast<RecordTP&>(*this), reader);
    }
};
