// Numbers below their comments, as `panelkit format` writes them.
#include "features.h"
#include "row_layout.h"

JsonTP formattingEdits(OpenFileCL& file, const JsonTP&)
{
    return textEdits(file, blanksToChange(file.AnalysisM().text));
}
