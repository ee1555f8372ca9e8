#pragma once
#include "toolkit/toolkit.h"
#include <functional>

// When is a field left? When the user leaves it: by a key, by a click, by turning to another program, or
// because the application asks (CheckValueLegalM). Then its value is checked, told of and reported. A field
// has not been left, and nothing happens, when it loses the focus
// - while a message about a value is open, or because the field it is about takes the focus back: the field
//   that the user was on the way to was never reached, so it doesn't report to have been entered either;
// - while its parent handles the report of a bad value, or the wish to close the dialog (Esc, close button),
//   unless the application then asks;
// - because it or its dialog is being hidden, disabled, ended or destroyed, or while its dialog is not shown
//   yet and the application doesn't ask.
// So one step of the user shows one message at most, however many fields are bad.

// While one lives, no field in a window (null: of this thread) is left or entered. AllowRequests: except
// while the application asks. Objects live in scopes.
class PANELKIT_API ValidationPauseCL
{
public:
    // Whether fields are left all the same while the application asks for their values.
    enum Requests
    {
        RefuseRequests,
        AllowRequests
    };
    // Begins the pause, until the object goes.
    explicit ValidationPauseCL(HWND within = nullptr, Requests requests = RefuseRequests);
    ValidationPauseCL(const ValidationPauseCL&) = delete;
    ValidationPauseCL& operator=(const ValidationPauseCL&) = delete;
    ~ValidationPauseCL();

    static bool CoversM(HWND field); // Whether one lives for this field.

private:
    HWND within_;
    Requests requests_;
    const ValidationPauseCL* outer_;
};

// While one lives, the application asks whether the values are legal.
class PANELKIT_API ValidationRequestCL
{
public:
    ValidationRequestCL();
    ValidationRequestCL(const ValidationRequestCL&) = delete;
    ValidationRequestCL& operator=(const ValidationRequestCL&) = delete;
    ~ValidationRequestCL();
};

// Whether a field that loses the focus has been left.
PANELKIT_API bool slIsLeft(HWND field);
// Whether a control that gains the focus has been entered.
PANELKIT_API bool slIsEntered(HWND control);

// Shows a message about a field's value, modally by show(), and gives the field the focus back if it has
// moved away. Whatever control was or is about to be pressed: that press ends without a click. False when the
// field was destroyed meanwhile: the caller must not touch it any more; nothing for a null field or show.
PANELKIT_API bool slTellAboutField(CWnd* field, const std::function<void()>& show);
