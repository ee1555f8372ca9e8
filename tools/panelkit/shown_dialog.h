#pragma once
#include "dialog/basic_dialog.h"
#include <string>

// The dialog of a description file, built as an application would build it.
class ShownDialogCL : public DuBasicDialogCL
{
public:
    // name: the file as the library takes it, in the current folder.
    explicit ShownDialogCL(const std::string& name);

    bool BuildM(); // Built, but not yet shown.

protected:
    const char* NameM() const { return name_.c_str(); }
    static const DLGTEMPLATE* TemplateM(); // An empty dialog: the description file says all the rest.

private:
    std::string name_;
};
