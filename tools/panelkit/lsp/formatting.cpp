// Numbers below their comments, as `panelkit format` writes them.
#include "features.h"
#include "row_layout.h"

JsonTP formattingEdits(OpenFileCL& file, const JsonTP&)
{
    JsonTP edits = JsonTP::array();
    for (const BlanksCL& change : blanksToChange(file.AnalysisM().text)) {
        edits.push_back(textEdit(file, change.span, std::string(change.spaces, ' ')));
    }
    return edits;
}
