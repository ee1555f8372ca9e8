// Compiled gettext catalogues: what they give, and that no bytes make them read outside the file.
#include "baselib/message_catalogue.h"
#include "support/catalogue_file.h"
#include <gtest/gtest.h>
#include <random>

namespace {

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
