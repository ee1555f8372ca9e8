#include "machine_form.h"

#include <cstdio>
#include <windows.h>

namespace {

enum ControlId : int // Of machine.dlg.
{
    OkId = 1,
    CancelId = 2,
    DefaultsId = 20,
    TravelXId = 1101,
    TravelYId = 1102,
    MaxSpeedId = 1111,
    AccelerationId = 1112,
    StartSpeedId = 1113,
    RampId = 1114,
    NameId = 1121,
    PortId = 4001,
    BaudId = 4002
};

template <class... ArgumentsTP> std::string formatted(const char* format, ArgumentsTP... arguments)
{
    char text[200];
    std::snprintf(text, sizeof text, format, arguments...);
    return text;
}

} // namespace

MachineFormCL::MachineFormCL(void* owner, const SettingsCL& settings)
    : settings_(settings)
    , form_("machine.dlg", { owner, {} })
{
    form_.SetIndex(PortId, 0);
    form_.SetIndex(BaudId, 3);
    factory_ = form_.SaveAll().value_or("");
    form_.RestoreAll(settings_.LoadM("machine")); // What no longer fits stays as the file has it.
    kept_ = form_.SaveAll().value_or("");
    showRampM();

    form_.SetCancelId(CancelId); // A bad value is no reason not to cancel.
    for (const int id : { MaxSpeedId, AccelerationId, StartSpeedId }) {
        form_.OnChange(id, [this] { showRampM(); });
    }
    form_.OnClick(DefaultsId, [this] {
        form_.RestoreAll(factory_);
        showRampM(); // Handlers hear what the user does, not this.
    });
    form_.OnClosing([this](int result) { return result != OkId || keepM(); });
}

void MachineFormCL::RunM()
{
    if (form_.Run() != OkId) {
        form_.RestoreAll(kept_); // Cancelled: as if it had never been opened.
        showRampM();
    }
}

MotionCL MachineFormCL::MotionM() const
{
    MotionCL motion;
    motion.maxSpeed = form_.Int(MaxSpeedId).value_or(static_cast<int>(motion.maxSpeed));
    motion.acceleration = form_.Int(AccelerationId).value_or(static_cast<int>(motion.acceleration));
    motion.startSpeed = form_.Int(StartSpeedId).value_or(static_cast<int>(motion.startSpeed));
    motion.travelX = form_.Real(TravelXId).value_or(motion.travelX);
    motion.travelY = form_.Real(TravelYId).value_or(motion.travelY);
    return motion;
}

std::string MachineFormCL::SummaryM() const
{
    const MotionCL motion = MotionM();
    return formatted("%s: %.1f x %.1f mm, %.0f mm/s", form_.Text(NameId).value_or("").c_str(), motion.travelX,
        motion.travelY, motion.maxSpeed);
}

// The user wants to accept what stands there: false keeps the dialog open.
bool MachineFormCL::keepM()
{
    // Enter leaves no field: what is being typed has not been checked yet.
    if (!form_.Check()) {
        return false;
    }
    for (const panelkit_control& control : form_.Controls()) {
        if (control.has_value != 0 && !form_.Save(control.id)) {
            return false; // The user has just been told.
        }
    }
    // What no field can check by itself.
    if (form_.Int(StartSpeedId) > form_.Int(MaxSpeedId)) {
        complainM(L"起步速度不能大于最高速度。", StartSpeedId);
        return false;
    }
    const std::string values = form_.SaveAll().value_or("");
    if (!settings_.SaveM("machine", values)) {
        complainM(L"参数无法保存到文件, 对话框保持打开。", OkId);
        return false;
    }
    kept_ = values;
    return true;
}

// What the typed speeds mean; nothing while one of them is bad.
void MachineFormCL::showRampM()
{
    const auto fastest = form_.Int(MaxSpeedId);
    const auto acceleration = form_.Int(AccelerationId);
    const auto first = form_.Int(StartSpeedId);
    std::wstring text;
    if (fastest && acceleration && first && *first <= *fastest) {
        const double seconds = static_cast<double>(*fastest - *first) / *acceleration;
        wchar_t shown[100];
        std::swprintf(shown, 100, L"加速 %.2f s, 经过 %.1f mm", seconds, (*fastest + *first) / 2.0 * seconds);
        text = shown;
    }
    ::SetDlgItemTextW(static_cast<HWND>(form_.Native()), RampId, text.c_str());
}

void MachineFormCL::complainM(const wchar_t* text, int id)
{
    const auto window = static_cast<HWND>(form_.Native());
    ::MessageBoxW(window, text, L"机床参数", MB_OK | MB_ICONEXCLAMATION);
    ::SetFocus(::GetDlgItem(window, id));
}
