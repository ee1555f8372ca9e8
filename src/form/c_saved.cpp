// The C interface: values as texts to keep.
#include "form/dialog_handles.h"
#include <cstdlib>

namespace {

// In a text of all values each has a line: its id, a blank, the saved value with its line ends and
// backslashes behind a backslash.
std::string escaped(const std::string& saved)
{
    std::string line;
    for (const char character : saved) {
        switch (character) {
        case '\n':
            line += "\\n";
            break;
        case '\r':
            line += "\\r";
            break;
        case '\\':
            line += "\\\\";
            break;
        default:
            line += character;
        }
    }
    return line;
}

std::string unescaped(const std::string& line)
{
    std::string saved;
    for (size_t i = 0; i < line.size(); ++i) {
        if (line[i] != '\\' || i + 1 == line.size()) {
            saved += line[i];
            continue;
        }
        ++i;
        saved += line[i] == 'n' ? '\n' : line[i] == 'r' ? '\r' : line[i];
    }
    return saved;
}

std::string savedText(const DialogValuesCL::SavedTP& all)
{
    std::string text;
    for (const auto& [id, saved] : all) {
        text += std::to_string(id) + ' ' + escaped(saved) + '\n';
    }
    return text;
}

// The values of a text, and how many of its lines are none.
DialogValuesCL::SavedTP readSaved(const std::string& text, size_t& broken)
{
    DialogValuesCL::SavedTP all;
    for (size_t at = 0; at < text.size();) {
        const size_t end = std::min(text.find('\n', at), text.size());
        std::string line = text.substr(at, end - at);
        at = end + 1;
        if (!line.empty() && line.back() == '\r') {
            line.pop_back(); // The text has been in a file.
        }
        if (line.empty()) {
            continue;
        }
        char* behind = nullptr;
        const long id = std::strtol(line.c_str(), &behind, 10);
        if (behind == line.c_str() || *behind != ' ') {
            ++broken;
            continue;
        }
        all.emplace_back(static_cast<int>(id), unescaped(behind + 1));
    }
    return all;
}

} // namespace

panelkit_status panelkit_save(panelkit_dialog* dialog, int32_t id, char* buffer, size_t size, size_t* needed)
{
    return slWithControl(dialog, id, [=](HostedDialogCL&, const DialogValuesCL& values) -> panelkit_status {
        const auto saved = values.SavedM(id);
        return saved ? slGiveText(*saved, buffer, size, needed) : PANELKIT_ERROR_NO_VALUE;
    });
}

panelkit_status panelkit_restore(panelkit_dialog* dialog, int32_t id, const char* saved)
{
    return slWithControl(dialog, id, [=](HostedDialogCL&, DialogValuesCL& values) -> panelkit_status {
        if (saved == nullptr) {
            return PANELKIT_ERROR_ARGUMENT;
        }
        if (values.PartsM(id) == NoPart) {
            return PANELKIT_ERROR_NO_VALUE;
        }
        return values.RestoreM(id, saved) ? PANELKIT_OK : PANELKIT_ERROR_REFUSED;
    });
}

panelkit_status panelkit_save_all(panelkit_dialog* dialog, char* buffer, size_t size, size_t* needed)
{
    return slWithWindow(dialog, [=](HostedDialogCL& hosted) {
        return slGiveText(savedText(hosted.ValuesM().AllM()), buffer, size, needed);
    });
}

panelkit_status panelkit_restore_all(panelkit_dialog* dialog, const char* saved, size_t* refused)
{
    return slWithWindow(dialog, [=](HostedDialogCL& hosted) -> panelkit_status {
        if (saved == nullptr) {
            return PANELKIT_ERROR_ARGUMENT;
        }
        const HostedDialogCL::QuietCL quiet(hosted);
        size_t misfits = 0;
        const auto all = readSaved(saved, misfits);
        misfits += hosted.ValuesM().SetAllM(all).size();
        if (refused != nullptr) {
            *refused = misfits;
        }
        return misfits == 0 ? PANELKIT_OK : PANELKIT_ERROR_REFUSED;
    });
}
