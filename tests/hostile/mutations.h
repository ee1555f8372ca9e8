#pragma once
#include <random>
#include <string>
#include <utility>
#include <vector>

// What can be done to a description file.
enum Mutation
{
    FlippedBytes,
    ExtremeNumbers,
    DeletedLines,
    DoubledLines,
    SwappedLines,
    MergedSection,
    ForeignFields,
    LongTexts,
    CutFile,
    ExchangedPictures,
    Mutations
};
const char* nameOfMutation(int mutation);

// Makes broken description files of sound ones, the same for the same numbers of chance.
class MutatorCL
{
public:
    // files: bytes of description files. pictures: names that may stand for those of pictures.
    MutatorCL(std::vector<std::string> files, std::vector<std::string> pictures)
        : files_(std::move(files))
        , pictures_(std::move(pictures))
    {
    }

    struct MutatedCL
    {
        std::string bytes;
        std::vector<int> mutations; // What was done, in order.
    };
    MutatedCL MakeM(std::mt19937& random) const;

private:
    std::vector<std::string> files_;
    std::vector<std::string> pictures_;
};

// 0 up to below the limit; 0 for the limit 0.
inline std::size_t below(std::mt19937& random, std::size_t limit)
{
    return limit == 0 ? 0 : random() % limit; // The same everywhere, as distributions are not.
}
