#include "controls/base/stand_ins.h"
#include <utility>

StandInListCL::StandInListCL() = default;

StandInListCL::~StandInListCL()
{
    for (int i = 0; i < CountM(); ++i) {
        DropM(i);
    }
}

void StandInListCL::PutM(int i, CWnd* window)
{
    std::unique_ptr<CWnd> owned(window); // Until it is in the list.
    if (i >= CountM()) {
        windows_.resize(static_cast<size_t>(i) + 1);
    }
    DropM(i);
    windows_[static_cast<size_t>(i)] = owned.release();
}

void StandInListCL::DropM(int i)
{
    delete std::exchange(windows_[static_cast<size_t>(i)], nullptr);
}
