// replay FOLDER SECONDS FAILED: runs a fuzzer over its corpus, and for so long over inputs made of those by
// chance, always the same ones in the same order; for compilers without libFuzzer. What breaks the fuzzer, or
// keeps it busy for too long, is written to the file FAILED.
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <unistd.h>
#include <vector>
#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

constexpr unsigned MostSeconds = 20; // That one input may take.

const std::string* current = nullptr; // The input that runs.
const char* failedFile = nullptr;

// Called where nothing can be relied on.
void keepInput()
{
    const int out = ::open(failedFile, O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (current != nullptr && out >= 0
        && ::write(out, current->data(), current->size()) == static_cast<ssize_t>(current->size())) {
        constexpr char Said[] = "\nthe input that failed is in ";
        static_cast<void>(!::write(2, Said, sizeof Said - 1));
        static_cast<void>(!::write(2, failedFile, std::char_traits<char>::length(failedFile)));
        static_cast<void>(!::write(2, "\n", 1));
    }
}

void onSignal(int number)
{
    keepInput();
    std::signal(number, SIG_DFL);
    std::raise(number);
}

void run(const std::string& input)
{
    current = &input;
    ::alarm(MostSeconds);
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
    if (count != 4) {
        return 2;
    }
    failedFile = arguments[3];
    std::signal(SIGABRT, &onSignal);
    std::signal(SIGALRM, &onSignal);
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_death_callback(&keepInput);
#else
    std::signal(SIGSEGV, &onSignal);
#endif
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
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(std::atoi(arguments[2]));
    std::size_t inputs = 0;
    for (; !corpus.empty() && std::chrono::steady_clock::now() < end; ++inputs) {
        run(mutated(random, corpus));
    }
    std::fprintf(stderr, "%zu inputs of the corpus, %zu made of them\n", corpus.size(), inputs);
    return corpus.empty() ? 1 : 0;
}
