// What --messages says.
#include "message_log.h"
#include "support/description_files.h"
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <sstream>

TEST(Messages, EveryConstantOfTheHeaderHasWords)
{
    const std::string header = wholeFile(PANELKIT_SOURCES "/controls/base/messages.h");
    std::map<std::string, unsigned> constants;
    const std::regex constant("(\\w+Msg) = (\\d+)");
    for (std::sregex_iterator at(header.begin(), header.end(), constant); at != std::sregex_iterator();
         ++at) {
        constants[(*at)[1]] = static_cast<unsigned>(std::stoul((*at)[2]));
    }
    EXPECT_GE(constants.size(), 13U);
    std::map<std::string, unsigned> told;
    for (const MessageWordsCL& words : messageWords()) {
        told[words.name] = words.number;
        EXPECT_STRNE(words.meaning, "") << words.name;
    }
    EXPECT_EQ(told, constants);
}

TEST(Messages, ThePageTellsEachAsHeaderAndLogDo)
{
    const std::string header = wholeFile(PANELKIT_SOURCES "/controls/base/messages.h");
    std::istringstream page(wholeFile(PANELKIT_DOCS "/messages.md"));
    const std::regex row(
        "\\| `(\\w+Msg)` \\| (\\d+) \\| ([^|]*) \\| [^|]+ \\| [^|]*\\| [^|]+ \\| ([^|]+) \\|");
    std::vector<std::string> told;
    std::vector<std::string> wanted;
    for (std::string line; std::getline(page, line);) {
        std::smatch cells;
        if (std::regex_match(line, cells, row)) {
            told.push_back(cells[1].str() + " " + cells[2].str() + " " + cells[4].str());
            std::smatch comment;
            ASSERT_TRUE(
                std::regex_search(header, comment, std::regex(cells[1].str() + " = \\d+,? *// ([^\n]*)")));
            for (const char* how : { "sent|Sent", "posted|Posted" }) {
                EXPECT_EQ(std::regex_search(cells[3].str(), std::regex(how)),
                    std::regex_search(comment[1].str(), std::regex(how)))
                    << line;
            }
        }
    }
    for (const MessageWordsCL& words : messageWords()) {
        wanted.push_back(std::string(words.name) + " " + std::to_string(words.number) + " " + words.meaning
            + (words.negative != nullptr ? std::string("; ") + words.negative : ""));
    }
    EXPECT_EQ(told, wanted);
}
