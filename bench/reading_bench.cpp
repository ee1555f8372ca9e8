// How long reading a large description file takes: as opening a dialog reads it, as a multiple of one bare
// pass over its bytes that finds the same values, and as `panelkit check` reads it.
#include "baselib/io.h"
#include "bench_description.h"
#include "check.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "measures.h"
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <functional>
#include <malloc.h>
#include <vector>

namespace {

void fail(const char* what)
{
    std::fprintf(stderr, "reading_bench: %s\n", what);
    std::exit(1);
}

void write(const char* path, const std::string& bytes)
{
    FILE* const file = std::fopen(path, "wb");
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

int readAll(const char* path, ReadObserverCL* observer)
{
    VrIOCL io;
    io.OpenM(path, "r");
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
double processorSecondsOf(const std::function<void()>& work)
{
    const std::clock_t begin = std::clock();
    work();
    return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

// A file to read, and how long that took.
class ReadFileCL
{
public:
    ReadFileCL(const char* path, int records)
        : path_(path)
        , records_(records)
    {
        write(path, benchDescription(records));
    }
    ReadFileCL(const ReadFileCL&) = delete;
    ReadFileCL& operator=(const ReadFileCL&) = delete;
    ~ReadFileCL() { std::remove(path_); }

    // Twice, not counted: then no memory is touched for the first time any more (main).
    void WarmUpM() const
    {
        readAll(path_, nullptr);
        readAll(path_, nullptr);
    }
    void ReadM(int times = 1)
    {
        seconds_.push_back(processorSecondsOf([this, times] {
            for (int i = 0; i < times; ++i) {
                if (readAll(path_, nullptr) != records_ / BenchKinds * BenchKinds + 1) {
                    fail("not all of the file was read");
                }
            }
        }) / times
            / records_);
    }
    // A record, in each round.
    const std::vector<double>& SecondsM() const { return seconds_; }

private:
    const char* path_;
    int records_;
    std::vector<double> seconds_;
};

void compareWithScan()
{
    constexpr int Records = 4000;
    const char* const path = "reading_bench.dlg";
    const std::string bytes = benchDescription(Records);
    ReadFileCL file(path, Records);
    std::vector<double> scanned;
    std::vector<double> places;
    for (int round = 0; round < 100; ++round) {
        SumCL sum;
        scanned.push_back(processorSecondsOf([&] { sum = scan(bytes); }) / Records);
        if (sum.ints == 0 || sum.reals == 0 || sum.bytes == 0) {
            fail("the bare pass found nothing");
        }
        file.ReadM();
        places.push_back(processorSecondsOf([path] {
            SeenSectionsCL seen;
            readAll(path, &seen);
        }) / Records);
    }
    tell("read_over_scan", ratioOf(file.SecondsM(), scanned), "ratio");
    tell("read_places_over_scan", ratioOf(places, scanned), "ratio");
}

constexpr int Many = 100000;
const char* const ManyPath = "reading_bench_many.dlg";

void compareWithMore()
{
    ReadFileCL few("reading_bench.dlg", Many / 100);
    ReadFileCL many(ManyPath, Many);
    many.WarmUpM();
    for (int round = 0; round < 20; ++round) {
        few.ReadM(100);
        many.ReadM();
    }
    tell("read_100000_over_1000", ratioOf(many.SecondsM(), few.SecondsM()), "ratio");
}

void compareWithCheck()
{
    ReadFileCL many(ManyPath, Many);
    many.WarmUpM();
    std::vector<double> checked;
    for (int round = 0; round < 10; ++round) {
        many.ReadM();
        checked.push_back(processorSecondsOf([] {
            if (!checkText(ManyPath, "", readText(ManyPath)).IsFaultyM(true)) {
                fail("the check did not miss the pictures");
            }
        }) / Many);
    }
    tell("check_over_read", ratioOf(checked, many.SecondsM()), "ratio");
}

} // namespace

// What is compared is taken in turn: how fast a machine is changes while it measures.
int main()
{
    // Freed memory stays with the process: whether the C library gives it back to the system after a reading,
    // so that the next one meets it as new and takes half as long again, depends on what else happens to lie
    // behind it.
    mallopt(M_TRIM_THRESHOLD, -1);
    mallopt(M_MMAP_THRESHOLD, 32 * 1024 * 1024);
    compareWithScan();
    compareWithMore();
    compareWithCheck();
    return 0;
}
