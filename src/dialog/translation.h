#pragma once
#include "baselib/message_catalogue.h"
#include "controls/base/value_text.h"
#include <string>
#include <vector>

// What tells the texts of a control from equal ones elsewhere: its kind, as record classes name it, and its
// function id. The title of a dialog has the kind "dialog" and no id.
PANELKIT_API std::string slTextContext(const char* kind, int id);

// A description file in the reader's language: the catalogue beside it, FILE.en.mo for FILE.dlg.
class PANELKIT_API TranslationCL
{
public:
    // The language from the next ReadM on: letters, digits, '_', '-' and '@', as in "en", "pt_BR" or
    // "zh-Hant". Null or empty: the texts of the file. false, and no change, for any other name.
    bool SetLanguageM(const char* language);
    const std::string& LanguageM() const { return language_; } // Empty: none. '-' has become '_'.

    // The catalogues that are looked for beside a file (GBK), the first one first: "en_GB" falls back to
    // "en". None without a language.
    std::vector<std::string> FilesM(const char* file) const;
    // Reads the first of those that is one. false: there is none, or no language; nothing is translated then.
    bool ReadM(const char* file);
    void ForgetM() { catalogue_.ReadM(""); }            // Nothing is translated until the next ReadM.
    bool EmptyM() const { return catalogue_.EmptyM(); } // Nothing is translated.
    // For the library's own messages.
    const MessageCatalogueCL& CatalogueM() const { return catalogue_; }

    // A text of the file in that language; none when it has none.
    ValueTextCL FindM(const ValueTextCL& text, const char* kind, int id) const;

private:
    std::string language_;
    MessageCatalogueCL catalogue_;
};
