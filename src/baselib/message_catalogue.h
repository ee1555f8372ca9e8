#pragma once
#include "baselib/api.h"
#include <string>
#include <string_view>
#include <unordered_map>

// The translations of a compiled gettext catalogue (.mo), in UTF-8. Texts it gives live as long as it, and
// until the next ReadM.
class PANELKIT_API MessageCatalogueCL
{
public:
    MessageCatalogueCL() = default;
    MessageCatalogueCL(const MessageCatalogueCL&) = delete;
    MessageCatalogueCL& operator=(const MessageCatalogueCL&) = delete;

    // Takes the bytes of a whole .mo file, of either byte order. False, and it is empty then, for what is
    // none, is cut short, or says that it is in another code than UTF-8.
    bool ReadM(std::string bytes);
    bool EmptyM() const { return translations_.empty(); }

    // What stands for a text: the translation made for this context, else the one for any, else null. Of one
    // with plural forms the singular. An empty text has no translation.
    const char* FindM(std::string_view text, std::string_view context = {}) const;

private:
    bool fillM();

    std::string bytes_;
    std::unordered_map<std::string_view, const char*> translations_;
};
