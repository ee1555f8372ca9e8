// Compiled gettext catalogues: what they give, and that no bytes make them read outside the file.
#include "baselib/message_catalogue.h"
#include <gtest/gtest.h>
#include <random>
#include <utility>
#include <vector>

namespace {

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

const TextsTP Texts { { "", "Content-Type: text/plain; charset=UTF-8\n" }, { "1001\4确定", "Go" },
    { "取消", "Annuler" }, { "确定", "OK" }, { std::string("一个\0几个", 13), std::string("one\0many", 8) },
    { "空", "" } };

} // namespace

TEST(MessageCatalogue, GivesTheTranslationOfATextInItsContext)
{
    for (const bool isSwapped : { false, true }) {
        MessageCatalogueCL catalogue;
        ASSERT_TRUE(catalogue.ReadM(CatalogueFileCL(isSwapped).BytesM(Texts)));
        EXPECT_STREQ(catalogue.FindM("确定"), "OK");
        EXPECT_STREQ(catalogue.FindM("确定", "1001"), "Go");
        EXPECT_STREQ(catalogue.FindM("确定", "1002"), "OK"); // None of its own.
        EXPECT_STREQ(catalogue.FindM("取消", "1001"), "Annuler");
        EXPECT_STREQ(catalogue.FindM("一个"), "one");
        EXPECT_EQ(catalogue.FindM("空"), nullptr); // Not translated yet.
        EXPECT_EQ(catalogue.FindM("几个"), nullptr);
        EXPECT_EQ(catalogue.FindM(""), nullptr); // The header is no translation.
        EXPECT_FALSE(catalogue.EmptyM());
    }
}

TEST(MessageCatalogue, RefusesWhatIsNoneAndIsEmptyThen)
{
    MessageCatalogueCL catalogue;
    const std::string good = CatalogueFileCL().BytesM(Texts);
    const auto refuses = [&](const std::string& bytes) {
        EXPECT_TRUE(catalogue.ReadM(good));
        return !catalogue.ReadM(bytes) && catalogue.EmptyM() && catalogue.FindM("取消") == nullptr;
    };
    EXPECT_TRUE(refuses(""));
    EXPECT_TRUE(refuses("msgid \"\"\n"));
    EXPECT_TRUE(refuses(CatalogueFileCL().BytesM(Texts, 2 << 16)));
    EXPECT_TRUE(refuses(CatalogueFileCL().BytesM({ { "", "Content-Type: text/plain; charset=GBK\n" } })));
    for (std::size_t size = 0; size < good.size(); ++size) { // A file that was cut short.
        EXPECT_TRUE(refuses(good.substr(0, size))) << size;
    }
}

TEST(MessageCatalogue, ReadsOlderHeadersAndNone)
{
    MessageCatalogueCL catalogue;
    EXPECT_TRUE(catalogue.ReadM(CatalogueFileCL().BytesM(
        { { "", "content-type: text/plain; CHARSET=utf8" }, { "a", "b" } }, 1 << 16)));
    EXPECT_TRUE(catalogue.ReadM(CatalogueFileCL().BytesM({ { "a", "b" } })));
    EXPECT_STREQ(catalogue.FindM("a"), "b");
    EXPECT_TRUE(catalogue.ReadM(CatalogueFileCL().BytesM({})));
    EXPECT_TRUE(catalogue.EmptyM());
}

// The sanitizers watch; what is still read must be text of the file.
TEST(MessageCatalogue, ChangedBytesNeverLeadOutside)
{
    std::mt19937 random(1);
    const std::string good = CatalogueFileCL().BytesM(Texts);
    MessageCatalogueCL catalogue;
    int read = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string bytes = good;
        for (unsigned i = 0; i <= random() % 3; ++i) {
            bytes[random() % bytes.size()] = static_cast<char>(random() % 4 == 0 ? 0xFF : random() % 64);
        }
        if (catalogue.ReadM(bytes)) {
            ++read;
            for (const auto& text : Texts) {
                const char* const found = catalogue.FindM(text.first);
                EXPECT_TRUE(found == nullptr || bytes.find(found) != std::string::npos);
            }
        }
    }
    EXPECT_GT(read, 1000);
}
