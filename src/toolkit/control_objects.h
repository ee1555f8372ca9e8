#pragma once
#include "toolkit/platform.h"

class CEdit;
class CHeaderCtrl;
class CToolTipCtrl;

// The windows that controls make for themselves, as objects of the class that fits. Null for a null handle.
PANELKIT_API CEdit* AfxEditOf(HWND edit);
PANELKIT_API CHeaderCtrl* AfxHeaderOf(HWND header);
PANELKIT_API CToolTipCtrl* AfxToolTipsOf(HWND tips);
