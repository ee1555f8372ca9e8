// What its arrows do to a spin edit, and the check of its value.
#include "controls/text/spin_edit.h"

namespace {

// The limit towards which the step went counts first.
template <class T> CheckCode judgeStep(T value, const T (&limits)[2], bool isDown)
{
    const bool isLow = value < limits[0];
    const bool isHigh = value > limits[1];
    if (isLow && isHigh) {
        return isDown ? BelowMinimum : AboveMaximum;
    }
    return isLow ? BelowMinimum : isHigh ? AboveMaximum : ValidValue;
}

} // namespace

// Steps *value: 1 is the lower arrow, -1 the upper one. Where the result is out of range, *value stays.
CheckCode DuSpinEditCL::steppedM(int delta, simpleValD* value) const
{
    const TypedValueCL::LimitsCL& range = value_.RangeM();
    if (value_.GetTypeM() == IntegerType) {
        const long long limits[2] = { range.numbers[0], range.numbers[1] };
        const long long stepped = value_.IntM() - static_cast<long long>(delta) * step_.NumberM();
        const CheckCode code = judgeStep(stepped, limits, delta == 1);
        if (code == ValidValue) {
            value->number = static_cast<int>(stepped);
        }
        return code;
    }
    const float stepped = delta == 1 ? value_.RealM() - step_.RealM() : value_.RealM() + step_.RealM();
    const CheckCode code = judgeStep(stepped, range.reals, delta == 1);
    if (code == ValidValue) {
        value->real = stepped;
    }
    return code;
}

MessageTextId DuSpinEditCL::stepMessageM(CheckCode code) const
{
    const bool isLow = code == BelowMinimum;
    if (value_.GetTypeM() == IntegerType) {
        return isLow ? IntAtMinimumMessage : IntAtMaximumMessage;
    }
    return isLow ? RealAtMinimumMessage : RealAtMaximumMessage;
}

LRESULT DuSpinEditCL::onSpinClickM(WPARAM wParam, LPARAM)
{
    simpleValD value;
    if (value_.GetValueM(&value) == 0) {
        return 0; // An unknown type.
    }
    updateDataM(1);
    const int delta = static_cast<int>(wParam);
    CheckCode code = ValidValue;
    if (delta == 1 || delta == -1) {
        code = steppedM(delta, &value);
        value_.SetValueM(value); // The stepped value, or the one from before the typing.
        if (code != ValidValue && !tellM(stepMessageM(code))) {
            return 0;
        }
    }
    updateDataM(0);
    if (code != ValidValue && refusal_.selects) {
        SetSel(0, -1); // What stood there, and was selected, has been replaced.
    }
    return 0;
}

LRESULT DuSpinEditCL::onCheckValM(WPARAM, LPARAM)
{
    tellCheckedM();
    return 0;
}

// Checks the value and tells the user of a bad one. False when the field was destroyed meanwhile.
bool DuSpinEditCL::tellCheckedM()
{
    const CheckCode code = static_cast<CheckCode>(GetCurValM(nullptr));
    return code == ValidValue || tellM(value_.FaultM(code));
}

bool DuSpinEditCL::tellM(MessageTextId message)
{
    return slTellRefusal(
        this, refusal_, { SpinEditCaption, MB_OK | MB_ICONEXCLAMATION, true }, value_.MessageM(message));
}
