// The texts of the description file in the user's language.
#include "baselib/message_texts.h"
#include "dialog/basic_dialog.h"

namespace {

std::string systemLanguage()
{
    wchar_t name[LOCALE_NAME_MAX_LENGTH] = L"";
    ::LCIDToLocaleName(MAKELCID(::GetUserDefaultUILanguage(), SORT_DEFAULT), name, LOCALE_NAME_MAX_LENGTH, 0);
    return slWideToGbk(name);
}

} // namespace

int DuBasicDialogCL::SetLanguageM(const char* language)
{
    const bool isSystems = language != nullptr && *language == '\0';
    if (!translation_.SetLanguageM(isSystems ? systemLanguage().c_str() : language)) {
        return 0;
    }
    slSetMessageLanguage(translation_.LanguageM());
    return 1;
}
