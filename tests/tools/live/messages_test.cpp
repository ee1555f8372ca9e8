// What --messages says.
#include "message_log.h"
#include "support/description_files.h"
#include <gtest/gtest.h>
#include <map>
#include <regex>

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
