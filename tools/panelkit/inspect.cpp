// What the window system says of the dialog that the library builds.
#include "application.h"
#include "commands.h"
#include "description_file.h"
#include "dialog/basic_dialog.h"
#include "inspect_items.h"
#include "json.h"

namespace {

std::string textOf(HWND window)
{
    std::wstring text(static_cast<size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<size_t>(::GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return printedOf(text);
}

JsonTP rectOf(const RECT& rect)
{
    return JsonTP::array({ rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top });
}

JsonTP fontOf(HWND window)
{
    const auto font = reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0));
    LOGFONTW description {};
    if (font == nullptr || ::GetObjectW(font, sizeof description, &description) == 0) {
        return nullptr;
    }
    return { { "height", description.lfHeight }, { "face", printedOf(description.lfFaceName) },
        { "charset", description.lfCharSet } };
}

const char* kindOf(const CWnd* control)
{
    // The arrows of a spin edit stand in no table.
    const char* kind = dynamic_cast<const DuSpinButtonCL*>(control) != nullptr ? "spin_button" : "";
    slEachKind([&](auto row) {
        using RowTP = decltype(row);
        if (dynamic_cast<const typename RowTP::Controls::ControlTP*>(control) != nullptr) {
            kind = RowTP::Records::KindName;
        }
    });
    return kind;
}

JsonTP controlOf(HWND window, HWND dialog)
{
    wchar_t windowClass[64] = L"";
    ::GetClassNameW(window, windowClass, 64);
    RECT rect {};
    ::GetWindowRect(window, &rect);
    ::MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
    const LONG style = ::GetWindowLongW(window, GWL_STYLE);
    JsonTP control = { { "id", ::GetDlgCtrlID(window) },
        { "kind", kindOf(CWnd::FromHandlePermanent(window)) }, { "class", printedOf(windowClass) },
        { "text", textOf(window) }, { "style", hexWord(static_cast<DWORD>(style)) },
        { "ex_style", hexWord(static_cast<DWORD>(::GetWindowLongW(window, GWL_EXSTYLE))) },
        { "rect", rectOf(rect) }, { "visible", (style & WS_VISIBLE) != 0 },
        { "enabled", (style & WS_DISABLED) == 0 }, { "font", fontOf(window) } };
    addItems(window, windowClass, control);
    return control;
}

JsonTP documentOf(HWND dialog)
{
    RECT rect {};
    ::GetWindowRect(dialog, &rect);
    JsonTP controls = JsonTP::array();
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        controls.push_back(controlOf(child, dialog));
    }
    return { { "dialog",
                 { { "title", textOf(dialog) },
                     { "style", hexWord(static_cast<DWORD>(::GetWindowLongW(dialog, GWL_STYLE))) },
                     { "rect", rectOf(rect) } } },
        { "controls", std::move(controls) } };
}

} // namespace

int inspectCommand(const ShowOptionsCL& options)
{
    DocumentsCL documents(options.files.size());
    const int result = showEachFile(options, [&](const OpenedFileCL& file) {
        DuBasicDialogCL dialog;
        if (options.scale != 0) {
            dialog.SetScaleM(options.scale);
        }
        dialog.SetConfigFileM(file.name.c_str());
        if (!options.textLanguage.empty()) {
            dialog.SetLanguageM(options.textLanguage.c_str());
        }
        if (dialog.CreateM() != 1) {
            complain("the dialog of '" + file.said + "' can't be created");
            return 1;
        }
        documents.AddM(file.said, documentOf(dialog.m_hWnd));
        dialog.DestroyWindow();
        return 0;
    });
    documents.PrintM();
    return result;
}
