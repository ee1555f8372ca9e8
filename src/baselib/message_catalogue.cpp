#include "baselib/message_catalogue.h"
#include "baselib/take_back.h"
#include <algorithm>
#include <cctype>
#include <cstdint>
#include <optional>

namespace {

constexpr std::uint32_t CatalogueMagic = 0x950412DE;
constexpr char ContextEnd = '\4'; // Between context and text.

// The numbers and texts of a catalogue: nullopt for what lies outside the file.
class CatalogueBytesCL
{
public:
    explicit CatalogueBytesCL(const std::string& bytes)
        : bytes_(bytes)
        , isSwapped_(numberAtM(0, false) != CatalogueMagic)
    {
    }
    std::optional<std::uint32_t> NumberM(std::uint64_t offset) const { return numberAtM(offset, isSwapped_); }
    // The text that the table's entry leads to, with the NUL behind it.
    std::optional<std::string_view> TextM(std::uint64_t entry) const
    {
        const auto length = NumberM(entry);
        const auto begin = NumberM(entry + 4);
        if (!length || !begin || std::uint64_t { *begin } + *length >= bytes_.size()
            || bytes_[*begin + *length] != '\0') {
            return std::nullopt;
        }
        return std::string_view(bytes_).substr(*begin, *length);
    }

private:
    std::optional<std::uint32_t> numberAtM(std::uint64_t offset, bool isSwapped) const
    {
        if (offset + 4 > bytes_.size()) {
            return std::nullopt;
        }
        std::uint32_t number = 0;
        for (unsigned i = 0; i < 4; ++i) {
            const auto byte = static_cast<unsigned char>(bytes_[static_cast<std::size_t>(offset) + i]);
            number |= std::uint32_t { byte } << (isSwapped ? 24 - 8 * i : 8 * i);
        }
        return number;
    }

    const std::string& bytes_;
    bool isSwapped_;
};

// Plural forms stand one behind the other, a NUL between them.
std::string_view firstForm(std::string_view text)
{
    return text.substr(0, text.find('\0'));
}

// Says the header a code that is read as UTF-8, or none?
bool isUtf8(std::string_view header)
{
    std::string lower(header);
    std::transform(lower.begin(), lower.end(), lower.begin(),
        [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    const std::size_t at = lower.find("charset=");
    if (at == std::string::npos) {
        return true;
    }
    const std::size_t begin = at + std::string_view("charset=").size();
    const std::string code = lower.substr(begin, lower.find_first_of(" ;\r\n", begin) - begin);
    return code == "utf-8" || code == "utf8" || code == "us-ascii" || code == "ascii";
}

} // namespace

bool MessageCatalogueCL::ReadM(std::string bytes)
{
    const auto empty = [this] {
        translations_.clear();
        bytes_.clear();
    };
    empty();
    TakeBackCL half(empty);
    bytes_ = std::move(bytes);
    const bool isRead = fillM();
    if (isRead) {
        half.KeepM();
    }
    return isRead;
}

bool MessageCatalogueCL::fillM()
{
    const CatalogueBytesCL file(bytes_);
    const auto revision = file.NumberM(4);
    const auto count = file.NumberM(8);
    const auto texts = file.NumberM(12);
    const auto translations = file.NumberM(16);
    if (file.NumberM(0) != CatalogueMagic || !revision || *revision >> 16 > 1 || !count || !texts
        || !translations || *count > bytes_.size() / 16) {
        return false;
    }
    translations_.reserve(*count);
    for (std::uint64_t i = 0; i < *count; ++i) {
        const auto text = file.TextM(*texts + 8 * i);
        const auto translation = file.TextM(*translations + 8 * i);
        if (!text || !translation) {
            return false;
        }
        if (text->empty() && !isUtf8(*translation)) {
            return false;
        }
        if (!text->empty() && !firstForm(*translation).empty()) {
            translations_.emplace(firstForm(*text), translation->data());
        }
    }
    return true;
}

const char* MessageCatalogueCL::FindM(std::string_view text, std::string_view context) const
{
    if (!context.empty()) {
        const auto found = translations_.find(std::string(context) + ContextEnd + std::string(text));
        if (found != translations_.end()) {
            return found->second;
        }
    }
    const auto found = translations_.find(text);
    return found != translations_.end() ? found->second : nullptr;
}
