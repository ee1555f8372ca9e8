#pragma once
#include "toolkit/platform.h"

// The edit field of a combo box takes no more text than it is wide. Where an item has filled it with more,
// Wine 8 writes before the text when something at its beginning is replaced: from this call on the field then
// deletes what is selected and inserts nothing, as it does on Windows. Calling again does nothing; no field:
// nothing.
void slGuardComboField(HWND field);
