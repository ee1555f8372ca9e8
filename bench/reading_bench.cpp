// How long reading a large description file takes: as opening a dialog reads it, as a multiple of one bare
// pass over its bytes that finds the same values, and as `panelkit check` reads it.
#include "baselib/io.h"
#include "bench_description.h"
#include "check.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <functional>
#include <limits>

namespace {

const char* const Path = "reading_bench.dlg";

void fail(const char* what)
{
    std::fprintf(stderr, "reading_bench: %s\n", what);
    std::exit(1);
}

void print(const char* name, double value)
{
    std::printf("{\"name\":\"%s\",\"value\":%.3f,\"unit\":\"ratio\",\"better\":\"lower\"}\n", name, value);
}

void write(const std::string& bytes)
{
    FILE* const file = std::fopen(Path, "wb");
    if (file == nullptr || std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size()) {
        fail("cannot write its file");
    }
    std::fclose(file);
}

// What all values add up to, so that none is left out.
struct SumCL
{
    long long ints { 0 };
    double reals { 0 };
    std::size_t bytes { 0 };
};

const char* skipBlanks(const char* at, const char* end)
{
    while (at < end && (*at == ' ' || *at == '\n')) {
        ++at;
    }
    return at;
}

const char* lineEnd(const char* at, const char* end)
{
    const void* const found = std::memchr(at, '\n', static_cast<std::size_t>(end - at));
    return found != nullptr ? static_cast<const char*>(found) : end;
}

const char* scanValue(char token, const char* at, const char* end, SumCL& sum)
{
    at = skipBlanks(at, end);
    if (token == 's') {
        const char* const line = lineEnd(at, end);
        sum.bytes += static_cast<std::size_t>(line - at);
        return line;
    }
    if (token == 'f') {
        float real = 0;
        at = std::from_chars(at, end, real).ptr;
        sum.reals += static_cast<double>(real);
        return at;
    }
    int number = 0;
    at = std::from_chars(at, end, number).ptr;
    sum.ints += number;
    return at;
}

SumCL scan(const std::string& bytes)
{
    SumCL sum;
    const char* const end = bytes.data() + bytes.size();
    const char* at = bytes.data();
    for (const BenchSectionCL& section : BenchSections) {
        while (std::strncmp(at, section.header, std::strlen(section.header)) != 0) {
            at = lineEnd(at, end) + 1;
        }
        SumCL head;
        at = lineEnd(at, end);
        at = scanValue('d', at, end, head);
        at = scanValue('d', at, end, head);
        at = lineEnd(lineEnd(at, end) + 1, end);
        for (long long i = head.ints - 1; i > 0; --i) {
            for (const char* token = section.tokens; *token != '\0'; ++token) {
                at = scanValue(*token, at, end, sum);
            }
        }
    }
    return sum;
}

int readAll(ReadObserverCL* observer)
{
    VrIOCL io;
    io.OpenM(Path, "r");
    io.SetObserverM(observer);
    DialogHeaderCL header;
    int all = slReadDialogHeader(io, header);
    slEachKindAsBuilt([&](auto row) {
        typename decltype(row)::Records records;
        int count = 0;
        slReadSection(io, records, &count);
        all += records.GetAvailableNumM();
    });
    return all;
}

// Of the processor: others that work on the machine count for little.
double best(int rounds, const std::function<void()>& work)
{
    std::clock_t least = std::numeric_limits<std::clock_t>::max();
    for (int i = 0; i < rounds; ++i) {
        const std::clock_t begin = std::clock();
        work();
        least = std::min(least, std::clock() - begin);
    }
    return static_cast<double>(least) / CLOCKS_PER_SEC;
}

double secondsOfReading(int records, int rounds)
{
    write(benchDescription(records));
    return best(rounds, [records] {
        if (readAll(nullptr) != records / BenchKinds * BenchKinds + 1) {
            fail("not all of the file was read");
        }
    });
}

} // namespace

int main()
{
    constexpr int Records = 4000;
    const std::string bytes = benchDescription(Records);
    SumCL sum;
    const double scanned = best(50, [&] { sum = scan(bytes); });
    if (sum.ints == 0 || sum.reals == 0 || sum.bytes == 0) {
        fail("the bare pass found nothing");
    }
    const double read = secondsOfReading(Records, 50);
    print("read_over_scan", read / scanned);
    print("read_places_over_scan", best(50, [] {
        SeenSectionsCL places;
        readAll(&places);
    }) / scanned);
    const double little = secondsOfReading(1000, 100) / 1000;
    const double much = secondsOfReading(100000, 5);
    print("read_100000_over_1000", much / 100000 / little);
    print("check_over_read", best(5, [] { // As often as the reading.
        if (!checkText(Path, "", readText(Path)).IsFaultyM(true)) {
            fail("the check did not miss the pictures");
        }
    }) / much);
    std::remove(Path);
    return 0;
}
