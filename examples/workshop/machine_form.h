// The machine's parameters: the short way to a dialog, panelkit::Form.
#pragma once
#include "form/form.h"
#include "move.h"
#include "settings.h"

// The form is built once and hidden while it is closed. So it is also where the program keeps the parameters:
// they can be read at any time.
class MachineFormCL
{
public:
    MachineFormCL(void* owner, const SettingsCL& settings); // The owner is a window (HWND).

    std::string ErrorM() const { return form_ ? std::string() : form_.Error(); } // Empty: it can be used.
    void RunM();                                                                 // Until the user closes it.
    MotionCL MotionM() const;
    std::string SummaryM() const;

private:
    bool keepM();
    void showRampM();
    void complainM(const wchar_t* text, int id);

    const SettingsCL& settings_;
    panelkit::Form form_;
    std::string factory_; // All values as the description file has them,
    std::string kept_;    // and as they were accepted last.
};
