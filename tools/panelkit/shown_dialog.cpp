#include "shown_dialog.h"

ShownDialogCL::ShownDialogCL(const std::string& name)
    : name_(name)
{
    SetConfigFileM(name.c_str());
}

const DLGTEMPLATE* ShownDialogCL::TemplateM()
{
    struct EmptyTemplateCL
    {
        DLGTEMPLATE header { WS_POPUP | WS_CAPTION | WS_SYSMENU, 0, 0, 0, 0, 100, 100 };
        WORD menu { 0 };
        WORD windowClass { 0 };
        WORD title { 0 };
    };
    static const EmptyTemplateCL empty;
    return &empty.header;
}

bool ShownDialogCL::BuildM()
{
    return CreateIndirect(TemplateM(), nullptr) != FALSE;
}
