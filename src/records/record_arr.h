#pragma once
#include "records/arr.h"
#include "records/section.h"
#include <array>
#include <type_traits>

// What the record array of every kind shares. A kind with secondary sections hides Secondaries by its own.
template <class RecordParamTP> class RecordArr : public Arr<RecordParamTP>
{
public:
    using RecordTP = RecordParamTP;
    static constexpr std::array<SecondarySectionCL<RecordTP>, 0> Secondaries {};

protected:
    // Lets the record at index do something, if it is alive: the action's result, if it has one, else 1.
    template <class ActionTP> int ifAliveM(int index, ActionTP&& action) const
    {
        return this->CheckAvailableM(index) == 1 ? resultM(action, *this->GetItemPM(index)) : 1;
    }
    template <class ActionTP> int ifAliveM(int index, ActionTP&& action)
    {
        return this->CheckAvailableM(index) == 1 ? resultM(action, *this->ElementAtPM(index)) : 1;
    }

private:
    template <class ActionTP, class ItemTP> static int resultM(ActionTP& action, ItemTP& record)
    {
        if constexpr (std::is_void_v<decltype(action(record))>) {
            action(record);
            return 1;
        } else {
            return action(record);
        }
    }
};
