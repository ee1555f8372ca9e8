// Compiled into each test program: tells the library which test begins.
#include "mutants.h"
#include <gtest/gtest.h>
#include <string>

namespace {

class MutantListener : public testing::EmptyTestEventListener
{
    void OnTestStart(const testing::TestInfo& test) override
    {
        slNoteTest((std::string(test.test_suite_name()) + "." + test.name()).c_str());
    }
};

[[maybe_unused]] const bool isListening = [] {
    testing::UnitTest::GetInstance()->listeners().Append(new MutantListener);
    return true;
}();

} // namespace
