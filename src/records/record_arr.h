#pragma once
#include "containers/arr.h"
#include "records/record.h"
#include <array>

// What the record array of every kind shares. A kind with secondary sections hides Secondaries by its own.
// Where such an array hands a call on to the record at an index, it does so only if that one is alive; the
// result is 1 unless a null pointer was refused.
template <class RecordParamTP> class RecordArr : public Arr<RecordParamTP>
{
public:
    using RecordTP = RecordParamTP; // The record's class.
    static constexpr std::array<SecondarySectionCL<RecordTP>, 0> Secondaries {};

    // Appends a record that holds its defaults: its index, -1 when there is no memory. From slot firstNew on
    // nothing was ever put into the store: a new slot holds the defaults, all but the tag.
    int AddDefaultsM(int firstNew)
    {
        const int index = this->GetBoundM();
        if (index < firstNew || index >= this->GetLengthM()) {
            return this->AddItemM(RecordTP(AliveTag));
        }
        this->getCurrentItemPrtM()[index].SetDeleteTagM(AliveTag);
        this->setCountsM(index + 1, this->GetAvailableNumM() + 1);
        return index;
    }

protected:
    // Lets the record at index fill a control: the record's result, 1 if it is not alive.
    template <class OperationTP, class ControlTP>
    int ifAliveM(int index, OperationTP operation, ControlTP* control) const
    {
        return this->CheckAvailableM(index) == 1 ? (this->GetItemPM(index)->*operation)(control) : 1;
    }
    template <class OperationTP, class ControlTP>
    int ifAliveM(int index, OperationTP operation, ControlTP* control)
    {
        return this->CheckAvailableM(index) == 1 ? (this->ElementAtPM(index)->*operation)(control) : 1;
    }

    // Lets the record at index take something: 0 for a null pointer, else 1.
    template <class OperationTP, class... ArgumentsTP>
    int addM(int index, OperationTP operation, ArgumentsTP... arguments)
    {
        if ((isNullM(arguments) || ...)) {
            return 0;
        }
        if (this->CheckAvailableM(index) == 1) {
            (this->ElementAtPM(index)->*operation)(arguments...);
        }
        return 1;
    }

private:
    static bool isNullM(const void* argument) { return argument == nullptr; }
    static bool isNullM(int) { return false; }
};
