// How long reading a large description file takes: as opening a dialog reads it, as a multiple of one bare
// pass over its bytes that finds the same values, and as `panelkit check` reads it.
#include "baselib/io.h"
#include "baselib/shared_text.h"
#include "bench_description.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "timing.h"
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>

namespace {

const char* const Path = "reading_bench.dlg";

void fail(const char* what)
{
    std::fprintf(stderr, "reading_bench: %s\n", what);
    std::exit(1);
}

void print(const char* name, double value)
{
    std::printf(
        "{\"name\": \"%s\", \"value\": %.3f, \"unit\": \"ratio\", \"better\": \"less\"}\n", name, value);
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
    SharedTextCL text;
    int all = 0;
    const auto open = [&](VrIOCL& io) {
        text.OpenM(io, Path);
        io.SetObserverM(observer);
    };
    {
        VrIOCL io;
        open(io);
        DialogHeaderCL header;
        all += slReadDialogHeader(io, header);
    }
    slEachKindAsBuilt([&](auto row) {
        VrIOCL io;
        open(io);
        typename decltype(row)::Records records;
        int count = 0;
        slReadSection(io, records, &count);
        all += records.GetAvailableNumM();
    });
    return all;
}

double best(int rounds, const std::function<void()>& work)
{
    double least = 1e9;
    for (int i = 0; i < rounds; ++i) {
        const auto begin = std::chrono::steady_clock::now();
        work();
        least = std::min(least, secondsSince(begin));
    }
    return least;
}

} // namespace

int main()
{
    const std::string bytes = benchDescription(4000);
    write(bytes);
    long long sum = 0;
    const double scanned = best(200, [&] {
        const SumCL s = scan(bytes);
        sum += s.ints + (long long)s.bytes + (long long)s.reals;
    });
    int n = 0;
    const double read = best(100, [&] { n = readAll(nullptr); });
    std::printf("%zu bytes %d records, sum %lld scan %f ms read %f ms\n", bytes.size(), n, sum,
        scanned * 1000, read * 1000);
    print("read_over_scan", read / scanned);
}
