#pragma once
#include "toolkit/data_exchange.h"
#include "toolkit/gbk_string.h"

// For DoDataExchange: each moves the state of one control to a member, or back. What the user typed and the
// member cannot hold is told in a message box, and ends the exchange. Texts are GBK, sizes bytes with the
// final zero.
PANELKIT_API void DDX_Control(CDataExchange* exchange, int id, CWnd& control); // gets the window's messages

// The text of an edit field, as a number or as it is.
PANELKIT_API void DDX_Text(CDataExchange* exchange, int id, BYTE& value);
PANELKIT_API void DDX_Text(CDataExchange* exchange, int id, short& value);
PANELKIT_API void DDX_Text(CDataExchange* exchange, int id, int& value);
PANELKIT_API void DDX_Text(CDataExchange* exchange, int id, UINT& value);
PANELKIT_API void DDX_Text(CDataExchange* exchange, int id, long& value);
PANELKIT_API void DDX_Text(CDataExchange* exchange, int id, DWORD& value);
PANELKIT_API void DDX_Text(CDataExchange* exchange, int id, LONGLONG& value);
PANELKIT_API void DDX_Text(CDataExchange* exchange, int id, ULONGLONG& value);
PANELKIT_API void DDX_Text(CDataExchange* exchange, int id, float& value);
PANELKIT_API void DDX_Text(CDataExchange* exchange, int id, double& value);
PANELKIT_API void DDX_Text(CDataExchange* exchange, int id, CString& value);
PANELKIT_API void DDX_Text(CDataExchange* exchange, int id, LPSTR value, int size);
PANELKIT_API void DDX_Text(CDataExchange* exchange, int id, LPWSTR value, int size); // size in characters

PANELKIT_API void DDX_Check(CDataExchange* exchange, int id, int& value); // BST_UNCHECKED and its kin
// id: the first button of the group (WS_GROUP); value: which of its radio buttons, from 0, -1 for none.
PANELKIT_API void DDX_Radio(CDataExchange* exchange, int id, int& value);

// The selected line of a list box, from 0; -1: none.
PANELKIT_API void DDX_LBIndex(CDataExchange* exchange, int id, int& index);
PANELKIT_API void DDX_LBString(
    CDataExchange* exchange, int id, CString& value); // selects by how a line begins
// The text of the selected line; selects the line that has it.
PANELKIT_API void DDX_LBStringExact(CDataExchange* exchange, int id, CString& value);
// The selected line of a combo box, from 0; -1: none.
PANELKIT_API void DDX_CBIndex(CDataExchange* exchange, int id, int& index);
PANELKIT_API void DDX_CBString(CDataExchange* exchange, int id, CString& value); // the text of its field
// The same; selects the line that has it.
PANELKIT_API void DDX_CBStringExact(CDataExchange* exchange, int id, CString& value);
// The position of a scroll bar, or of a slider.
PANELKIT_API void DDX_Scroll(CDataExchange* exchange, int id, int& position);
PANELKIT_API void DDX_Slider(CDataExchange* exchange, int id, int& position);

// Each checks, right after its DDX_Text, what has come from the control.
PANELKIT_API void DDV_MinMaxByte(CDataExchange* exchange, BYTE value, BYTE low, BYTE high);
PANELKIT_API void DDV_MinMaxShort(CDataExchange* exchange, short value, short low, short high);
PANELKIT_API void DDV_MinMaxInt(CDataExchange* exchange, int value, int low, int high);
PANELKIT_API void DDV_MinMaxUInt(CDataExchange* exchange, UINT value, UINT low, UINT high);
PANELKIT_API void DDV_MinMaxUnsigned(CDataExchange* exchange, DWORD value, DWORD low, DWORD high);
PANELKIT_API void DDV_MinMaxLong(CDataExchange* exchange, long value, long low, long high);
PANELKIT_API void DDV_MinMaxDWord(CDataExchange* exchange, DWORD value, DWORD low, DWORD high);
PANELKIT_API void DDV_MinMaxFloat(CDataExchange* exchange, float value, float low, float high);
PANELKIT_API void DDV_MinMaxDouble(
    CDataExchange* exchange, double value, double low, double high, int precision = 15);
PANELKIT_API void DDV_MinMaxSlider(CDataExchange* exchange, DWORD value, DWORD low, DWORD high);
// No more than that many bytes of GBK; the field takes no more characters than that either.
PANELKIT_API void DDV_MaxChars(CDataExchange* exchange, const CString& value, int bytes);
