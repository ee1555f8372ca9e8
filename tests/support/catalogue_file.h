#pragma once
#include <cstdint>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

// Texts and their translations, in UTF-8. Before a text may stand its context with a '\4' behind it.
using TextsTP = std::vector<std::pair<std::string, std::string>>;

// A .mo file of texts and their translations.
class CatalogueFileCL
{
public:
    explicit CatalogueFileCL(bool isSwapped = false)
        : isSwapped_(isSwapped)
    {
    }
    std::string BytesM(const TextsTP& texts, std::uint32_t revision = 0) const
    {
        const auto count = static_cast<std::uint32_t>(texts.size());
        constexpr std::uint32_t headSize = 28;
        std::uint32_t at = headSize + 16 * count;
        std::string tables[2];
        std::string data;
        for (int table = 0; table < 2; ++table) {
            for (const auto& text : texts) {
                const std::string& one = table == 0 ? text.first : text.second;
                tables[table] += numberM(static_cast<std::uint32_t>(one.size())) + numberM(at);
                data += one + '\0';
                at += static_cast<std::uint32_t>(one.size()) + 1;
            }
        }
        return numberM(0x950412DE) + numberM(revision) + numberM(count) + numberM(headSize)
            + numberM(headSize + 8 * count) + numberM(0) + numberM(at) + tables[0] + tables[1] + data;
    }

private:
    std::string numberM(std::uint32_t number) const
    {
        std::string bytes;
        for (int i = 0; i < 4; ++i) {
            bytes += static_cast<char>(number >> (isSwapped_ ? 24 - 8 * i : 8 * i));
        }
        return bytes;
    }
    bool isSwapped_;
};

// A catalogue beside a description file, as long as it lives.
class CatalogueBesideCL
{
public:
    CatalogueBesideCL(const std::string& file, const std::string& language, const std::string& bytes)
        : path_(file.substr(0, file.rfind('.')) + '.' + language + ".mo")
    {
        FILE* const out = std::fopen(path_.c_str(), "wb");
        std::fwrite(bytes.data(), 1, bytes.size(), out);
        std::fclose(out);
    }
    CatalogueBesideCL(const std::string& file, const std::string& language, const TextsTP& texts)
        : CatalogueBesideCL(file, language, CatalogueFileCL().BytesM(texts))
    {
    }
    CatalogueBesideCL(const CatalogueBesideCL&) = delete;
    CatalogueBesideCL& operator=(const CatalogueBesideCL&) = delete;
    ~CatalogueBesideCL() { std::remove(path_.c_str()); }

private:
    std::string path_;
};
