#pragma once
#include "records/arr.h"
#include "records/section.h"
#include <array>

// What the record array of every kind shares. A kind with secondary sections hides Secondaries by its own.
template <class RecordParamTP> class RecordArr : public Arr<RecordParamTP>
{
public:
    using RecordTP = RecordParamTP;
    static constexpr std::array<SecondarySectionCL<RecordTP>, 0> Secondaries {};

protected:
    // Lets the record at index do something, if it is alive: the action's result, else 1.
    template <class ActionTP> int ifAliveM(int index, ActionTP&& action) const
    {
        if (this->CheckAvailableM(index) == 1) {
            return action(*this->GetItemPM(index));
        }
        return 1;
    }
};
