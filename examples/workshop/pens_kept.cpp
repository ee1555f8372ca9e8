// What is kept of pens and layers.
#include "pens_dialog.h"

#include <cstdlib>
#include <sstream>

namespace {

constexpr const char* FileName = "pens";

// The words between the tabs of a line that was kept.
std::vector<std::string> wordsOf(const std::string& line)
{
    std::vector<std::string> words;
    std::istringstream stream(line);
    for (std::string word; std::getline(stream, word, '\t');) {
        words.push_back(word);
    }
    return words;
}

std::string gbk(const std::string& utf8)
{
    return ValueTextCL::FromUtf8M(utf8).GbkM();
}

} // namespace

// A line for each pen, each layer, and what is chosen; words with tabs between them.
bool PensDialogCL::keepM()
{
    std::string text;
    for (int pen = 0; pen < pens_->GetItemCount(); ++pen) {
        text += "pen";
        for (int column = NumberColumn; column <= NibColumn; ++column) {
            text += '\t' + ValueTextCL(cellM(pen, column)).Utf8M();
        }
        text += '\t' + std::to_string(pens_->GetItemData(pen)) + '\n';
    }
    eachLayerM(layers_->GetRootItem(), [this, &text](HTREEITEM layer) {
        const ValueTextCL name = std::string(layers_->GetItemText(layer));
        text += "layer\t" + name.Utf8M() + '\t' + std::to_string(layers_->GetItemData(layer)) + '\n';
    });
    for (const int id : { LayersId, PensId }) {
        text += "chosen\t" + std::to_string(id) + '\t' + ValuesM().SavedM(id).value_or("") + '\n';
    }
    if (!settings_.SaveM(FileName, text)) {
        ::MessageBoxW(
            m_hWnd, L"笔表无法保存到文件, 对话框保持打开。", L"笔和图层", MB_OK | MB_ICONEXCLAMATION);
        return false;
    }
    return true;
}

// What was kept of pens and layers that are no longer there is passed over.
void PensDialogCL::restoreM()
{
    std::istringstream lines(settings_.LoadM(FileName));
    for (std::string line; std::getline(lines, line);) {
        const std::vector<std::string> words = wordsOf(line);
        if (words.size() == 7 && words[0] == "pen") {
            const int pen = std::atoi(words[1].c_str()) - 1;
            for (int column = NameColumn; column <= NibColumn; ++column) {
                pens_->SetItemTextM(pen, column, gbk(words[static_cast<size_t>(column) + 1]).c_str());
            }
            pens_->SetItemData(pen, static_cast<DWORD_PTR>(std::atoi(words[6].c_str())));
        } else if (words.size() == 3 && words[0] == "layer") {
            eachLayerM(layers_->GetRootItem(), [this, &words, name = gbk(words[1])](HTREEITEM layer) {
                if (std::string(layers_->GetItemText(layer)) == name) {
                    layers_->SetItemData(layer, static_cast<DWORD_PTR>(std::atoi(words[2].c_str())));
                }
            });
        } else if (words.size() == 3 && words[0] == "chosen") {
            ValuesM().RestoreM(std::atoi(words[1].c_str()), words[2]);
        }
    }
}

std::string PensDialogCL::SummaryM(const SettingsCL& settings)
{
    std::istringstream lines(settings.LoadM(FileName));
    std::string names;
    for (std::string line; std::getline(lines, line);) {
        const std::vector<std::string> words = wordsOf(line);
        if (words.size() == 7 && words[0] == "pen") {
            names += (names.empty() ? "" : ", ") + words[2];
        }
    }
    return names.empty() ? "出厂设置" : names;
}
