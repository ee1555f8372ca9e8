#pragma once
#include "dialog/basic_dialog.h"
#include <string>

// The dialog of a description file, built as an application would build it.
class ShownDialogCL : public DuBasicDialogCL
{
public:
    // name: the file as the library takes it, in the current folder.
    explicit ShownDialogCL(const std::string& name);

    bool BuildM();          // Built, but not yet shown.
    void RunM();            // Shown until it is closed.
    bool WaitUntilShownM(); // Until it is on the screen and painted; false after ten seconds.
};
