#pragma once
#include "records/arr.h"
#include "records/record.h"
#include <array>

// What the record array of every kind shares. A kind with secondary sections hides Secondaries by its own.
// Where such an array hands a call on to the record at an index, it does so only if that one is alive, and
// the result is always 1.
template <class RecordParamTP> class RecordArr : public Arr<RecordParamTP>
{
public:
    using RecordTP = RecordParamTP;
    static constexpr std::array<SecondarySectionCL<RecordTP>, 0> Secondaries {};

protected:
    // Calls an operation of the record at index.
    template <class OperationTP, class... ArgumentsTP>
    int ifAliveM(int index, OperationTP operation, ArgumentsTP... arguments) const
    {
        if (this->CheckAvailableM(index) == 1) {
            (this->GetItemPM(index)->*operation)(arguments...);
        }
        return 1;
    }
    template <class OperationTP, class... ArgumentsTP>
    int ifAliveM(int index, OperationTP operation, ArgumentsTP... arguments)
    {
        if (this->CheckAvailableM(index) == 1) {
            (this->ElementAtPM(index)->*operation)(arguments...);
        }
        return 1;
    }
};
