// replay FOLDER COUNT: runs a fuzzer over its corpus, and over so many inputs made of those by chance, always
// the same ones; for compilers without libFuzzer.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void run(const std::string& input)
{
    // A block of just that size: a step outside is seen.
    const std::vector<std::uint8_t> bytes(input.begin(), input.end());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

std::size_t below(std::mt19937& random, std::size_t limit)
{
    return random() % limit;
}

std::string mutated(std::mt19937& random, const std::vector<std::string>& corpus)
{
    static const char* const Words[]
        = { "0", "-1", "99999999999", "NULL", "x", "\n", " ", "1e400", "[", "\xB1", "-2147483648", "3" };
    std::string input = corpus[below(random, corpus.size())];
    for (std::size_t edits = 1 + below(random, 5); edits > 0 && !input.empty(); --edits) {
        const std::size_t at = below(random, input.size());
        const std::size_t length = below(random, below(random, 8) == 0 ? 200 : 10);
        switch (below(random, 6)) {
        case 0:
            input.erase(at, length);
            break;
        case 1:
            input.insert(at, input, below(random, input.size()), length);
            break;
        case 2:
            input[at] = static_cast<char>(random());
            break;
        case 3:
            input[at] = static_cast<char>(input[at] ^ 1 << below(random, 8));
            break;
        case 4:
            input.insert(at, Words[below(random, std::size(Words))]);
            break;
        default: {
            const std::string& other = corpus[below(random, corpus.size())];
            input.insert(at, other, other.empty() ? 0 : below(random, other.size()), length * 4);
        }
        }
    }
    return input.substr(0, 8192);
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 3) {
        return 2;
    }
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    std::vector<std::string> corpus;
    for (const auto& file : files) {
        std::ifstream in(file, std::ios::binary);
        corpus.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
        run(corpus.back());
    }
    std::mt19937 random(1); // What it gives is laid down.
    const int wanted = std::atoi(arguments[2]);
    for (int i = 0; i < wanted && !corpus.empty(); ++i) {
        run(mutated(random, corpus));
    }
    return corpus.empty() ? 1 : 0;
}
