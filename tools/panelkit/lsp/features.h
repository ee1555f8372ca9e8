#pragma once
#include "open_file.h"

// What the server answers, each from the parameters of its request; null where there is nothing to say.
JsonTP inlayHints(OpenFileCL& file, const JsonTP& params);
JsonTP hoverAt(OpenFileCL& file, const JsonTP& params);
JsonTP completionsAt(OpenFileCL& file, const JsonTP& params);
JsonTP definitionOf(OpenFileCL& file, const JsonTP& params);
JsonTP referencesOf(OpenFileCL& file, const JsonTP& params);
JsonTP preparedRename(OpenFileCL& file, const JsonTP& params);
JsonTP renamed(OpenFileCL& file, const JsonTP& params); // Throws RefusalCL for what is no id.
JsonTP documentSymbols(OpenFileCL& file, const JsonTP& params);
JsonTP foldingRanges(OpenFileCL& file, const JsonTP& params);
JsonTP documentColours(OpenFileCL& file, const JsonTP& params);
JsonTP colourPresentations(OpenFileCL& file, const JsonTP& params);
JsonTP formattingEdits(OpenFileCL& file, const JsonTP& params);
JsonTP diagnosticOf(OpenFileCL& file, const FindingCL& finding, Language language);
JsonTP codeActions(OpenFileCL& file, const JsonTP& params, Language language);

// Why a request is refused, for the user.
struct RefusalCL
{
    std::string why;
};
// The name of the command that a fix of the file's encoding runs, and of the one that shows the dialog.
constexpr const char ConvertCommand[] = "panelkit.convertToGbk";
constexpr const char PreviewCommand[] = "panelkit.showInPreview";
