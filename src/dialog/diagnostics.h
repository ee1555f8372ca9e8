#pragma once

// Something in a description file that can't be meant, as reading the file for a dialog met it. The pointers
// hold until the function that got them returns.
struct DiagnosticCL
{
    const char* code;    // Of those that `panelkit check` prints: "missing-file", "bad-number", ...
    const char* file;    // The description file as the dialog was given it, GBK.
    int line;            // From 1, as an editor shows it; 0: the file as a whole.
    int column;          // In characters, from 1; 0: the file as a whole.
    const char* message; // English; what it quotes from the file is GBK.
};

// What an application wants to be told with. context: as it was given. It may not build or destroy the
// dialog.
using DiagnosticTP = void (*)(const DiagnosticCL& what, void* context);
